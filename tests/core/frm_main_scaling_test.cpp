#include <gtest/gtest.h>

#include "analysis_bench.h"
#include "displays.h"
#include "lookup.h"

namespace orvanta::test {
namespace {

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

}  // namespace
}  // namespace orvanta::test
