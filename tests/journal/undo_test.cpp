#include <gtest/gtest.h>

#include "bench.h"

namespace orvanta::test {
namespace {

TEST(BrainstormUndo, BringsARemovedStatementBackAtItsPlaceWithoutAKey) {
    Bench bench;
    bench.start();
    bench.openBrainstorm("optMP");
    bench.enter("txtStrength", {"Loyal customers", "Own fleet"});
    bench.select("lvBStrength", 1);
    bench.click("BSRemove");
    bench.clickControl("cmdUndo");
    EXPECT_EQ(bench.rows("lvBStrength"), (ShownRows{{"", "Loyal customers"}, {"S2", "Own fleet"}}));
}

}  // namespace
}  // namespace orvanta::test
