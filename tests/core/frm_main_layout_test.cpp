#include <gtest/gtest.h>

#include "bench.h"
#include "kept_layout.h"

namespace orvanta::test {

TEST(MainWindowLayout, IsAsDesigned) {
    Bench bench;
    const FrmMain& form = bench.form();
    expectKeptLayout("main", form.width, form.height, form.controls);
}

}  // namespace orvanta::test
