#include "app/shortcuts.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {

namespace {

/// Presses a key as the window does: the first shortcut of it whose control can be reached.
bool pressKey(Bench& bench, std::string_view keys) {
    for (const Shortcut& shortcut : shortcutsOf(bench.form()))
        if (shortcut.keys == keys && shortcut.control->isReachable()) {
            shortcut.choose(bench.program());
            return true;
        }
    return false;
}

}  // namespace

TEST(Shortcuts, GoOnAndBackInTheOpenModule) {
    AnalysisBench bench;
    ASSERT_TRUE(pressKey(bench, "Ctrl+Return"));
    ASSERT_TRUE(pressKey(bench, "PgDown"));
    EXPECT_EQ(bench.stepsShown(), Texts{"fraAWeakness"});
    ASSERT_TRUE(pressKey(bench, "PgUp"));
    EXPECT_EQ(bench.stepsShown(), Texts{"fraASSummary"});
}

TEST(Shortcuts, UndoAndRedoOnlyWhereTheirButtonsAre) {
    AnalysisBench bench;
    bench.next(1);
    bench.enter("txtAStrength", {"New"});
    const int count = bench.list("lvAStrength").count();
    ASSERT_TRUE(pressKey(bench, "Ctrl+Z"));
    EXPECT_EQ(bench.list("lvAStrength").count(), count - 1);
    ASSERT_TRUE(pressKey(bench, "Ctrl+Y"));
    EXPECT_EQ(bench.list("lvAStrength").count(), count);
    bench.next(4);
    EXPECT_FALSE(pressKey(bench, "Ctrl+Z"));
}

TEST(Shortcuts, GoNowhereWhileNoModuleIsOpen) {
    Bench bench;
    bench.start();
    for (const char* keys : {"Ctrl+Return", "PgDown", "PgUp", "Ctrl+Z", "Ctrl+Y"})
        EXPECT_FALSE(pressKey(bench, keys)) << keys;
    EXPECT_TRUE(pressKey(bench, "F1"));
}

}  // namespace orvanta::test
