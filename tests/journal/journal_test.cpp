#include "journal/journal.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"
#include "failure_of.h"

namespace orvanta::test {
namespace {

/// A program with a record on its redo stack, and the one record that a change leaves.
class RecordedChange : public testing::Test {
protected:
    RecordedChange() { program.frmMain.redoRecords[1] = "undone before"; }
    void expectRecord(const std::string& text) {
        EXPECT_EQ(bench.undoRecords(), Texts{text});
        EXPECT_EQ(bench.redoRecords(), Texts{}) << "nothing can be redone behind a new change";
    }
    Bench bench;
    Program& program = bench.program();
};

TEST_F(RecordedChange, OfAnAddedRowTellsToDeleteIt) {
    recordAdded(program, Session::Brainstorm, StatementKind::Strength, {3, "S7", " Own fleet "});
    expectRecord("DEL_B_S<<!~!>>3<<!~!>>S7<<!~!>> Own fleet <<!~!>>");
}

TEST_F(RecordedChange, OfARemovedRowTellsToAddItWithoutBlanksAtItsEnds) {
    recordRemoved(program, Session::Analyze, StatementKind::Weakness, {2, "W5", " Slow  work "});
    expectRecord("ADD_A_W<<!~!>>2<<!~!>>W5<<!~!>>Slow  work<<!~!>>");
}

TEST_F(RecordedChange, OfARemovedParentTellsWhereItStoodInTheMappingList) {
    recordRemoved(program, Session::Analyze, StatementKind::Opportunity, {1, "O4", "Market"}, {6});
    expectRecord("ADD_A_O<<!~!>>1<<!~!>>O4<<!~!>>Market<<!~!>>O4|6,");
}

TEST_F(RecordedChange, OfARemovedParentWithoutAKeyTellsOfEachRowThatWentFromTheMappingList) {
    recordRemoved(program, Session::Analyze, StatementKind::Threat, {1, "", "Rival"}, {2, 4});
    expectRecord("ADD_A_T<<!~!>>1<<!~!>><<!~!>>Rival<<!~!>>|2,|4,");
}

TEST_F(RecordedChange, OfAnEditedAnswerHoldsTheFormerTextAsItStoodAndNoKey) {
    recordEdited(program, Session::Brainstorm, StatementKind::Threat, {4, "T2", " Rival "});
    expectRecord("EDIT_B_T<<!~!>>4<<!~!>><<!~!>> Rival <<!~!>>");
}

TEST_F(RecordedChange, OfAnEditedAnalyzeRowHoldsItsKeyToo) {
    recordEdited(program, Session::Analyze, StatementKind::Opportunity, {4, "O2", " Market "});
    expectRecord("EDIT_A_O<<!~!>>4<<!~!>>O2<<!~!>> Market <<!~!>>");
}

TEST_F(RecordedChange, OfAnUnmappedRowTellsItsKindAndPlaceInTheMappingList) {
    recordUnmapped(program, orvanta::MappingSide::Opportunities, {9, "O1-S3", " Own fleet "});
    expectRecord("ADD_OM<<!~!>>9<<!~!>>O1-S3<<!~!>>Own fleet<<!~!>>S");
}

TEST_F(RecordedChange, OfAnUnmappedWeaknessTellsItsLetter) {
    recordUnmapped(program, orvanta::MappingSide::Threats, {1, "T1-W2", "Slow"});
    expectRecord("ADD_TM<<!~!>>1<<!~!>>T1-W2<<!~!>>Slow<<!~!>>W");
}

TEST_F(RecordedChange, OfAParentTakenOutOfItsMappingListTellsNoLetter) {
    recordUnmapped(program, orvanta::MappingSide::Threats, {1, "T1", "Rival"});
    expectRecord("ADD_TM<<!~!>>1<<!~!>>T1<<!~!>>Rival<<!~!>>");
}

TEST(RecordedPosition, GoesUpToTheLargestOfARecordAndFailsBeyond) {
    EXPECT_EQ(recordedPosition(32767), 32767);
    EXPECT_EQ(failureOf([] { recordedPosition(32768); }), 6);
}

/// A Brainstorm session on its strengths.
class Journal : public testing::Test {
protected:
    Journal() {
        bench.start();
        bench.openBrainstorm();
    }
    void addStrengths(int count) {
        for (int i = 1; i <= count; ++i) bench.enter("txtStrength", {std::to_string(i)});
    }
    void press(const std::string& control, int times) {
        for (int i = 0; i < times; ++i) bench.clickControl(control);
    }
    const JournalRecords& redoStack() { return bench.form().redoRecords; }
    Bench bench;
};

TEST_F(Journal, ForgetsTheFirstOfTwelveChanges) {
    addStrengths(12);
    press("cmdUndo", 11);
    EXPECT_EQ(bench.texts("lvBStrength"), Texts{"1"});
    press("cmdUndo", 1);
    EXPECT_EQ(bench.texts("lvBStrength"), Texts{"1"});
}

TEST_F(Journal, HoldsElevenUndoneChangesInAllEntriesAndRedoesThemInOrder) {
    addStrengths(11);
    press("cmdUndo", 11);
    EXPECT_EQ(bench.texts("lvBStrength"), Texts{});
    for (const std::string& entry : redoStack()) EXPECT_NE(entry, "");
    press("cmdRedo", 11);
    EXPECT_EQ(bench.texts("lvBStrength"),
              (Texts{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10", "11"}));
    EXPECT_EQ(bench.redoRecords(), Texts{});
}

TEST_F(Journal, CannotRedoBehindANewChange) {
    addStrengths(2);
    press("cmdUndo", 1);
    bench.enter("txtStrength", {"other"});
    EXPECT_EQ(bench.redoRecords(), Texts{});
    press("cmdRedo", 1);
    EXPECT_EQ(bench.texts("lvBStrength"), (Texts{"1", "other"}));
}

TEST_F(Journal, ThatIsEmptyLeavesTheButtonsOnScreenAndThePressDoesNothing) {
    const Json before = bench.answerTo({{"do", "state"}})["state"];
    press("cmdUndo", 1);
    press("cmdRedo", 1);
    EXPECT_EQ(bench.events(), Json::array());
    EXPECT_EQ(bench.answerTo({{"do", "state"}})["state"], before);
    EXPECT_TRUE(bench.form().cmdUndo.isVisible());
}

TEST_F(Journal, IsEmptiedOnTheWayToTheNextList) {
    addStrengths(2);
    press("cmdUndo", 1);
    for (int i = 0; i < 3; ++i) bench.click("BNext");
    ASSERT_TRUE(bench.form().fraWeakness.isVisible());
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.redoRecords(), Texts{});
}

TEST_F(Journal, IsKeptFromQuestionToQuestionOfOneList) {
    addStrengths(2);
    press("cmdUndo", 1);
    bench.click("BNext");
    ASSERT_TRUE(bench.form().fraStrength.isVisible());
    EXPECT_EQ(bench.undoRecords().size(), 1u);
    EXPECT_EQ(bench.redoRecords().size(), 1u);
}

TEST_F(Journal, IsEmptiedWhenAModuleIsOpened) {
    addStrengths(1);
    bench.answerMessage("no");
    bench.openAnalyze();
    EXPECT_EQ(bench.undoRecords(), Texts{});
}

TEST_F(Journal, IsEmptiedWhenABrainstormFileIsOpened) {
    bench.click("Brainstorm");
    bench.form().undoRecords[0] = bench.form().redoRecords[1] = "a record";
    bench.disk.files["docs/a.bsm"] = brainstormFile("Ann", "GBS", {"Brand"}, {}, {}, {});
    bench.answerFile("docs/a.bsm");
    bench.click("BOpen");
    EXPECT_EQ(bench.texts("lvBStrength"), Texts{"Brand"});
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.redoRecords(), Texts{});
}

TEST_F(Journal, IsEmptyAfterARecovery) {
    addStrengths(1);
    bench.play({{"do", "tick"}});
    bench.restart();
    EXPECT_EQ(bench.texts("lvBStrength"), Texts{"1"});
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_TRUE(bench.form().cmdUndo.isVisible());
    EXPECT_TRUE(bench.form().cmdRedo.isVisible());
}

TEST_F(Journal, OfAListWithAsManyRowsAsARecordCanNumberTakesNoRecordAndTheListNoRow) {
    for (int i = 0; i < 32767; ++i)
        bench.list("lvBStrength").add({.key = "", .text = "many", .image = 1, .largeImage = 1});
    bench.set("txtStrength", "one too many");
    bench.events();
    bench.play({{"do", "enter"}, {"control", "txtStrength"}});
    EXPECT_EQ(bench.events().back(),
              (Json{{"event", "unhandledError"}, {"number", 6}, {"description", "Overflow"}}));
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.list("lvBStrength").count(), 32767);
}

}  // namespace
}  // namespace orvanta::test
