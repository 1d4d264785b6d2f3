#include <gtest/gtest.h>

#include "analysis_bench.h"
#include "journal/journal_records.h"

namespace orvanta::test {
namespace {

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
    void push(bool toUndo, const std::string& text, bool clearRedo = false) {
        pushJournalRecord(bench.program(), toUndo, "TAG", 1, "K", text, clearRedo, "");
    }
    const JournalRecords& undoStack() { return bench.form().undoRecords; }
    const JournalRecords& redoStack() { return bench.form().redoRecords; }
    Bench bench;
};

TEST_F(Journal, JoinsFiveFieldsWithAllDelimitersWritten) {
    pushJournalRecord(bench.program(), true, "ADD_B_S", 2, "S7", "Own fleet", false, "");
    EXPECT_EQ(undoStack()[0], "ADD_B_S<<!~!>>2<<!~!>>S7<<!~!>>Own fleet<<!~!>>");
    pushJournalRecord(bench.program(), true, "EDIT_B_S", 1, "", "", false, "O4|3,");
    EXPECT_EQ(undoStack()[1], "EDIT_B_S<<!~!>>1<<!~!>><<!~!>><<!~!>>O4|3,");
}

TEST_F(Journal, FillsTheUndoStackFromItsFirstEntry) {
    push(true, "one");
    push(true, "two");
    EXPECT_EQ(undoStack()[0], record("TAG", 1, "K", "one"));
    EXPECT_EQ(undoStack()[1], record("TAG", 1, "K", "two"));
}

TEST_F(Journal, FillsTheRedoStackFromItsSecondEntry) {
    push(false, "one");
    EXPECT_EQ(redoStack()[0], "");
    EXPECT_EQ(redoStack()[1], record("TAG", 1, "K", "one"));
}

TEST_F(Journal, UsesTheFirstRedoEntryOnlyThroughTheShiftOfAFullStack) {
    for (int i = 1; i <= 10; ++i) push(false, std::to_string(i));
    EXPECT_EQ(redoStack()[0], "");
    push(false, "11");
    EXPECT_EQ(redoStack()[0], record("TAG", 1, "K", "1"));
    EXPECT_EQ(redoStack()[10], record("TAG", 1, "K", "11"));
}

TEST_F(Journal, DropsTheOldestRecordOfEitherFullStackWithoutAWord) {
    for (int i = 1; i <= 12; ++i) {
        push(true, std::to_string(i));
        push(false, std::to_string(i));
    }
    for (const JournalRecords* stack : {&undoStack(), &redoStack()}) {
        EXPECT_EQ(stack->front(), record("TAG", 1, "K", "2"));
        EXPECT_EQ(stack->back(), record("TAG", 1, "K", "12"));
    }
    EXPECT_EQ(bench.messages(), Texts{});
}

TEST_F(Journal, FillsTheFirstHoleOfAStack) {
    bench.form().undoRecords[1] = "later";
    push(true, "one");
    EXPECT_EQ(undoStack()[0], record("TAG", 1, "K", "one"));
    push(true, "two");
    EXPECT_EQ(undoStack()[2], record("TAG", 1, "K", "two"));
}

TEST_F(Journal, EmptiesTheRedoStackOnlyWhenTold) {
    push(false, "one");
    push(true, "two", false);
    EXPECT_EQ(bench.redoRecords().size(), 1u);
    push(true, "three", true);
    EXPECT_EQ(bench.redoRecords(), Texts{});
}

TEST_F(Journal, DoesNotHeedTheWishToEmptyTheRedoStackWhenARecordGoesThere) {
    push(false, "one", true);
    push(false, "two", true);
    EXPECT_EQ(bench.redoRecords().size(), 2u);
}

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

TEST_F(Journal, OfAListWithMoreRowsThanARecordCanNumberTakesNoRecord) {
    for (int i = 0; i < 32767; ++i)
        bench.list("lvBStrength").add({.key = "", .text = "many", .image = 1, .largeImage = 1});
    bench.set("txtStrength", "one too many");
    bench.events();
    bench.play({{"do", "enter"}, {"control", "txtStrength"}});
    EXPECT_EQ(bench.events().back(),
              (Json{{"event", "unhandledError"}, {"number", 6}, {"description", "Overflow"}}));
    EXPECT_EQ(bench.undoRecords(), Texts{});
}

}  // namespace
}  // namespace orvanta::test
