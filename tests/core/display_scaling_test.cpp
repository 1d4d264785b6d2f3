#include "core/display_scaling.h"

#include <gtest/gtest.h>

#include <memory>

#include "analysis_bench.h"
#include "lookup.h"
#include "presentation/about_box.h"
#include "presentation/edit_dialog.h"
#include "presentation/splash.h"
#include "report_bench.h"
#include "reports/report_dialog.h"

namespace orvanta::test {
namespace {

/// A display and what it makes of the layout.
struct Display {
    std::string name;
    double twipsPerPixel;
    double left;                         // what is left of a length, as a share
    double windowHeight;                 // the same of the window's height
    double splashHeight;                 // and of the splash's
    double lowerFont, wideningOfOption;  // points, share
};
std::ostream& operator<<(std::ostream& out, const Display& display) { return out << display.name; }

const std::vector<Display> displays{
    {"Ordinary", 15, 1, 1, 1, 0, 1},
    {"Finer", 20, 1, 1, 1, 0, 1},
    {"Large", 12, 12 / 15.0, 1 - 1.3 / 15, 1 - 4.95 / 15, 2, 1.01},
    {"Larger", 10, 10 / 15.0, 1 - 1.2 / 15, 1 - 2.95 / 15, 3, 1},
};

/// Keeps the width in which each dialog is shown, as a share of the designed one.
class MeasuredForms : public ModalForms {
public:
    void run(FrmSplash& form) override { measure(form); }
    void run(FrmEdit& form) override { measure(form); }
    void run(FrmReportType& form) override { measure(form); }
    void run(FrmAbout& form) override { measure(form); }
    void repaint(FrmReportType&) override {}
    void setWaitCursor(bool) override {}

    std::vector<double> widths;

private:
    template <class Form>
    void measure(const Form& form) {
        widths.push_back(form.width.value / Form().width.value);
    }
};

class LayoutOn : public testing::TestWithParam<Display> {
protected:
    LayoutOn() { shrinkForLargeFonts(form, display.twipsPerPixel); }

    /// The same control as it is designed.
    template <class Kind>
    const Kind& designed(const Kind& control) const {
        return dynamic_cast<const Kind&>(*driver::controlNamed(design.controls, control.name()));
    }

    const Display& display = GetParam();
    Bench bench, untouched;
    FrmMain& form = bench.form();
    const FrmMain& design = untouched.form();
};
INSTANTIATE_TEST_SUITE_P(Displays, LayoutOn, testing::ValuesIn(displays), NameOfParameter());

void expectPlace(const Control& control, const Control& design, double share) {
    EXPECT_NEAR(control.bounds().left.value, design.bounds().left.value * share, 1e-6)
        << control.name();
    EXPECT_NEAR(control.bounds().top.value, design.bounds().top.value * share, 1e-6)
        << control.name();
}

void expectSize(const Control& control, const Control& design, double widthShare,
                double heightShare) {
    EXPECT_NEAR(control.bounds().width.value, design.bounds().width.value * widthShare, 1e-6)
        << control.name();
    EXPECT_NEAR(control.bounds().height.value, design.bounds().height.value * heightShare, 1e-6)
        << control.name();
}

TEST_P(LayoutOn, ShrinksTheWindowByFactorsOfItsOwn) {
    EXPECT_DOUBLE_EQ(form.width.value, design.width.value * display.left);
    EXPECT_DOUBLE_EQ(form.height.value, design.height.value * display.windowHeight);
}

TEST_P(LayoutOn, MovesEveryControl) {
    for (const Control* control : form.controls.all())
        expectPlace(*control, designed(*control), display.left);
}

TEST_P(LayoutOn, ShrinksEveryControlButPictureBoxesAndWidensOptionsALittle) {
    for (const Control* control : form.controls.all()) {
        if (control->is<Panel>()) continue;
        const bool option = control->is<Option>();
        const double widening = option ? display.wideningOfOption : 1;
        expectSize(*control, designed(*control), display.left * widening, display.left);
    }
}

TEST_P(LayoutOn, KeepsTheSizeOfThePanels) {
    for (const Panel* panel :
         {&form.fraBrainstorm, &form.fraStrength, &form.fraWeakness, &form.fraOpportunity,
          &form.fraThreats, &form.fraAnalyze, &form.fraASSummary, &form.fraAWeakness,
          &form.fraAOpportunity, &form.fraAThreats, &form.fraAnalyzeOpportunity,
          &form.fraAnalyzeThreat, &form.picBtnPrint})
        expectSize(*panel, designed(*panel), 1, 1);
}

TEST_P(LayoutOn, FitsEightHoldersToTheirButtons) {
    const std::vector<std::pair<const Panel*, Button>> holders{
        {&form.picAOAFile, Button::OAFile}, {&form.picABack, Button::ABack},
        {&form.picANext, Button::ANext},    {&form.picAQuit, Button::AQuit},
        {&form.picBOpen, Button::BOpen},    {&form.picBBack, Button::BBack},
        {&form.picBNext, Button::BNext},    {&form.picBQuit, Button::BQuit}};
    for (const auto& [holder, button] : holders) {
        const Bounds& picture = form.buttons[button].image.bounds();
        EXPECT_EQ(holder->bounds().width, picture.width) << holder->name();
        EXPECT_EQ(holder->bounds().height, picture.height) << holder->name();
    }
}

/// Nothing is expected of a control of another kind.
template <class Kind>
void expectFont(const Control& control, const Control& design, double lowered) {
    const auto* written = dynamic_cast<const Kind*>(&control);
    if (!written) return;
    const double designed = dynamic_cast<const Kind&>(design).fontSize().value;
    EXPECT_DOUBLE_EQ(written->fontSize().value, designed - lowered) << control.name();
}

TEST_P(LayoutOn, LowersTheFontsOfLabelsAndOptionsAlone) {
    for (const Control* control : form.controls.all()) {
        const Control& before = designed(*control);
        expectFont<Label>(*control, before, display.lowerFont);
        expectFont<Option>(*control, before, display.lowerFont);
        expectFont<TextBox>(*control, before, 0);
        expectFont<CheckBox>(*control, before, 0);
        expectFont<PushButton>(*control, before, 0);
    }
}

TEST_P(LayoutOn, ShrinksTheSplash) {
    FrmSplash splash;
    shrinkForLargeFonts(splash, display.twipsPerPixel);
    EXPECT_DOUBLE_EQ(splash.width.value, FrmSplash().width.value * display.left);
    EXPECT_DOUBLE_EQ(splash.height.value, FrmSplash().height.value * display.splashHeight);
}

TEST_P(LayoutOn, IsThatOfEachDialogWhenItIsShown) {
    bench.play({{"do", "start"}, {"twipsPerPixel", display.twipsPerPixel}});
    const Platform& world = bench.program().platform;
    MeasuredForms forms;
    Platform platform = withOthers(world, forms, world.wordProcessors);
    Program program(platform, "app", "app");
    showSplash(program);
    showEditDialog(program, Session::Brainstorm, StatementKind::Strength, "text");
    openReportDialog(program);
    openAboutBox(program);
    ASSERT_EQ(forms.widths.size(), 4);
    for (const double width : forms.widths) EXPECT_DOUBLE_EQ(width, display.left);
}

TEST_P(LayoutOn, IsInPlaceBeforeTheOptionsCloseUp) {
    Bench started;
    started.disk.files.erase("app/mpquestions.txt");
    started.play({{"do", "start"}, {"twipsPerPixel", display.twipsPerPixel}});
    const FrmMain& window = started.form();
    const double first = design.optGBS.bounds().top.value * display.left;
    EXPECT_NEAR(window.optGBS.bounds().top.value, first, 1e-6);
    EXPECT_NEAR(window.optSBD.bounds().top.value, first + 360, 1e-6);
    EXPECT_NEAR(window.optPSD.bounds().top.value, first + 720, 1e-6);
}

TEST_P(LayoutOn, ShrinksTheReportDialogInAllButTheHeightOfItsDropDownList) {
    FrmReportType report, asDesigned;
    shrinkForLargeFonts(report, display.twipsPerPixel);
    EXPECT_DOUBLE_EQ(report.width.value, asDesigned.width.value * display.left);
    EXPECT_DOUBLE_EQ(report.height.value, asDesigned.height.value * display.left);
    for (const Control* control : report.controls.all()) {
        const Control& before = *driver::controlNamed(asDesigned.controls, control->name());
        expectPlace(*control, before, display.left);
        const bool dropDown = control->is<ComboBox>();
        expectSize(*control, before, display.left, dropDown ? 1 : display.left);
    }
}

}  // namespace
}  // namespace orvanta::test
