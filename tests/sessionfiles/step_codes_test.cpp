#include "sessionfiles/step_codes.h"

#include <gtest/gtest.h>

#include <array>

#include "bench.h"

namespace orvanta::test {
namespace {

constexpr std::array codes{StepCode{"ST", &FrmMain::fraStrength},
                           StepCode{"WE", &FrmMain::fraWeakness},
                           StepCode{"TH", &FrmMain::fraThreats}};

TEST(StepOnScreen, IsTheCodeOfTheVisiblePanelAndOfTheLastOfSeveral) {
    Bench bench;
    FrmMain& form = bench.form();
    EXPECT_EQ(stepCodeOnScreen(form, codes), "");
    form.fraWeakness.show();
    EXPECT_EQ(stepCodeOnScreen(form, codes), "WE");
    form.fraThreats.show();
    form.fraStrength.show();
    EXPECT_EQ(stepCodeOnScreen(form, codes), "TH");
}

TEST(ShownStep, HasItsPanelOnScreenAndLeavesTheOthers) {
    Bench bench;
    FrmMain& form = bench.form();
    form.fraStrength.show();
    showStep(form, codes, "TH");
    EXPECT_TRUE(form.fraThreats.isVisible());
    EXPECT_TRUE(form.fraStrength.isVisible());
    EXPECT_FALSE(form.fraWeakness.isVisible());
}

TEST(ShownStep, OfAnUnknownCodeIsNone) {
    Bench bench;
    FrmMain& form = bench.form();
    for (const char* code : {"", "OP", "th"}) showStep(form, codes, code);
    EXPECT_FALSE(form.brainstormSteps.hasVisible());
}

}  // namespace
}  // namespace orvanta::test
