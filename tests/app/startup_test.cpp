#include "app/startup.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"
#include "app/shutdown.h"
#include "presentation/splash.h"

namespace orvanta::test {
namespace {

const Json splashShown{{"event", "dialog"}, {"form", "frmSplash"}};
const Json ended{{"event", "exit"}};

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
    EXPECT_EQ(bench.program().workFolder, "docs/My SWOT");
}

TEST(WorkingFolders, StandAtTheRootWithoutADocumentsFolder) {
    MemoryDisk disk;
    const auto stage = driver::makeModelStage();
    driver::Driver driver(*stage, disk, {"app", "", ""});
    driver.answer(R"({"do":"start"})");
    EXPECT_EQ(driver.program().workFolder, "/My SWOT");
}

TEST(Splash, StandsForASecond) { EXPECT_EQ(splashMilliseconds, 1000); }

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
    EXPECT_EQ(bench.program().workFolder, "docs/My SWOT");
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
    EXPECT_EQ(bench.form().lastPathBSM, "docs/My SWOT");
    EXPECT_EQ(bench.form().lastPathAZE, "docs/My SWOT");
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
    EXPECT_EQ(bench.form().lastPathBSM, "docs/My SWOT");
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

/// A session in each module that the autosave has copied.
void leaveCopies(Bench& bench) {
    bench.start();
    bench.openBrainstorm();
    bench.enter("txtStrength", {"Fleet"});
    bench.play({{"do", "tick"}});
    bench.disk.files["app/analyze.tmp"] = bench.disk.files.at("app/brainstorm.tmp");
    bench.form().editAFlag = true;
    bench.events();
}

Texts copiesLeft(const Bench& bench) {
    Texts left;
    for (const auto& [path, bytes] : bench.disk.files)
        if (path.ends_with(".tmp")) left.push_back(path);
    return left;
}

TEST(EndingTheProgram, LeavesNoTemporaryFileBehind) {
    Bench bench;
    leaveCopies(bench);
    bench.answerMessage("no");
    bench.answerMessage("no");
    bench.click("Quit");
    EXPECT_EQ(bench.events("exit"), Json::array({ended}));
    EXPECT_EQ(copiesLeft(bench), Texts{});
}

TEST(EndingTheProgram, KeepsTheCopyOfTheSessionWhosePromptIsCancelled) {
    Bench bench;
    leaveCopies(bench);
    bench.answerMessage("no");
    bench.answerMessage("cancel");
    bench.click("Quit");
    EXPECT_EQ(bench.events("exit"), Json::array());
    EXPECT_EQ(copiesLeft(bench), Texts{"app/analyze.tmp"});
}

TEST(ClosingTheWindow, StopsTheSoundAsksInOrderAndEnds) {
    Bench bench;
    leaveCopies(bench);
    bench.answerMessage("no");
    bench.answerMessage("no");
    bench.play({{"do", "close"}});
    const Json seen = bench.events();
    ASSERT_EQ(seen.size(), 4u);
    EXPECT_EQ(seen[0], stopped());
    EXPECT_EQ(seen[1]["text"], "Do you want to save changes in brainstorm session?");
    EXPECT_EQ(seen[2]["text"], "Do you want to save changes in analyze session?");
    EXPECT_EQ(seen[3], ended);
}

TEST(ClosingTheWindow, IsRefusedWhenAPromptIsCancelledAndTheSoundHasStoppedAllTheSame) {
    Bench bench;
    bench.start();
    bench.form().editAFlag = true;
    bench.answerMessage("cancel");
    EXPECT_FALSE(closeMainWindow(bench.program()));
    bench.play({{"do", "activate"}});
    const Json seen = bench.events();
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_EQ(seen[0], stopped());
    EXPECT_EQ(seen[1]["answer"], "cancel");
}

TEST(ClosingTheWindow, IsAllowedWithoutChanges) {
    Bench bench;
    bench.start();
    EXPECT_TRUE(closeMainWindow(bench.program()));
}

}  // namespace
}  // namespace orvanta::test
