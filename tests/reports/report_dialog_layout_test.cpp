#include <gtest/gtest.h>

#include "kept_layout.h"
#include "reports/report_dialog.h"

namespace orvanta::test {

TEST(ReportDialogLayout, IsAsDesigned) {
    const FrmReportType form;
    expectKeptLayout("report", form.width, form.height, form.controls);
}

}  // namespace orvanta::test
