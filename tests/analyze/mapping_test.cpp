#include <gtest/gtest.h>

#include "analysis_bench.h"
#include "full_analysis.h"

namespace orvanta::test {
namespace {

constexpr Colour green{0, 120, 60};
constexpr Colour red{200, 0, 0};

/// A mapping screen with three parents and three statements of each kind to pick.
class Mapping : public testing::TestWithParam<MappingSide> {
protected:
    Mapping() { bench.goTo(side); }
    void mapStrength(int row, int at) { bench.map(side.strengths, row, side.list, at); }
    void mapWeakness(int row, int at) { bench.map(side.weaknesses, row, side.list, at); }
    std::string key(int parent, const std::string& child) const {
        return side.parent(parent) + "-" + child;
    }
    Texts keys() { return bench.keys(side.list); }
    void dragOver(const std::string& from, int row, const Texts& over, const std::string& to,
                  int at) {
        bench.play(
            {{"do", "drag"}, {"list", from}, {"row", row}, {"over", over}, {"to", to}, {"at", at}});
    }

    const MappingSide& side = GetParam();
    AnalysisBench bench;
    const std::string p1 = side.parent(1), p2 = side.parent(2), p3 = side.parent(3);
};
INSTANTIATE_TEST_SUITE_P(Of, Mapping, testing::ValuesIn(mappingSides()), NameOfParameter());

TEST_P(Mapping, OfAStrengthLandsDirectlyBeneathTheParent) {
    mapStrength(2, 2);
    EXPECT_EQ(bench.rows(side.list)[2], (ShownRow{key(2, "S2"), "Ann S2"}));
    EXPECT_EQ(keys(), (Texts{p1, p2, key(2, "S2"), p3}));
}

TEST_P(Mapping, OfAStrengthIsGreenIndentedLabelledAndSelected) {
    mapStrength(3, 1);
    const Row& row = bench.row(side.list, 2);
    EXPECT_EQ(row.image, 1);
    EXPECT_EQ(row.largeImage, 1);
    EXPECT_EQ(row.subItem, "[Bo]: ");
    EXPECT_EQ(row.colour, green);
    EXPECT_EQ(row.indent, 2);
    EXPECT_EQ(bench.list(side.list).selected(), 2);
}

TEST_P(Mapping, OfAWeaknessIsRedIndentedLabelledAndSelected) {
    mapWeakness(3, 1);
    const Row& row = bench.row(side.list, 2);
    EXPECT_EQ(row.key, key(1, "W3"));
    EXPECT_EQ(row.image, 2);
    EXPECT_EQ(row.largeImage, 2);
    EXPECT_EQ(row.subItem, "[Bo]: ");
    EXPECT_EQ(row.colour, red);
    EXPECT_EQ(row.indent, 2);
    EXPECT_EQ(bench.list(side.list).selected(), 2);
}

TEST_P(Mapping, LeavesParentAndPickingListAsTheyWere) {
    mapStrength(1, 1);
    EXPECT_EQ(bench.keys(side.strengths), (Texts{"S1", "S2", "S3"}));
    EXPECT_EQ(bench.row(side.list, 1).indent, 0);
    EXPECT_FALSE(bench.row(side.list, 1).colour);
}

TEST_P(Mapping, MarksTheSessionForgetsTheDragAndWritesNoRecord) {
    mapStrength(1, 1);
    EXPECT_TRUE(bench.form().editAFlag);
    EXPECT_EQ(bench.form().dragSection, "");
    EXPECT_EQ(bench.undoRecords(), Texts{});
}

TEST_P(Mapping, OfASecondStrengthLandsAboveTheFirst) {
    mapStrength(1, 1);
    mapStrength(2, 1);
    EXPECT_EQ(keys(), (Texts{p1, key(1, "S2"), key(1, "S1"), p2, p3}));
}

TEST_P(Mapping, OfWeaknessesLandsBelowTheStrengthsTheLastFirst) {
    mapStrength(1, 1);
    mapStrength(2, 1);
    mapWeakness(1, 1);
    mapWeakness(2, 1);
    EXPECT_EQ(keys(), (Texts{p1, key(1, "S2"), key(1, "S1"), key(1, "W2"), key(1, "W1"), p2, p3}));
}

TEST_P(Mapping, UnderAParentWithOnlyWeaknessesLandsDirectlyBelowIt) {
    mapWeakness(1, 2);
    mapStrength(1, 2);
    EXPECT_EQ(keys(), (Texts{p1, p2, key(2, "S1"), key(2, "W1"), p3}));
    bench.drag(side.list, 3, side.strengths, 0);
    mapWeakness(2, 2);
    EXPECT_EQ(keys(), (Texts{p1, p2, key(2, "W2"), key(2, "W1"), p3}));
}

TEST_P(Mapping, OfAWeaknessUnderTheLastParentLandsAtTheEndBehindItsStrengths) {
    mapStrength(1, 3);
    mapStrength(2, 3);
    mapWeakness(1, 3);
    EXPECT_EQ(keys(), (Texts{p1, p2, p3, key(3, "S2"), key(3, "S1"), key(3, "W1")}));
}

TEST_P(Mapping, OfTheSamePairIsRefusedTheSecondTime) {
    mapStrength(1, 1);
    bench.form().editAFlag = false;
    bench.events();
    mapStrength(1, 1);
    EXPECT_EQ(bench.events("message"),
              Json::array({information("This statement have already been mapped with this " +
                                       side.parentWord + ".")}));
    EXPECT_EQ(keys(), (Texts{p1, key(1, "S1"), p2, p3}));
    EXPECT_EQ(bench.form().dragSection, "S");
    EXPECT_FALSE(bench.form().editAFlag);
}

TEST_P(Mapping, OfTheSameStatementUnderAnotherParentIsAccepted) {
    mapStrength(1, 1);
    mapStrength(1, 3);
    EXPECT_EQ(keys(), (Texts{p1, key(1, "S1"), p2, key(2, "S1"), p3}));
    EXPECT_EQ(bench.messages(), Texts{});
}

TEST_P(Mapping, OfAStrengthAndAWeaknessOfOneNumberAreTwo) {
    mapStrength(3, 1);
    mapWeakness(3, 1);
    EXPECT_EQ(keys(), (Texts{p1, key(1, "S3"), key(1, "W3"), p2, p3}));
}

TEST_P(Mapping, OnAMappedRowDoesNothingAndSaysNothing) {
    mapStrength(1, 1);
    bench.form().editAFlag = false;
    bench.events();
    mapWeakness(2, 2);
    EXPECT_EQ(bench.events(), Json::array());
    EXPECT_EQ(keys().size(), 4u);
    EXPECT_FALSE(bench.form().editAFlag);
    EXPECT_EQ(bench.form().dragSection, "W");
}

TEST_P(Mapping, BesideAllRowsDoesNothing) {
    bench.events();
    mapWeakness(2, 0);
    EXPECT_EQ(bench.events(), Json::array());
    EXPECT_EQ(keys().size(), 3u);
    EXPECT_FALSE(bench.form().editAFlag);
    EXPECT_EQ(bench.form().dragSection, "W");
}

TEST_P(Mapping, TakesTheSelectionOfTheLastPickingListThatTheDragCrossed) {
    bench.select(side.weaknesses, 3);
    dragOver(side.strengths, 1, {side.weaknesses}, side.list, 1);
    EXPECT_EQ(keys()[1], key(1, "W3"));
}

TEST_P(Mapping, ComesFromItsOwnListWhenTheDragCrossedAnotherAndReturned) {
    bench.select(side.weaknesses, 3);
    dragOver(side.strengths, 1, {side.weaknesses, side.strengths}, side.list, 1);
    EXPECT_EQ(keys()[1], key(1, "S1"));
}

TEST_P(Mapping, DoesNothingWhenTheCrossedListHasNothingSelected) {
    dragOver(side.strengths, 1, {side.weaknesses}, side.list, 1);
    EXPECT_EQ(keys().size(), 3u);
    EXPECT_EQ(bench.form().dragSection, "W");
    EXPECT_FALSE(bench.form().editAFlag);
    EXPECT_EQ(bench.messages(), Texts{});
}

TEST_P(Mapping, WithoutAPickedStatementOnlyMarksTheSession) {
    bench.drag(side.list, 2, side.list, 1);
    EXPECT_EQ(keys(), (Texts{p1, p2, p3}));
    EXPECT_TRUE(bench.form().editAFlag);
}

TEST_P(Mapping, MadeByAMappedRowDraggedAcrossAPickingListTakesWhatIsSelectedThere) {
    mapStrength(1, 1);
    dragOver(side.list, 2, {side.strengths}, side.list, 4);
    EXPECT_EQ(keys(), (Texts{p1, key(1, "S1"), p2, p3, key(3, "S1")}));
}

TEST_P(Mapping, ThatIsDraggedBackOntoItsOwnKindGoesWithoutMarkOrRecord) {
    mapStrength(1, 1);
    bench.form().editAFlag = false;
    bench.events();
    bench.drag(side.list, 2, side.strengths, 1);
    EXPECT_EQ(keys(), (Texts{p1, p2, p3}));
    EXPECT_EQ(bench.events(), Json::array());
    EXPECT_FALSE(bench.form().editAFlag);
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.list(side.list).selected(), 0);
}

TEST_P(Mapping, OfAWeaknessGoesBackToTheWeaknesses) {
    mapWeakness(1, 1);
    bench.drag(side.list, 2, side.weaknesses, 0);
    EXPECT_EQ(keys(), (Texts{p1, p2, p3}));
}

TEST_P(Mapping, StaysWhenItIsDroppedOnTheOtherKind) {
    mapStrength(1, 1);
    bench.drag(side.list, 2, side.weaknesses, 1);
    mapWeakness(1, 3);
    bench.drag(side.list, 4, side.strengths, 1);
    EXPECT_EQ(keys(), (Texts{p1, key(1, "S1"), p2, key(2, "W1"), p3}));
    EXPECT_EQ(bench.messages(), Texts{});
}

TEST_P(Mapping, IsTakenBackByADragFromThePickingListDroppedThereRightAfterIt) {
    mapStrength(1, 1);
    bench.drag(side.strengths, 2, side.strengths, 3);
    EXPECT_EQ(keys(), (Texts{p1, p2, p3}));
}

TEST_P(Mapping, NeverTakesAParentBack) {
    for (const std::string& list : {side.strengths, side.weaknesses})
        bench.drag(side.list, 1, list, 1);
    EXPECT_EQ(keys(), (Texts{p1, p2, p3}));
}

TEST_P(Mapping, IsLeftAloneByADropWithNothingSelectedInTheMappingList) {
    mapStrength(1, 1);
    bench.select(side.list, 0);
    bench.drag(side.strengths, 1, side.strengths, 1);
    EXPECT_EQ(keys().size(), 4u);
}

TEST_P(Mapping, KeepsTheDragSectionThroughADropOnAPickingList) {
    bench.drag(side.weaknesses, 1, side.weaknesses, 2);
    EXPECT_EQ(bench.form().dragSection, "W");
}

/// A mapping screen over a file whose keys hold a "-" of their own.
class MappingOfOddKeys : public testing::TestWithParam<MappingSide> {
protected:
    void open(const std::string& parent, const std::string& strength) {
        const std::string word = side.letter == "O" ? "OPPORTUNITY" : "THREAT";
        bench.disk.files["docs/odd.aze"] = lines(
            {"<STRENGTH>", rowLine(strength, "", "A strength"), "</STRENGTH>",
             "<" + word + "MAPPING>", rowLine(parent, "", "A parent"), "</" + word + "MAPPING>"});
        bench.answerFile("docs/odd.aze");
        bench.click("OAFile");
        bench.next(side.presses - 1);
    }
    Json mapTwice() {
        bench.map(side.strengths, 1, side.list, 1);
        bench.events();
        bench.map(side.strengths, 1, side.list, 1);
        return bench.events();
    }

    const MappingSide& side = GetParam();
    const Json keyNotUnique = Json::array({{{"event", "unhandledError"},
                                            {"number", 35602},
                                            {"description", "Key is not unique in collection"}}});
    AnalysisBench bench;
};
INSTANTIATE_TEST_SUITE_P(Of, MappingOfOddKeys, testing::ValuesIn(mappingSides()),
                         NameOfParameter());

TEST_P(MappingOfOddKeys, KnowsNoPairOfAStatementWhoseKeyMakesAThirdPart) {
    open(side.parent(1), "S-1");
    EXPECT_EQ(mapTwice(), keyNotUnique);
    EXPECT_EQ(bench.keys(side.list), (Texts{side.parent(1), side.parent(1) + "-S-1"}));
}

TEST_P(MappingOfOddKeys, KnowsNoPairOfAParentWhoseKeyHasThreeParts) {
    open("A-B-C", "S1");
    EXPECT_EQ(mapTwice(), keyNotUnique);
    EXPECT_EQ(bench.keys(side.list), (Texts{"A-B-C", "A-B-C-S1"}));
}

TEST(MappingAcrossTheSides, IsNoneByADragSectionLeftFromTheOtherSide) {
    AnalysisBench bench;
    bench.next(5);
    bench.drag("lvStrengthOp", 2, "lvOpportunity", 0);
    bench.next(1);
    bench.drag("lvThreat", 1, "lvThreat", 2);
    EXPECT_EQ(bench.keys("lvThreat"), (Texts{"T1", "T2", "T3"}));
    EXPECT_EQ(bench.form().dragSection, "S");
    EXPECT_FALSE(bench.form().editAFlag);
}

TEST(MappingAcrossTheSides, TakesWhatIsSelectedOnItsOwnSide) {
    AnalysisBench bench;
    bench.next(5);
    bench.drag("lvStrengthOp", 2, "lvOpportunity", 0);
    bench.next(1);
    bench.select("lvStrengthTh", 3);
    bench.drag("lvThreat", 1, "lvThreat", 2);
    EXPECT_EQ(bench.keys("lvThreat"), (Texts{"T1", "T2", "T2-S3", "T3"}));
}

/// Rows taken out by the command, which leaves a record for undo.
class Unmapping : public Mapping {
protected:
    void unmap(int row) {
        bench.select(side.list, row);
        bench.form().editAFlag = false;
        bench.form().redoRecords[1] = "a record";
        bench.events();
        bench.play({{"do", "call"}, {"routine", side.unmapRoutine}});
    }
    std::string tag() const { return "ADD_" + side.tagEnding; }
};
INSTANTIATE_TEST_SUITE_P(Of, Unmapping, testing::ValuesIn(mappingSides()), NameOfParameter());

TEST_P(Unmapping, OfAStrengthRecordsItAndMarksTheSession) {
    mapStrength(2, 2);
    unmap(3);
    EXPECT_EQ(keys(), (Texts{p1, p2, p3}));
    EXPECT_EQ(bench.undoRecords(), Texts{record(tag(), 3, key(2, "S2"), "Ann S2", "S")});
    EXPECT_EQ(bench.redoRecords(), Texts{});
    EXPECT_TRUE(bench.form().editAFlag);
    EXPECT_EQ(bench.messages(), Texts{});
}

TEST_P(Unmapping, OfAWeaknessRecordsIt) {
    mapWeakness(3, 1);
    unmap(2);
    EXPECT_EQ(bench.undoRecords(), Texts{record(tag(), 2, key(1, "W3"), "Bo W1", "W")});
}

TEST_P(Unmapping, OfABareParentRecordsItAndKeepsTheStatement) {
    mapStrength(1, 1);
    unmap(3);
    EXPECT_EQ(keys(), (Texts{p1, key(1, "S1"), p3}));
    EXPECT_EQ(bench.undoRecords(), Texts{record(tag(), 3, p2, "Ann " + p2)});
    EXPECT_EQ(bench.keys(side.letter == "O" ? "lvAOpportunity" : "lvAThreat"), (Texts{p1, p2, p3}));
}

TEST_P(Unmapping, OfAParentWithMappedRowsIsRefused) {
    mapStrength(1, 1);
    unmap(1);
    EXPECT_EQ(bench.events("message"),
              Json::array({refusal("You must first remove all strengths and weaknesses "
                                   "associated with this item")}));
    EXPECT_EQ(keys().size(), 4u);
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.redoRecords(), Texts{"a record"});
    EXPECT_FALSE(bench.form().editAFlag);
}

TEST_P(Unmapping, WithNothingSelectedDoesNothing) {
    mapStrength(1, 1);
    unmap(0);
    EXPECT_EQ(keys().size(), 4u);
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_FALSE(bench.form().editAFlag);
}

TEST_P(Unmapping, BeyondTheRowsThatARecordCanNumberTakesNothingOut) {
    StatementList& list = bench.list(side.list);
    while (list.count() < 32766) list.add({.key = "", .text = "many", .image = 3, .largeImage = 3});
    list.add({.key = key(3, "S1"), .text = "last", .image = 1, .largeImage = 1});
    list.add({.key = key(3, "S2"), .text = "beyond", .image = 1, .largeImage = 1});
    unmap(32768);
    const Json unhandled{{"event", "unhandledError"}, {"number", 6}, {"description", "Overflow"}};
    EXPECT_EQ(bench.events(), Json::array({unhandled}));
    EXPECT_EQ(list.count(), 32768);
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.redoRecords(), Texts{"a record"});
    EXPECT_FALSE(bench.form().editAFlag);
    unmap(32767);
    EXPECT_EQ(list.count(), 32767);
    EXPECT_EQ(bench.undoRecords(), Texts{record(tag(), 32767, key(3, "S1"), "last", "S")});
}

}  // namespace
}  // namespace orvanta::test
