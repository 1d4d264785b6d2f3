#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

constexpr const char* mappedRowsFirst =
    "You must first remove all strengths and weaknesses associated with this item";

const MappingSide& opportunities() { return mappingSides()[0]; }
const MappingSide& threats() { return mappingSides()[1]; }

/// Goes back from the threat mapping to the screen of a kind.
void goBackTo(AnalysisBench& bench, const ReviewedKind& kind) {
    for (int i = 6; i > kind.presses; --i) bench.click("ABack");
    bench.events();
}

/// The second statement of a kind is mapped under two opportunities and one threat; a neighbour
/// of the same number but the other kind too.
class PickedStatement : public testing::TestWithParam<ReviewedKind> {
protected:
    PickedStatement() {
        bench.goTo(opportunities());
        bench.map("lvStrengthOp", 2, "lvOpportunity", 1);
        bench.map("lvWeaknessOp", 2, "lvOpportunity", 1);
        const std::string& picked = GetParam().companions[0];
        bench.map(picked, 2, "lvOpportunity", 5);
        bench.next(1);
        bench.map(GetParam().companions[1], 2, "lvThreat", 3);
        goBackTo(bench, kind);
        bench.form().editAFlag = false;
        bench.select(kind.list, 2);
    }
    std::string otherKey() const { return kind.letter == "S" ? "W2" : "S2"; }
    const ReviewedKind& kind = GetParam();
    AnalysisBench bench;
};
INSTANTIATE_TEST_SUITE_P(Of, PickedStatement, testing::ValuesIn(pickedKinds()), NameOfParameter());

TEST_P(PickedStatement, EditedChangesEveryRowMappedFromIt) {
    bench.answerEdit("New");
    bench.click(kind.buttons + "Edit");
    for (const std::string& key : {"O1-" + kind.key(2), "O3-" + kind.key(2)}) {
        StatementList& list = bench.list("lvOpportunity");
        ASSERT_NE(list.positionOf(key), 0) << key;
        EXPECT_EQ(list.row(list.positionOf(key)).text, "New") << key;
    }
    StatementList& list = bench.list("lvThreat");
    EXPECT_EQ(list.row(list.positionOf("T3-" + kind.key(2))).text, "New");
}

TEST_P(PickedStatement, EditedLeavesTheRowsOfOtherStatementsAlone) {
    bench.answerEdit("New");
    bench.click(kind.buttons + "Edit");
    StatementList& list = bench.list("lvOpportunity");
    EXPECT_EQ(list.row(list.positionOf("O1-" + otherKey())).text, "Ann " + otherKey());
    EXPECT_EQ(list.row(1).text, "Ann O1");
}

TEST_P(PickedStatement, RemovedTakesItsRowsOutFromUnderEveryParent) {
    bench.click(kind.buttons + "Remove");
    EXPECT_EQ(bench.messages(), Texts{});
    EXPECT_EQ(bench.keys("lvOpportunity"), (Texts{"O1", "O1-" + otherKey(), "O2", "O3"}));
    EXPECT_EQ(bench.keys("lvThreat"), (Texts{"T1", "T2", "T3"}));
}

TEST_P(PickedStatement, RemovedTakesOutRowsOfItsOwnThatFollowOneAnother) {
    for (const char* parent : {"O7-", "O8-", "O9-"})  // as in a file without their parents
        bench.list("lvOpportunity").add({.key = parent + kind.key(2), .text = "Mapped"});
    bench.click(kind.buttons + "Remove");
    EXPECT_EQ(bench.keys("lvOpportunity"), (Texts{"O1", "O1-" + otherKey(), "O2", "O3"}));
}

TEST_P(PickedStatement, RemovedLeavesNothingOfItsMappingsInTheRecord) {
    bench.click(kind.buttons + "Remove");
    EXPECT_EQ(bench.undoRecords(),
              Texts{record(kind.tag("ADD"), 2, kind.key(2), "Ann " + kind.key(2))});
}

TEST_P(PickedStatement, ComesBackAloneOnUndo) {
    bench.click(kind.buttons + "Remove");
    bench.clickControl("cmdUndo");
    EXPECT_EQ(bench.keys(kind.list), (Texts{kind.key(1), kind.key(2), kind.key(3)}));
    EXPECT_EQ(bench.keys("lvOpportunity"), (Texts{"O1", "O1-" + otherKey(), "O2", "O3"}));
    EXPECT_EQ(bench.keys("lvThreat"), (Texts{"T1", "T2", "T3"}));
}

TEST_P(PickedStatement, AddedBringsNoMappedRow) {
    const Texts before = bench.keys("lvOpportunity");
    bench.enter(kind.box, {"Late"});
    EXPECT_EQ(bench.keys("lvOpportunity"), before);
}

TEST_P(PickedStatement, EditedOutOfStepTellsTheErrorAndKeepsWhatWasDone) {
    bench.list(kind.companions[1]).clear();
    bench.answerEdit("New");
    bench.click(kind.buttons + "Edit");
    EXPECT_EQ(bench.events("message"), Json::array({refusal("[35600] Index out of bounds")}));
    EXPECT_EQ(bench.texts(kind.list)[1], "New");
    EXPECT_EQ(bench.texts(kind.companions[0])[1], "New");
    StatementList& list = bench.list("lvOpportunity");
    EXPECT_EQ(list.row(list.positionOf("O1-" + kind.key(2))).text, "Ann " + kind.key(2));
    EXPECT_EQ(bench.undoRecords().size(), 1u);
}

TEST_P(PickedStatement, RemovedOutOfStepTellsTheErrorAndStaysInItsOwnList) {
    bench.list(kind.companions[1]).clear();
    bench.click(kind.buttons + "Remove");
    EXPECT_EQ(bench.events("message"), Json::array({refusal("[35600] Index out of bounds")}));
    EXPECT_EQ(bench.rows(kind.list).size(), 3u);
    EXPECT_EQ(bench.rows(kind.companions[0]).size(), 2u);
    EXPECT_EQ(bench.undoRecords().size(), 1u);
    EXPECT_FALSE(bench.form().editAFlag);
}

/// The second opportunity has a strength mapped under it, and so has the second threat.
class MappedParent : public testing::TestWithParam<ReviewedKind> {
protected:
    MappedParent() {
        bench.goTo(opportunities());
        bench.map("lvStrengthOp", 1, "lvOpportunity", 2);
        bench.next(1);
        bench.map("lvStrengthTh", 1, "lvThreat", 2);
        goBackTo(bench, kind);
        bench.form().editAFlag = false;
    }
    void dragTheMappedRowBack() {
        bench.next(side.presses - kind.presses);
        bench.drag(side.list, 3, side.strengths, 0);
        for (int i = side.presses; i > kind.presses; --i) bench.click("ABack");
        bench.events();
    }
    const ReviewedKind& kind = GetParam();
    const MappingSide& side = kind.letter == "O" ? opportunities() : threats();
    AnalysisBench bench;
};
INSTANTIATE_TEST_SUITE_P(Of, MappedParent, testing::ValuesIn(parentKinds()), NameOfParameter());

TEST_P(MappedParent, IsNotRemovedAndStaysSelected) {
    bench.select(kind.list, 2);
    bench.click(kind.buttons + "Remove");
    EXPECT_EQ(bench.events("message"), Json::array({refusal(mappedRowsFirst)}));
    EXPECT_EQ(bench.rows(kind.list).size(), 3u);
    EXPECT_EQ(bench.rows(side.list).size(), 4u);
    EXPECT_EQ(bench.list(kind.list).selected(), 2);
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_FALSE(bench.form().editAFlag);
}

TEST_P(MappedParent, CanGoOnceItsRowsWereDraggedBack) {
    dragTheMappedRowBack();
    bench.select(kind.list, 2);
    bench.click(kind.buttons + "Remove");
    EXPECT_EQ(bench.messages(), Texts{});
    EXPECT_EQ(bench.keys(side.list), (Texts{kind.key(1), kind.key(3)}));
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("ADD"), 2, kind.key(2),
                                                "Ann " + kind.key(2), kind.key(2) + "|2,")});
}

TEST_P(MappedParent, NamesItsRowOfTheMappingListInTheRecordOfItsRemoval) {
    bench.select(kind.list, 3);
    bench.click(kind.buttons + "Remove");
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("ADD"), 3, kind.key(3),
                                                "Bo " + kind.key(1), kind.key(3) + "|4,")});
}

TEST_P(MappedParent, EditedLeavesTheRowsUnderItAlone) {
    bench.select(kind.list, 2);
    bench.answerEdit("New");
    bench.click(kind.buttons + "Edit");
    EXPECT_EQ(bench.texts(side.list),
              (Texts{"Ann " + kind.key(1), "New", "Ann S1", "Bo " + kind.key(1)}));
}

TEST_P(MappedParent, IsFoundByItsKeyAfterItWasRanked) {
    bench.drag(kind.list, 1, kind.list, 3);
    bench.select(kind.list, 3);
    bench.answerEdit("New");
    bench.click(kind.buttons + "Edit");
    EXPECT_EQ(bench.texts(side.list)[0], "New");
    bench.click(kind.buttons + "Remove");
    EXPECT_EQ(bench.keys(side.list)[0], kind.key(2));
    EXPECT_EQ(bench.undoRecords().back(),
              record(kind.tag("ADD"), 3, kind.key(1), "New", kind.key(1) + "|1,"));
}

TEST_P(MappedParent, AddedStandsBelowTheRowsMappedUnderTheLastOne) {
    bench.next(side.presses - kind.presses);
    bench.map(side.strengths, 1, side.list, 4);
    for (int i = side.presses; i > kind.presses; --i) bench.click("ABack");
    bench.enter(kind.box, {"Late"});
    EXPECT_EQ(bench.keys(side.list).back(), kind.key(4));
    EXPECT_EQ(bench.row(side.list, 6).indent, 0);
}

TEST_P(MappedParent, GoesThoughALongerKeyThatBeginsLikeItsOwnHasRows) {
    bench.enter(kind.box, {"4", "5", "6", "7", "8", "9", "10", "11"});
    bench.next(side.presses - kind.presses);
    bench.map(side.strengths, 2, side.list, 12);
    for (int i = side.presses; i > kind.presses; --i) bench.click("ABack");
    ASSERT_EQ(bench.keys(side.list).back(), kind.key(11) + "-S2");
    bench.select(kind.list, 1);
    bench.events();
    bench.click(kind.buttons + "Remove");
    EXPECT_EQ(bench.messages(), Texts{});
    EXPECT_EQ(bench.keys(kind.list).front(), kind.key(2));
}

TEST_P(MappedParent, WithoutARowInTheMappingListGoesWithAnEmptyExtraField) {
    bench.list(side.list).remove(1);
    bench.select(kind.list, 1);
    bench.click(kind.buttons + "Remove");
    EXPECT_EQ(bench.undoRecords(),
              Texts{record(kind.tag("ADD"), 1, kind.key(1), "Ann " + kind.key(1))});
}

}  // namespace
}  // namespace orvanta::test
