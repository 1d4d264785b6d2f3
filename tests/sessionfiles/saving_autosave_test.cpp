#include <gtest/gtest.h>

#include "analysis_bench.h"
#include "saving_bench.h"

namespace orvanta::test {
namespace {

const std::string warning =
    "Warning! Could not create autosave file. Auto Save feature is disabled.";

class Autosave : public testing::TestWithParam<SavedSession>, protected BegunSession {
protected:
    Autosave() : BegunSession(GetParam()) {}

    void tick() { bench.play({{"do", "tick"}}); }
    void lockTheProgramFolder() {
        for (const SavedSession& locked : savedSessions())
            bench.disk.unwritable.emplace(locked.temporaryFile, ErrorNumber::PermissionDenied);
    }
    std::string copy() { return bench.disk.files[session.temporaryFile]; }
    Panel& panel() { return *bench.control(session.panel).as<Panel>(); }
};
INSTANTIATE_TEST_SUITE_P(Of, Autosave, testing::ValuesIn(savedSessions()), NameOfParameter{});

TEST_P(Autosave, CopiesAChangedSessionWithItsStepAtTheNextTick) {
    EXPECT_FALSE(hasCopy());
    tick();
    EXPECT_EQ(bench.events(), Json::array());
    EXPECT_EQ(copy(), session.copy());
}

TEST_P(Autosave, WritesTheWholeCopyAnewAtEachTick) {
    tick();
    bench.clickControl("cmdUndo");
    tick();
    EXPECT_LT(copy().size(), session.copy().size());
    bench.clickControl("cmdRedo");
    tick();
    EXPECT_EQ(copy(), session.copy());
}

TEST_P(Autosave, LeavesTheSessionUnsaved) {
    tick();
    EXPECT_TRUE(isChanged());
}

TEST_P(Autosave, MakesNoCopyOfASessionWithoutChanges) {
    bench.form().*session.changed = false;
    tick();
    EXPECT_FALSE(hasCopy());
}

TEST_P(Autosave, MakesNoCopyOfASessionOutOfSight) {
    panel().hide();
    tick();
    EXPECT_FALSE(hasCopy());
    EXPECT_EQ(bench.events(), Json::array());
}

TEST_P(Autosave, WarnsOnceThatNoCopyCanBeMade) {
    lockTheProgramFolder();
    tick();
    EXPECT_EQ(bench.events(), Json::array({refusal(warning)}));
    EXPECT_TRUE(bench.form().autoSaveFailed);
    tick();
    tick();
    EXPECT_EQ(bench.events(), Json::array());
}

TEST_P(Autosave, GoesOnTryingAfterTheWarning) {
    lockTheProgramFolder();
    tick();
    bench.events();
    bench.disk.unwritable.clear();
    tick();
    EXPECT_EQ(copy(), session.copy());
    EXPECT_EQ(bench.events(), Json::array());
}

TEST_P(Autosave, IsNotSeenToFailWhileAnEarlierCopyIsThere) {
    bench.disk.files[session.temporaryFile] = "earlier";
    lockTheProgramFolder();
    tick();
    EXPECT_EQ(bench.events(), Json::array());
    EXPECT_FALSE(bench.form().autoSaveFailed);
    EXPECT_EQ(copy(), "earlier");
}

TEST_P(Autosave, KeepsTheEarlierCopyWholeWhenTheDiskIsFull) {
    tick();
    const std::string earlier = copy();
    bench.clickControl("cmdUndo");
    bench.disk.capacity = 10;
    tick();
    EXPECT_EQ(copy(), earlier);
}

TEST_P(Autosave, WarnsAgainInTheNextRun) {
    lockTheProgramFolder();
    tick();
    bench.restart();
    session.begin(bench);
    bench.events();
    tick();
    EXPECT_EQ(bench.messages(), Texts{warning});
}

TEST_P(Autosave, BringsTheSessionBackUnaskedAfterACrash) {
    tick();
    bench.restart();
    EXPECT_EQ(bench.messages(), Texts{});
    EXPECT_TRUE(isChanged());
    EXPECT_TRUE(panel().isVisible());
    EXPECT_TRUE(bench.form().cmdUndo.isVisible());
    EXPECT_TRUE(bench.form().cmdRedo.isVisible());
    EXPECT_EQ(bench.undoRecords(), Texts{});
    tick();
    EXPECT_EQ(copy(), session.copy());
}

TEST_P(Autosave, KeepsItsCopyWhenThePromptIsCancelled) {
    tick();
    bench.answerMessage("cancel");
    bench.click("Quit");
    EXPECT_EQ(copy(), session.copy());
}

/// Both sessions have unsaved changes; the brainstorm session was left for the analysis.
class AutosaveOfTwoSessions : public testing::Test, protected BegunSession {
protected:
    AutosaveOfTwoSessions() : BegunSession(savedSessions().back()) { bench.form().editFlag = true; }

    void tick() { bench.play({{"do", "tick"}}); }
};

TEST_F(AutosaveOfTwoSessions, CopiesNeitherWhileTheBrainstormSessionIsOutOfSight) {
    tick();
    EXPECT_FALSE(bench.disk.files.contains("app/brainstorm.tmp"));
    EXPECT_FALSE(bench.disk.files.contains("app/analyze.tmp"));
}

TEST_F(AutosaveOfTwoSessions, CopiesTheBrainstormSessionAloneWhileItIsInSight) {
    bench.form().fraBrainstorm.show();
    tick();
    EXPECT_TRUE(bench.disk.files.contains("app/brainstorm.tmp"));
    EXPECT_FALSE(bench.disk.files.contains("app/analyze.tmp"));
}

TEST_F(AutosaveOfTwoSessions, WarnsOnceForBoth) {
    bench.form().editFlag = false;
    for (const SavedSession& locked : savedSessions())
        bench.disk.unwritable.emplace(locked.temporaryFile, ErrorNumber::PermissionDenied);
    tick();
    bench.form().editFlag = true;
    bench.form().fraBrainstorm.show();
    tick();
    EXPECT_EQ(bench.messages(), Texts{warning});
}

}  // namespace
}  // namespace orvanta::test
