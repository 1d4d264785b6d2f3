#include "app/startup.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

const Json splashShown{{"event", "dialog"}, {"form", "frmSplash"}};

Json eventsOfStart(Bench& bench) {
    bench.play({{"do", "start"}});
    return bench.events();
}

/// Stores a path as an earlier run would have.
void store(Bench& bench, std::string_view key, const std::string& path) {
    bench.program().platform.settings.write("System", key, path);
}

TEST(WorkingFolders, AreMadeWhenTheyAreMissing) {
    Bench bench;
    bench.start();
    EXPECT_EQ(bench.disk.madeFolders, (Texts{"app/System", "docs/My SWOT"}));
}

TEST(WorkingFolders, AreLeftAloneWhenTheyAreThere) {
    Bench bench;
    bench.disk.folders.insert({"app/System", "docs/My SWOT"});
    bench.start();
    EXPECT_EQ(bench.disk.madeFolders, Texts{});
}

TEST(WorkingFolders, AreMadeSingly) {
    Bench bench;
    bench.disk.folders.insert("app/System");
    bench.start();
    EXPECT_EQ(bench.disk.madeFolders, Texts{"docs/My SWOT"});
}

TEST(WorkingFolders, AreFoundByALaterStart) {
    Bench bench;
    bench.start();
    bench.restart();
    EXPECT_EQ(bench.disk.madeFolders.size(), 2u);
}

TEST(WorkingFolders, ThatCannotBeMadeKeepTheProgramFromNothing) {
    Bench bench;
    bench.disk.unwritable.insert({"app/System", ErrorNumber::PermissionDenied});
    bench.disk.unwritable.insert({"docs/My SWOT", ErrorNumber::DiskFull});
    EXPECT_EQ(eventsOfStart(bench), Json::array({splashShown}));
    EXPECT_TRUE(bench.form().shown);
    EXPECT_EQ(bench.program().workFolder, systemPath("docs/My SWOT"));
}

TEST(WorkingFolders, StandAtTheRootWithoutADocumentsFolder) {
    MemoryDisk disk;
    const auto stage = driver::makeModelStage();
    driver::Driver driver(*stage, disk, {"app", "", ""});
    driver.answer(R"({"do":"start"})");
    EXPECT_EQ(driver.program().workFolder, systemPath("/My SWOT"));
}

TEST(ProgramStart, ShowsTheSplashBeforeItReadsTheHeadings) {
    Bench bench;
    bench.disk.files["app/analyzequestions.txt"] = "no tag at all\r\n";
    const Json seen = eventsOfStart(bench);
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_EQ(seen[0], splashShown);
    EXPECT_EQ(seen[1]["event"], "message");
}

TEST(ProgramStart, RecoversBeforeItReadsTheHeadingsAndShowsTheWindowLast) {
    Texts order;
    Bench bench;
    bench.disk.files["app/brainstorm.tmp"] = brainstormFile("Dana", "GBS", {"Fleet"}, {}, {}, {});
    bench.form().fraBrainstorm.raised.subscribe([&] { order.push_back("recovered"); });
    bench.form().lblATMapping.changed.subscribe([&] { order.push_back("headings"); });
    bench.form().shownChanged.subscribe([&] { order.push_back("shown"); });
    bench.start();
    EXPECT_EQ(order, (Texts{"recovered", "headings", "shown"}));
}

TEST(ProgramStart, KnowsItsWorkFolderOnlyOnceTheWindowHasLoaded) {
    Bench bench;
    std::string whileLoading = "not loaded";
    bench.form().captionChanged.subscribe([&] { whileLoading = bench.program().workFolder; });
    bench.start();
    EXPECT_EQ(whileLoading, "");
    EXPECT_EQ(bench.program().workFolder, systemPath("docs/My SWOT"));
}

TEST(ProgramStart, IsOnTheHomeScreen) {
    Bench bench;
    bench.start();
    EXPECT_FALSE(bench.form().fraBrainstorm.isVisible());
    EXPECT_FALSE(bench.form().fraAnalyze.isVisible());
    EXPECT_FALSE(bench.form().cmdUndo.isVisible());
    EXPECT_FALSE(bench.form().cmdRedo.isVisible());
}

TEST(FirstStart, OffersTheWorkFolderInBothFileDialogs) {
    Bench bench;
    bench.start();
    EXPECT_EQ(bench.form().lastPathBSM, systemPath("docs/My SWOT"));
    EXPECT_EQ(bench.form().lastPathAZE, systemPath("docs/My SWOT"));
}

TEST(LaterStart, OffersTheStoredPaths) {
    Bench bench;
    store(bench, "LastSavedPathBSM", "docs/dana.bsm");
    store(bench, "LastSavedPathAZE", "docs/team.aze");
    bench.restart();
    EXPECT_EQ(bench.form().lastPathBSM, "docs/dana.bsm");
    EXPECT_EQ(bench.form().lastPathAZE, "docs/team.aze");
}

TEST(LaterStart, OffersTheWorkFolderWhereNothingIsStored) {
    Bench bench;
    store(bench, "LastSavedPathAZE", "docs/team.aze");
    bench.restart();
    EXPECT_EQ(bench.form().lastPathBSM, systemPath("docs/My SWOT"));
    EXPECT_EQ(bench.form().lastPathAZE, "docs/team.aze");
}

TEST(LaterStart, NeverTakesUpThePathOfADocument) {
    Bench bench;
    store(bench, "LastSavedPathRTF", "docs/report.rtf");
    bench.restart();
    EXPECT_EQ(bench.form().lastPathRTF, "");
}

TEST(ActiveWindow, KeepsThePathsThatItHolds) {
    Bench bench;
    bench.start();
    bench.form().lastPathBSM = "docs/now.bsm";
    store(bench, "LastSavedPathBSM", "docs/stored.bsm");
    bench.play({{"do", "activate"}});
    EXPECT_EQ(bench.form().lastPathBSM, "docs/now.bsm");
}

TEST(ActiveWindow, TakesUpPathsThatWereStoredSince) {
    Bench bench;
    bench.start();
    bench.form().lastPathBSM.clear();
    store(bench, "LastSavedPathBSM", "docs/stored.bsm");
    bench.play({{"do", "activate"}});
    EXPECT_EQ(bench.form().lastPathBSM, "docs/stored.bsm");
}

}  // namespace
}  // namespace orvanta::test
