#include <gtest/gtest.h>

#include "analysis_bench.h"
#include "displays.h"
#include "lookup.h"
#include "reports/report_dialog.h"

namespace orvanta::test {
namespace {

class LayoutOn : public testing::TestWithParam<Display> {
protected:
    const Display& display = GetParam();
};
INSTANTIATE_TEST_SUITE_P(Displays, LayoutOn, testing::ValuesIn(displays), NameOfParameter());

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
