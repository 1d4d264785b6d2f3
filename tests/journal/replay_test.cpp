#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

struct EnteredKind {
    std::string name, letter;
    int image;
    std::string box, list, buttons;
    int presses;  // of Next, from the strengths

    std::string key(int number) const { return letter + std::to_string(number); }
    std::string tag(const std::string& operation) const { return operation + "_B_" + letter; }
};
std::ostream& operator<<(std::ostream& out, const EnteredKind& kind) { return out << kind.name; }

/// A Brainstorm list with the statements A, B and C.
class BrainstormUndo : public testing::TestWithParam<EnteredKind> {
protected:
    BrainstormUndo() {
        bench.start();
        bench.openBrainstorm();
        for (int i = 0; i < kind.presses; ++i) bench.click("BNext");
        bench.enter(kind.box, {"A", "B", "C"});
        bench.form().undoRecords = {};
        bench.form().editFlag = false;
    }
    void edit(int row, const std::string& text) {
        bench.select(kind.list, row);
        bench.answerEdit(text);
        bench.click(kind.buttons + "Edit");
    }
    void remove(int row) {
        bench.select(kind.list, row);
        bench.click(kind.buttons + "Remove");
    }
    void add(const std::string& text) { bench.enter(kind.box, {text}); }
    void undo() { bench.clickControl("cmdUndo"); }
    void redo() { bench.clickControl("cmdRedo"); }
    ShownRows rows() { return bench.rows(kind.list); }
    void giveRecord(const std::string& text) { bench.form().undoRecords[0] = text; }

    const EnteredKind& kind = GetParam();
    Bench bench;
    const ShownRow a{kind.key(1), "A"}, b{kind.key(2), "B"}, c{kind.key(3), "C"};
};
INSTANTIATE_TEST_SUITE_P(
    Of, BrainstormUndo,
    testing::Values(EnteredKind{"Strength", "S", 1, "txtStrength", "lvBStrength", "BS", 0},
                    EnteredKind{"Weakness", "W", 2, "txtWeakness", "lvBWeakness", "BW", 3},
                    EnteredKind{"Opportunity", "O", 3, "txtOpportunity", "lvBOpportunity", "BO", 6},
                    EnteredKind{"Threat", "T", 4, "txtThreat", "lvBThreat", "BT", 9}),
    NameOfParameter());

TEST_P(BrainstormUndo, BringsARemovedStatementBackAtItsPlaceWithoutAKey) {
    remove(2);
    undo();
    EXPECT_EQ(rows(), (ShownRows{a, {"", "B"}, c}));
    EXPECT_EQ(bench.list(kind.list).row(2).image, kind.image);
    EXPECT_EQ(bench.list(kind.list).row(2).largeImage, kind.image);
}

TEST_P(BrainstormUndo, OfARemovalCanBeRedoneAndUndoneAgain) {
    remove(2);
    undo();
    EXPECT_EQ(bench.redoRecords(), Texts{record(kind.tag("DEL"), 2, b.key, "B")});
    redo();
    EXPECT_EQ(rows(), (ShownRows{a, c}));
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("ADD"), 2, b.key, "B")});
    undo();
    EXPECT_EQ(rows(), (ShownRows{a, {"", "B"}, c}));
}

TEST_P(BrainstormUndo, TakesAnAddedStatementAwayAndRedoGivesItBackWithoutAKey) {
    add("D");
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("DEL"), 4, kind.key(4), "D")});
    undo();
    EXPECT_EQ(rows(), (ShownRows{a, b, c}));
    EXPECT_EQ(bench.redoRecords(), Texts{record(kind.tag("ADD"), 4, kind.key(4), "D")});
    redo();
    EXPECT_EQ(rows(), (ShownRows{a, b, c, {"", "D"}}));
}

TEST_P(BrainstormUndo, GivesAnEditedStatementItsOldTextAndRedoTheNewOne) {
    edit(2, "New");
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("EDIT"), 2, "", "B")});
    undo();
    EXPECT_EQ(rows(), (ShownRows{a, b, c}));
    EXPECT_EQ(bench.redoRecords(), Texts{record(kind.tag("EDIT"), 2, "", "New")});
    redo();
    EXPECT_EQ(rows()[1], (ShownRow{b.key, "New"}));
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("EDIT"), 2, "", "B")});
}

TEST_P(BrainstormUndo, ReplaysOneRecordAPress) {
    remove(3);
    remove(2);
    undo();
    EXPECT_EQ(rows(), (ShownRows{a, {"", "B"}}));
    EXPECT_EQ(bench.undoRecords().size(), 1u);
}

TEST_P(BrainstormUndo, ChangesNeitherMarkNorSelectionNorFocus) {
    remove(1);
    bench.select(kind.list, 2);
    bench.form().editFlag = false;
    bench.events();
    undo();
    EXPECT_EQ(bench.events(), Json::array());
    EXPECT_FALSE(bench.form().editFlag);
    EXPECT_EQ(bench.list(kind.list).selectedRow()->text, "C");
    redo();
    EXPECT_FALSE(bench.form().editFlag);
}

TEST_P(BrainstormUndo, OfAnAdditionIsDroppedWhereAnotherTextStandsNow) {
    giveRecord(record(kind.tag("DEL"), 1, kind.key(9), "Z"));
    undo();
    EXPECT_EQ(rows(), (ShownRows{a, b, c}));
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.redoRecords(), Texts{});
}

TEST_P(BrainstormUndo, ComparesTextsInLetterCaseToo) {
    giveRecord(record(kind.tag("DEL"), 1, a.key, "a"));
    undo();
    EXPECT_EQ(rows().size(), 3u);
}

TEST_P(BrainstormUndo, OfAnEditSetsTheTextOfWhateverRowStandsThere) {
    giveRecord(record(kind.tag("EDIT"), 3, "", "Z"));
    undo();
    EXPECT_EQ(rows()[2], (ShownRow{c.key, "Z"}));
    EXPECT_EQ(bench.redoRecords(), Texts{record(kind.tag("EDIT"), 3, "", "C")});
}

TEST_P(BrainstormUndo, OfAnEditWritesACounterRecordWithoutAnExtraField) {
    giveRecord(record(kind.tag("EDIT"), 3, "", "Z", "more"));
    undo();
    EXPECT_EQ(bench.redoRecords(), Texts{record(kind.tag("EDIT"), 3, "", "C")});
}

TEST_P(BrainstormUndo, OfAnAdditionBeyondTheListChangesNothingButCountsAsUndone) {
    giveRecord(record(kind.tag("DEL"), 9, kind.key(9), "Z"));
    undo();
    EXPECT_EQ(rows(), (ShownRows{a, b, c}));
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.redoRecords(), Texts{record(kind.tag("ADD"), 9, kind.key(9), "Z")});
}

TEST_P(BrainstormUndo, OfARemovalBeyondTheListChangesNothingButCountsAsUndone) {
    giveRecord(record(kind.tag("ADD"), 5, kind.key(9), "Z"));
    undo();
    EXPECT_EQ(rows(), (ShownRows{a, b, c}));
    EXPECT_EQ(bench.redoRecords(), Texts{record(kind.tag("DEL"), 5, kind.key(9), "Z")});
}

TEST_P(BrainstormUndo, OfARemovalRightBehindTheListAppends) {
    giveRecord(record(kind.tag("ADD"), 4, kind.key(9), "Z"));
    undo();
    EXPECT_EQ(rows(), (ShownRows{a, b, c, {"", "Z"}}));
}

TEST_P(BrainstormUndo, OfAnEditBeyondTheListChangesNothingButCountsAsUndone) {
    giveRecord(record(kind.tag("EDIT"), 9, "", "Z"));
    undo();
    EXPECT_EQ(rows(), (ShownRows{a, b, c}));
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.redoRecords(), Texts{record(kind.tag("EDIT"), 9, "", "")});
    EXPECT_EQ(bench.messages(), Texts{});
}

TEST_P(BrainstormUndo, DropsTheRecordOfAnAddedTextThatHoldsTheDelimiter) {
    add("left<<!~!>>right");
    undo();
    EXPECT_EQ(rows().back().text, "left<<!~!>>right");
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.redoRecords(), Texts{});
}

TEST_P(BrainstormUndo, BringsOnlyThePartAheadOfADelimiterBack) {
    add("left<<!~!>>right");
    remove(4);
    undo();
    EXPECT_EQ(rows().back(), (ShownRow{"", "left"}));
    EXPECT_EQ(bench.redoRecords(), Texts{record(kind.tag("DEL"), 4, kind.key(4), "left")});
}

TEST_P(BrainstormUndo, DropsARecordOfThreeFields) {
    giveRecord(kind.tag("ADD") + "<<!~!>>1<<!~!>>K");
    undo();
    EXPECT_EQ(rows(), (ShownRows{a, b, c}));
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.redoRecords(), Texts{});
}

TEST_P(BrainstormUndo, ReplaysARecordOfFourFields) {
    giveRecord(kind.tag("ADD") + "<<!~!>>1<<!~!>>K<<!~!>>Z");
    undo();
    EXPECT_EQ(rows().front(), (ShownRow{"", "Z"}));
}

class UnknownTag : public testing::TestWithParam<std::string> {};
INSTANTIATE_TEST_SUITE_P(Of, UnknownTag,
                         testing::Values("ADD_B_X", "add_B_S", "MOVE_B_S", "ADD_C_S", "EDIT_OM",
                                         "ADD", "B_S", "DEL_B_S ", "EDIT_TM"));

TEST_P(UnknownTag, DoesNothingAndItsRecordIsGone) {
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    bench.enter("txtStrength", {"A"});
    bench.form().undoRecords[0] = record(GetParam(), 1, "S1", "A");
    bench.clickControl("cmdUndo");
    EXPECT_EQ(bench.rows("lvBStrength"), (ShownRows{{"S1", "A"}}));
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.redoRecords(), Texts{});
}

class StaleBrainstormUndo : public testing::TestWithParam<EnteredKind> {};
INSTANTIATE_TEST_SUITE_P(
    Of, StaleBrainstormUndo,
    testing::Values(EnteredKind{"Opportunity", "O", 3, "txtOpportunity", "lvBOpportunity", "BO", 6},
                    EnteredKind{"Threat", "T", 4, "txtThreat", "lvBThreat", "BT", 9}),
    NameOfParameter());

TEST_P(StaleBrainstormUndo, OfAnAdditionIsDroppedOnceTheRowWasMovedAway) {
    const EnteredKind& kind = GetParam();
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    for (int i = 0; i < kind.presses; ++i) bench.click("BNext");
    bench.enter(kind.box, {"A", "B", "C"});
    bench.drag(kind.list, 3, kind.list, 1);
    bench.clickControl("cmdUndo");
    EXPECT_EQ(bench.texts(kind.list), (Texts{"A", "C", "B"}));
    EXPECT_EQ(bench.undoRecords().size(), 2u);
    EXPECT_EQ(bench.redoRecords(), Texts{});
}

TEST_P(StaleBrainstormUndo, OfAnEditHitsTheRowThatStandsThereAfterAMove) {
    const EnteredKind& kind = GetParam();
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    for (int i = 0; i < kind.presses; ++i) bench.click("BNext");
    bench.enter(kind.box, {"A", "B", "C"});
    bench.select(kind.list, 3);
    bench.answerEdit("New");
    bench.click(kind.buttons + "Edit");
    bench.drag(kind.list, 3, kind.list, 1);
    bench.clickControl("cmdUndo");
    EXPECT_EQ(bench.texts(kind.list), (Texts{"A", "New", "C"}));
}

}  // namespace
}  // namespace orvanta::test
