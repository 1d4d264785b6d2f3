#include "core/display_scaling.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"
#include "core/frm_edit.h"
#include "displays.h"
#include "presentation/about_box.h"
#include "presentation/splash.h"
#include "report_bench.h"
#include "reports/report_dialog.h"

namespace orvanta::test {
namespace {

TEST(LayoutDelta, IsHowManyTwipsFewerAPixelHasThanTheDesigns) {
    EXPECT_EQ(layoutDelta(12), 3);
    EXPECT_EQ(layoutDelta(7.5), 7.5);
}

TEST(LayoutDelta, IsNothingWhereAPixelHasAsManyOrMore) {
    EXPECT_EQ(layoutDelta(15), 0);
    EXPECT_EQ(layoutDelta(20), 0);
}

TEST(ReducedLength, LosesItsShareOfFifteenths) {
    EXPECT_DOUBLE_EQ(reduced({1500}, 3).value, 1200);
    EXPECT_DOUBLE_EQ(reduced({1500}, 0).value, 1500);
}

/// A label of 150 twips each way.
class ReducedControl : public testing::Test {
protected:
    ReducedControl() { label.setBounds({{150}, {150}, {150}, {150}}); }
    ControlSet controls;
    Label label{controls, "label"};
};

TEST_F(ReducedControl, MovesAndKeepsItsSizeWhereItsPlaceAloneIsReduced) {
    reducePlace(label, 5);
    EXPECT_EQ(label.bounds(), (Bounds{{100}, {100}, {150}, {150}}));
}

TEST_F(ReducedControl, ShrinksInAllBoundsOrInAllButItsHeight) {
    reduceBounds(label, 5);
    EXPECT_EQ(label.bounds(), (Bounds{{100}, {100}, {100}, {100}}));
    reduceBounds(label, 3, HeightRule::Keep);
    EXPECT_EQ(label.bounds(), (Bounds{{80}, {80}, {80}, {100}}));
}

TEST_F(ReducedControl, LowersItsFontIfItIsOfTheKindsThatDo) {
    label.setFontSize({10});
    lowerFont<Option, TextBox>(label, 2);
    EXPECT_EQ(label.fontSize().value, 10);
    lowerFont<Option, Label>(label, 2);
    EXPECT_EQ(label.fontSize().value, 8);
}

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

class DialogOn : public testing::TestWithParam<Display> {
protected:
    const Display& display = GetParam();
    Bench bench;
};
INSTANTIATE_TEST_SUITE_P(Displays, DialogOn, testing::ValuesIn(displays), NameOfParameter());

TEST_P(DialogOn, IsLaidOutForItWhenItIsShown) {
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

}  // namespace
}  // namespace orvanta::test
