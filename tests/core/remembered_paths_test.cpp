#include "core/remembered_paths.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

TEST(RememberedPath, IsStoredForLaterRunsAndHeldInThisOne) {
    Bench bench;
    bench.start();
    rememberPath(bench.program(), documentPath, "docs/report.rtf");
    bench.play({{"do", "activate"}});
    EXPECT_EQ(bench.events(), Json::array({setting("LastSavedPathRTF", "docs/report.rtf")}));
    EXPECT_EQ(bench.form().lastPathRTF, "docs/report.rtf");
}

TEST(RememberedPath, ThatARunHoldsIsNotTakenUpAgain) {
    Bench bench;
    bench.start();
    rememberPath(bench.program(), analyzePath, "docs/stored.aze");
    bench.form().lastPathAZE = "docs/held.aze";
    takeUpPath(bench.program(), analyzePath);
    EXPECT_EQ(bench.form().lastPathAZE, "docs/held.aze");
    bench.form().lastPathAZE.clear();
    takeUpPath(bench.program(), analyzePath);
    EXPECT_EQ(bench.form().lastPathAZE, "docs/stored.aze");
}

TEST(RememberedPath, IsTheWorkFolderWhereNoneWasStored) {
    Bench bench;
    bench.start();
    bench.form().lastPathBSM.clear();
    takeUpPath(bench.program(), brainstormPath);
    EXPECT_EQ(bench.form().lastPathBSM, systemPath("docs/My SWOT"));
}

}  // namespace
}  // namespace orvanta::test
