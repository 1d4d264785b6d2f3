#include "desktop/auto_save_timer.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include "bench.h"

namespace orvanta::test {

TEST(AutoSaveTimer, TicksEveryThirtySeconds) {
    Bench bench;
    const desktop::AutoSaveTimer timer(bench.program());
    EXPECT_TRUE(timer.isActive());
    EXPECT_FALSE(timer.isSingleShot());
    EXPECT_EQ(timer.interval(), 30'000);
}

TEST(AutoSaveTimer, KeepsACopyOfAnUnsavedSession) {
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    bench.enter("txtStrength", {"Own fleet"});
    desktop::AutoSaveTimer timer(bench.program());
    QCoreApplication::processEvents();
    EXPECT_FALSE(bench.disk.files.contains("app/brainstorm.tmp"));
    timer.setInterval(0);
    QCoreApplication::processEvents();
    EXPECT_TRUE(bench.disk.files.contains("app/brainstorm.tmp"));
}

}  // namespace orvanta::test
