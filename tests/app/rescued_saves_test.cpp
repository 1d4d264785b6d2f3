#include "app/rescued_saves.h"

#include <chrono>

#include "bench.h"
#include "real_disk.h"

namespace orvanta::test {
namespace {

using namespace std::chrono_literals;

class FailedSave : public RealDisk {
protected:
    FailedSave() {
        saves.changed.subscribe([this] { ++changes; });
    }

    static RescueStore::Time noon() { return std::chrono::sys_days{2026y / 11 / 21} + 12h; }

    const std::string copies = folder / "rescue";
    RescuedSaves saves{RescueStore(copies, noon)};
    int changes = 0;
};

TEST_F(FailedSave, LeavesACopyOfTheSession) {
    saves.sessionNotWritten("/media/stick/team.bsm", "a session");
    EXPECT_EQ(folder.read("rescue/2026-11-21 12-00-00.000 team.bsm"), "a session");
}

TEST_F(FailedSave, SaysThatTheFileWasNotWrittenAndWhereTheCopyLies) {
    saves.sessionNotWritten("/media/stick/team.bsm", "a session");
    EXPECT_EQ(saves.line(), "team.bsm was not written. A copy is in " + copies);
    EXPECT_EQ(saves.details(), "/media/stick/team.bsm was not written. A copy is in " +
                                   systemPath(copies + "/2026-11-21 12-00-00.000 team.bsm"));
    EXPECT_EQ(changes, 1);
}

TEST_F(FailedSave, ReadsNamesInTheCodePageOfTheProgram) {
    saves.sessionNotWritten("/media/stick/B\xfcro.bsm", "a session");
    EXPECT_TRUE(saves.line().starts_with("Büro.bsm was not written.")) << saves.line();
    EXPECT_EQ(folder.read("rescue/2026-11-21 12-00-00.000 Büro.bsm"), "a session");
}

TEST_F(FailedSave, SaysThatNoCopyCouldBeKept) {
    folder.write("rescue", "a file in the folder's place");
    saves.sessionNotWritten("/media/stick/team.bsm", "a session");
    EXPECT_EQ(saves.line(), "team.bsm was not written, and no copy could be kept.");
    EXPECT_EQ(saves.details(), "/media/stick/team.bsm was not written, and no copy could be kept.");
}

TEST_F(FailedSave, KeepsTheProgramsOwnCopyWhereThereIsNoRoomForAnother) {
    folder.write("rescue", "a file in the folder's place");
    folder.write("brainstorm.tmp", "as it was at the last tick");
    folder.write("analyze.tmp", "an analysis");
    RescuedSaves withOwnCopies{RescueStore(copies, noon), folder.path()};
    withOwnCopies.sessionNotWritten("/media/stick/team.bsm", "a session");
    EXPECT_EQ(folder.read("2026-11-21 12-00-00.000 brainstorm.bsm"), "as it was at the last tick");
    EXPECT_EQ(folder.read("2026-11-21 12-00-00.000 analyze.aze"), "an analysis");
    EXPECT_EQ(withOwnCopies.line(), "team.bsm was not written. A copy is in " + folder.path());
}

TEST_F(FailedSave, KeepsTheNewestOfTheRunningCopiesThatTheProgramsFolderDidNotTake) {
    RescuedSaves withOwnCopies{RescueStore(copies, noon), folder.path()};
    withOwnCopies.copyNotWritten(folder / "analyze.tmp", "former");
    withOwnCopies.copyNotWritten(folder / "analyze.tmp", "newest");
    EXPECT_EQ(folder.read("rescue/2026-11-21 12-00-00.001 analyze.aze"), "newest");
    EXPECT_FALSE(std::filesystem::exists(folder / "rescue/2026-11-21 12-00-00.000 analyze.aze"));
    EXPECT_EQ(withOwnCopies.line(),
              "The running copy of this session was not written. A copy is in " + copies);
}

TEST_F(FailedSave, SaysThatARunningCopyCouldNotBeKeptAnywhere) {
    folder.write("rescue", "a file in the folder's place");
    saves.copyNotWritten("/app/brainstorm.tmp", "a session");
    EXPECT_EQ(saves.line(),
              "The running copy of this session was not written, and no copy could be kept.");
}

TEST_F(FailedSave, KeepsAnAnalysisThatAnotherOneReplaces) {
    saves.analysisReplaced("statements");
    EXPECT_EQ(folder.read("rescue/2026-11-21 12-00-00.000 analyze.aze"), "statements");
    EXPECT_EQ(saves.line(), "The former analysis was replaced. A copy is in " + copies);
}

TEST_F(FailedSave, KeepsASessionOnceThatDidNotComeUpAtTheStart) {
    RescuedSaves withOwnCopies{RescueStore(copies, noon), folder.path()};
    Bench bench;
    withOwnCopies.keepSessionsNotShown(bench.form());
    EXPECT_EQ(withOwnCopies.line(), "");
    folder.write("brainstorm.tmp", "on screen");
    folder.write("analyze.tmp", "not on screen");
    bench.form().editFlag = true;
    for (int start = 0; start < 2; ++start) withOwnCopies.keepSessionsNotShown(bench.form());
    EXPECT_EQ(withOwnCopies.line(),
              "An unsaved session could not be shown. A copy is in " + copies);
    std::filesystem::remove(folder / "analyze.tmp");
    EXPECT_EQ(folder.read("rescue/2026-11-21 12-00-00.000 analyze.aze"), "not on screen");
    EXPECT_EQ(folder.names(), (Names{"brainstorm.tmp", "rescue"}));
    EXPECT_FALSE(std::filesystem::exists(folder / "rescue/2026-11-21 12-00-00.001 analyze.aze"));
}

TEST_F(FailedSave, NeedsNoCopyOfADocument) {
    saves.documentNotWritten("/media/stick/team.rtf");
    EXPECT_EQ(saves.line(), "team.rtf was not written.");
    EXPECT_EQ(saves.details(), "/media/stick/team.rtf was not written.");
    EXPECT_FALSE(std::filesystem::exists(copies));
}

TEST_F(FailedSave, IsToldUntilThePersonGoesOn) {
    saves.forget();
    EXPECT_EQ(changes, 0);
    saves.documentNotWritten("/media/stick/team.rtf");
    saves.sessionNotWritten("/media/stick/team.bsm", "a session");
    EXPECT_TRUE(saves.line().starts_with("team.bsm"));
    saves.forget();
    EXPECT_EQ(saves.line() + saves.details(), "");
    EXPECT_EQ(changes, 3);
}

}  // namespace
}  // namespace orvanta::test
