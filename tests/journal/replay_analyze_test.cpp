#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

class AnalyzeUndo : public testing::TestWithParam<ReviewedKind> {
protected:
    AnalyzeUndo() { bench.goTo(kind); }
    void remove(int row) {
        bench.select(kind.list, row);
        bench.click(kind.buttons + "Remove");
    }
    void edit(int row, const std::string& text) {
        bench.select(kind.list, row);
        bench.answerEdit(text);
        bench.click(kind.buttons + "Edit");
    }
    void undo() { bench.clickControl("cmdUndo"); }
    void redo() { bench.clickControl("cmdRedo"); }
    void giveRecord(const std::string& text) { bench.form().undoRecords[0] = text; }
    std::string text(int row) { return row == 3 ? "Bo " + kind.key(1) : "Ann " + kind.key(row); }

    const ReviewedKind& kind = GetParam();
    AnalysisBench bench;
    const Texts allKeys{kind.key(1), kind.key(2), kind.key(3)};
};
INSTANTIATE_TEST_SUITE_P(Of, AnalyzeUndo, testing::ValuesIn(reviewedKinds()), NameOfParameter());

TEST_P(AnalyzeUndo, BringsARemovedStatementBackInEveryListUnderItsKey) {
    remove(2);
    undo();
    EXPECT_EQ(bench.rows(kind.list)[1], (ShownRow{kind.key(2), text(2)}));
    EXPECT_EQ(bench.keys(kind.list), allKeys);
    for (const std::string& copy : kind.companions) EXPECT_EQ(bench.keys(copy), allKeys) << copy;
}

TEST_P(AnalyzeUndo, BringsARemovedStatementBackWithItsPictureButNobodysLabel) {
    remove(2);
    undo();
    for (const std::string& list : {kind.list, kind.companions.front(), kind.companions.back()}) {
        EXPECT_EQ(bench.row(list, 2).image, kind.image) << list;
        EXPECT_EQ(bench.row(list, 2).largeImage, kind.image) << list;
        EXPECT_EQ(bench.row(list, 2).subItem, "") << list;
    }
}

TEST_P(AnalyzeUndo, OfARemovalIsRedoneInEveryList) {
    remove(2);
    undo();
    redo();
    const Texts left{kind.key(1), kind.key(3)};
    EXPECT_EQ(bench.keys(kind.list), left);
    for (const std::string& copy : kind.companions) EXPECT_EQ(bench.keys(copy), left) << copy;
}

TEST_P(AnalyzeUndo, GivesAnEditedStatementItsOldTextInEveryListAndRedoTheNewOne) {
    edit(2, "New");
    undo();
    EXPECT_EQ(bench.texts(kind.list)[1], text(2));
    for (const std::string& copy : kind.companions) EXPECT_EQ(bench.texts(copy)[1], text(2));
    EXPECT_EQ(bench.redoRecords(), Texts{record(kind.tag("EDIT"), 2, kind.key(2), "New")});
    redo();
    EXPECT_EQ(bench.texts(kind.list)[1], "New");
    for (const std::string& copy : kind.companions) EXPECT_EQ(bench.texts(copy)[1], "New");
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("EDIT"), 2, kind.key(2), text(2))});
}

TEST_P(AnalyzeUndo, ChangesNeitherMarkNorSelectionNorFocus) {
    remove(1);
    bench.select(kind.list, 2);
    bench.form().editAFlag = false;
    bench.events();
    undo();
    EXPECT_EQ(bench.events(), Json::array());
    EXPECT_FALSE(bench.form().editAFlag);
    EXPECT_EQ(bench.list(kind.list).selected(), 3);
}

TEST_P(AnalyzeUndo, OfAnAdditionIsDroppedWhereAnotherTextStands) {
    giveRecord(record(kind.tag("DEL"), 2, kind.key(2), "Z"));
    undo();
    EXPECT_EQ(bench.keys(kind.list), allKeys);
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.redoRecords(), Texts{});
}

TEST_P(AnalyzeUndo, OfARemovalWhoseKeyIsTakenAddsNothingButCountsAsUndone) {
    giveRecord(record(kind.tag("ADD"), 1, kind.key(3), "Z"));
    undo();
    EXPECT_EQ(bench.keys(kind.list), allKeys);
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.redoRecords(), Texts{record(kind.tag("DEL"), 1, kind.key(3), "Z")});
    EXPECT_EQ(bench.messages(), Texts{});
}

TEST_P(AnalyzeUndo, OfAnAdditionBeyondTheListCountsAsUndone) {
    giveRecord(record(kind.tag("DEL"), 9, kind.key(9), "Z"));
    undo();
    EXPECT_EQ(bench.keys(kind.list), allKeys);
    EXPECT_EQ(bench.redoRecords(), Texts{record(kind.tag("ADD"), 9, kind.key(9), "Z")});
}

class PickedUndo : public AnalyzeUndo {};
INSTANTIATE_TEST_SUITE_P(Of, PickedUndo, testing::ValuesIn(pickedKinds()), NameOfParameter());

TEST_P(PickedUndo, OfAnAdditionTakesItFromAllThreeListsAndRedoPutsItThereAgain) {
    bench.enter(kind.box, {"Late"});
    undo();
    EXPECT_EQ(bench.keys(kind.list), allKeys);
    for (const std::string& copy : kind.companions) EXPECT_EQ(bench.keys(copy), allKeys) << copy;
    redo();
    for (const std::string& list : {kind.list, kind.companions[0], kind.companions[1]})
        EXPECT_EQ(bench.rows(list).back(), (ShownRow{kind.key(4), "Late"})) << list;
}

TEST_P(PickedUndo, OfAnEditReachesTheMappedRowsOfBothSides) {
    bench.next(5 - kind.presses);
    bench.map(kind.companions[0], 2, "lvOpportunity", 1);
    bench.map(kind.companions[0], 2, "lvOpportunity", 4);
    bench.next(1);
    bench.map(kind.companions[1], 2, "lvThreat", 2);
    for (int i = 6; i > kind.presses; --i) bench.click("ABack");
    edit(2, "New");
    undo();
    EXPECT_EQ(bench.texts("lvOpportunity"), (Texts{"Ann O1", text(2), "Ann O2", "Bo O1", text(2)}));
    EXPECT_EQ(bench.texts("lvThreat"), (Texts{"Ann T1", "Ann T2", text(2), "Bo T1"}));
    redo();
    EXPECT_EQ(bench.texts("lvOpportunity"), (Texts{"Ann O1", "New", "Ann O2", "Bo O1", "New"}));
    EXPECT_EQ(bench.texts("lvThreat"), (Texts{"Ann T1", "Ann T2", "New", "Bo T1"}));
}

TEST_P(PickedUndo, OfARemovalBringsNoMappedRowBackAndWritesAPlainCounterRecord) {
    bench.next(5 - kind.presses);
    bench.map(kind.companions[0], 2, "lvOpportunity", 1);
    for (int i = 5; i > kind.presses; --i) bench.click("ABack");
    remove(2);
    undo();
    EXPECT_EQ(bench.keys("lvOpportunity"), (Texts{"O1", "O2", "O3"}));
    EXPECT_EQ(bench.redoRecords(), Texts{record(kind.tag("DEL"), 2, kind.key(2), text(2))});
}

TEST_P(PickedUndo, GoesOnWithTheOtherListsWhereOneStepFails) {
    remove(2);
    bench.list(kind.companions[0]).clear();
    undo();
    EXPECT_EQ(bench.keys(kind.list), allKeys);
    EXPECT_EQ(bench.keys(kind.companions[0]), Texts{});
    EXPECT_EQ(bench.keys(kind.companions[1]), allKeys);
    EXPECT_EQ(bench.messages(), Texts{});
}

class ParentUndo : public AnalyzeUndo {
protected:
    const std::string mappingList = kind.companions.front();
};
INSTANTIATE_TEST_SUITE_P(Of, ParentUndo, testing::ValuesIn(parentKinds()), NameOfParameter());

TEST_P(ParentUndo, OfAnAdditionLeavesTheRowInTheMappingListAndRedoAddsToTheMainListAlone) {
    bench.enter(kind.box, {"Late"});
    undo();
    EXPECT_EQ(bench.keys(kind.list), allKeys);
    EXPECT_EQ(bench.rows(mappingList).back(), (ShownRow{kind.key(4), "Late"}));
    redo();
    EXPECT_EQ(bench.keys(kind.list).back(), kind.key(4));
    EXPECT_EQ(bench.rows(mappingList).size(), 4u);
}

TEST_P(ParentUndo, OfARemovalKeepsTheExtraFieldBothWays) {
    remove(2);
    undo();
    const std::string extra = kind.key(2) + "|2,";
    EXPECT_EQ(bench.redoRecords(), Texts{record(kind.tag("DEL"), 2, kind.key(2), text(2), extra)});
    redo();
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("ADD"), 2, kind.key(2), text(2), extra)});
}

TEST_P(ParentUndo, PutsEveryRowOfTheExtraFieldIntoTheMappingList) {
    giveRecord(record(kind.tag("ADD"), 1, kind.key(7), "Z",
                      kind.key(7) + "|1,,broken,a|b|c," + kind.key(8) + "|2,"));
    undo();
    EXPECT_EQ(bench.rows(mappingList)[0], (ShownRow{kind.key(7), "Z"}));
    EXPECT_EQ(bench.rows(mappingList)[1], (ShownRow{kind.key(8), "Z"}));
    EXPECT_EQ(bench.rows(mappingList).size(), 5u);
    EXPECT_EQ(bench.row(mappingList, 1).image, kind.image);
}

TEST_P(ParentUndo, PassesAnEntryOfTheExtraFieldOverThatCannotBeDone) {
    giveRecord(record(kind.tag("ADD"), 1, kind.key(7), "Z",
                      kind.key(7) + "|99," + kind.key(1) + "|1," + kind.key(8) + "|2,"));
    undo();
    EXPECT_EQ(bench.keys(mappingList), (Texts{kind.key(1), kind.key(8), kind.key(2), kind.key(3)}));
}

TEST_P(ParentUndo, TakesTheRowsOfTheExtraFieldAwayOneAfterTheOther) {
    giveRecord(record(kind.tag("DEL"), 1, kind.key(1), text(1), "x|1,y|1,"));
    undo();
    EXPECT_EQ(bench.keys(kind.list), (Texts{kind.key(2), kind.key(3)}));
    EXPECT_EQ(bench.keys(mappingList), Texts{kind.key(3)});
}

TEST_P(ParentUndo, LosesTheExtraFieldWithATextThatHoldsTheDelimiter) {
    edit(2, "left<<!~!>>right");
    bench.form().undoRecords = {};
    remove(2);
    undo();
    EXPECT_EQ(bench.rows(kind.list)[1], (ShownRow{kind.key(2), "left"}));
    EXPECT_EQ(bench.keys(mappingList), (Texts{kind.key(1), kind.key(3)}));
    EXPECT_EQ(bench.redoRecords(), Texts{record(kind.tag("DEL"), 2, kind.key(2), "left")});
}

TEST_P(ParentUndo, OfAnEditReachesTheMappingListByKeyAndTheMainListByPosition) {
    edit(1, "New");
    bench.drag(kind.list, 1, kind.list, 3);
    undo();
    EXPECT_EQ(bench.texts(kind.list), (Texts{text(1), text(3), "New"}));
    EXPECT_EQ(bench.texts(mappingList), (Texts{text(1), text(2), text(3)}));
    EXPECT_EQ(bench.redoRecords(), Texts{record(kind.tag("EDIT"), 1, kind.key(1), text(2))});
}

TEST_P(ParentUndo, OfAnAdditionIsDroppedOnceTheRowWasMovedAway) {
    bench.enter(kind.box, {"Late"});
    bench.drag(kind.list, 4, kind.list, 1);
    undo();
    EXPECT_EQ(bench.rows(kind.list).size(), 4u);
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.redoRecords(), Texts{});
}

}  // namespace
}  // namespace orvanta::test
