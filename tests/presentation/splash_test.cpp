#include "presentation/splash.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"
#include "displays.h"

namespace orvanta::test {
namespace {

TEST(Splash, StandsForASecond) { EXPECT_EQ(splashMilliseconds, 1000); }

TEST(Splash, IsTheDialogThatIsShown) {
    Bench bench;
    bench.start();
    showSplash(bench.program());
    bench.play({{"do", "activate"}});
    EXPECT_EQ(bench.events(), Json::array({{{"event", "dialog"}, {"form", "frmSplash"}}}));
}

class LayoutOn : public testing::TestWithParam<Display> {
protected:
    const Display& display = GetParam();
};
INSTANTIATE_TEST_SUITE_P(Displays, LayoutOn, testing::ValuesIn(displays), NameOfParameter());

TEST_P(LayoutOn, ShrinksTheSplash) {
    FrmSplash splash;
    shrinkForLargeFonts(splash, display.twipsPerPixel);
    EXPECT_DOUBLE_EQ(splash.width.value, FrmSplash().width.value * display.left);
    EXPECT_DOUBLE_EQ(splash.height.value, FrmSplash().height.value * display.splashHeight);
}

}  // namespace
}  // namespace orvanta::test
