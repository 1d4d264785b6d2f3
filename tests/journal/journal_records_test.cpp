#include "journal/journal_records.h"

#include <gtest/gtest.h>

#include "bench.h"
#include "failure_of.h"

namespace orvanta::test {
namespace {

class RecordKeeping : public testing::Test {
protected:
    void push(bool toUndo, const std::string& text, bool clearRedo = false) {
        pushJournalRecord(bench.program(), toUndo, "TAG", 1, "K", text, clearRedo, "");
    }
    const JournalRecords& undoStack() { return bench.form().undoRecords; }
    const JournalRecords& redoStack() { return bench.form().redoRecords; }
    Bench bench;
};

TEST_F(RecordKeeping, JoinsFiveFieldsWithAllDelimitersWritten) {
    pushJournalRecord(bench.program(), true, "ADD_B_S", 2, "S7", "Own fleet", false, "");
    EXPECT_EQ(undoStack()[0], "ADD_B_S<<!~!>>2<<!~!>>S7<<!~!>>Own fleet<<!~!>>");
    pushJournalRecord(bench.program(), true, "EDIT_B_S", 1, "", "", false, "O4|3,");
    EXPECT_EQ(undoStack()[1], "EDIT_B_S<<!~!>>1<<!~!>><<!~!>><<!~!>>O4|3,");
}

TEST_F(RecordKeeping, FillsTheUndoStackFromItsFirstEntry) {
    push(true, "one");
    push(true, "two");
    EXPECT_EQ(undoStack()[0], record("TAG", 1, "K", "one"));
    EXPECT_EQ(undoStack()[1], record("TAG", 1, "K", "two"));
}

TEST_F(RecordKeeping, FillsTheRedoStackFromItsSecondEntry) {
    push(false, "one");
    EXPECT_EQ(redoStack()[0], "");
    EXPECT_EQ(redoStack()[1], record("TAG", 1, "K", "one"));
}

TEST_F(RecordKeeping, UsesTheFirstRedoEntryOnlyThroughTheShiftOfAFullStack) {
    for (int i = 1; i <= 10; ++i) push(false, std::to_string(i));
    EXPECT_EQ(redoStack()[0], "");
    push(false, "11");
    EXPECT_EQ(redoStack()[0], record("TAG", 1, "K", "1"));
    EXPECT_EQ(redoStack()[10], record("TAG", 1, "K", "11"));
}

TEST_F(RecordKeeping, DropsTheOldestRecordOfEitherFullStackWithoutAWord) {
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

TEST_F(RecordKeeping, FillsTheFirstHoleOfAStack) {
    bench.form().undoRecords[1] = "later";
    push(true, "one");
    EXPECT_EQ(undoStack()[0], record("TAG", 1, "K", "one"));
    push(true, "two");
    EXPECT_EQ(undoStack()[2], record("TAG", 1, "K", "two"));
}

TEST_F(RecordKeeping, EmptiesTheRedoStackOnlyWhenTold) {
    push(false, "one");
    push(true, "two", false);
    EXPECT_EQ(bench.redoRecords().size(), 1u);
    push(true, "three", true);
    EXPECT_EQ(bench.redoRecords(), Texts{});
}

TEST_F(RecordKeeping, DoesNotHeedTheWishToEmptyTheRedoStackWhenARecordGoesThere) {
    push(false, "one", true);
    push(false, "two", true);
    EXPECT_EQ(bench.redoRecords().size(), 2u);
}

TEST(RecordTag, NamesTheOperationAndWhereItIsDone) {
    EXPECT_EQ(journalTag(Operation::Delete, endingOf(Session::Brainstorm, StatementKind::Strength)),
              "DEL_B_S");
    EXPECT_EQ(journalTag(Operation::Edit, endingOf(Session::Analyze, StatementKind::Threat)),
              "EDIT_A_T");
    EXPECT_EQ(journalTag(Operation::Add, "OM"), "ADD_OM");
}

TEST(Record, IsTakenApartAtItsDelimiters) {
    const std::string entry = record("ADD_A_O", 3, "O2", "New market", "O2|7,");
    const auto taken = recordFrom(entry);
    ASSERT_TRUE(taken.has_value());
    EXPECT_EQ(taken->operation, Operation::Add);
    EXPECT_EQ(taken->ending, "A_O");
    EXPECT_EQ(taken->position(), 3);
    EXPECT_EQ(taken->key, "O2");
    EXPECT_EQ(taken->text, "New market");
    EXPECT_EQ(taken->extra, "O2|7,");
}

TEST(Record, EndsItsStatementAtADelimiterInsideAndLosesItsExtraField) {
    const std::string entry = record("ADD_A_O", 3, "O2", "one<<!~!>>two", "O2|7,");
    const auto taken = recordFrom(entry);
    ASSERT_TRUE(taken.has_value());
    EXPECT_EQ(taken->text, "one");
    EXPECT_EQ(taken->extra, "");
}

TEST(Record, IsNoneOfFewerThanFourFields) {
    EXPECT_FALSE(recordFrom(""));
    EXPECT_FALSE(recordFrom("ADD_B_S<<!~!>>1<<!~!>>S1"));
    EXPECT_TRUE(recordFrom("ADD_B_S<<!~!>>1<<!~!>>S1<<!~!>>text"));
}

TEST(Record, OfAnUnknownOperationOrPositionSaysSo) {
    const auto taken = recordFrom("MOVE<<!~!>>first<<!~!>><<!~!>>");
    ASSERT_TRUE(taken.has_value());
    EXPECT_EQ(taken->operation, std::nullopt);
    EXPECT_EQ(taken->ending, "");
    EXPECT_EQ(failureOf([&] { taken->position(); }), 5);
}

TEST(RemovedParentRows, ComeBackFromTheExtraFieldAsTheyWentIn) {
    EXPECT_EQ(extraOf({.key = "O4", .position = 3}), "O4|3,");
    const auto rows = removedRowsFrom("O4|3,T1|12,");
    ASSERT_EQ(rows.size(), 2u);
    EXPECT_EQ(rows[0].key, "O4");
    EXPECT_EQ(rows[0].position, 3);
    EXPECT_EQ(rows[1].key, "T1");
    EXPECT_EQ(rows[1].position, 12);
}

TEST(RemovedParentRows, PassOverWhatIsNoEntry) {
    for (const char* extra : {"", ",", "S", "O4", "O4|", "O4|x,", "O4|3|5,"})
        EXPECT_TRUE(removedRowsFrom(extra).empty()) << extra;
    EXPECT_EQ(removedRowsFrom("junk,O4|3,O5|x").size(), 1u);
}

}  // namespace
}  // namespace orvanta::test
