#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

constexpr Colour green{0, 120, 60};
constexpr Colour red{200, 0, 0};

/// A mapping screen to which the program came back by a recovery, so that Undo and Redo are
/// shown there. Under the first parent stand the second strength and the third weakness.
class UnmappingUndo : public testing::TestWithParam<MappingSide> {
protected:
    UnmappingUndo() {
        bench.goTo(side);
        bench.map(side.strengths, 2, side.list, 1);
        bench.map(side.weaknesses, 3, side.list, 1);
        bench.play({{"do", "tick"}});
        bench.restart();
        bench.form().editAFlag = false;
    }
    void unmap(int row) {
        bench.select(side.list, row);
        bench.play({{"do", "call"}, {"routine", side.unmapRoutine}});
    }
    void undo() { bench.clickControl("cmdUndo"); }
    void redo() { bench.clickControl("cmdRedo"); }
    Texts keys() { return bench.keys(side.list); }
    std::string add() const { return "ADD_" + side.tagEnding; }
    std::string del() const { return "DEL_" + side.tagEnding; }

    const MappingSide& side = GetParam();
    AnalysisBench bench;
    const std::string p1 = side.parent(1), p2 = side.parent(2), p3 = side.parent(3);
    const std::string strength = p1 + "-S2", weakness = p1 + "-W3";
    const Texts allKeys{p1, strength, weakness, p2, p3};
};
INSTANTIATE_TEST_SUITE_P(Of, UnmappingUndo, testing::ValuesIn(mappingSides()), NameOfParameter());

TEST_P(UnmappingUndo, HasItsButtonsOnScreenAfterARecoveryOntoTheMapping) {
    EXPECT_EQ(bench.stepsShown(), Texts{side.panel});
    EXPECT_TRUE(bench.isShown("cmdUndo"));
    EXPECT_TRUE(bench.isShown("cmdRedo"));
    EXPECT_EQ(keys(), allKeys);
}

TEST_P(UnmappingUndo, PutsAStrengthBackIndentedAndGreenAtItsOldPlace) {
    unmap(2);
    ASSERT_EQ(keys().size(), 4u);
    undo();
    EXPECT_EQ(keys(), allKeys);
    const Row& row = bench.row(side.list, 2);
    EXPECT_EQ(row.text, "Ann S2");
    EXPECT_EQ(row.image, 1);
    EXPECT_EQ(row.colour, green);
    EXPECT_EQ(row.indent, 2);
    EXPECT_EQ(row.subItem, "");
}

TEST_P(UnmappingUndo, PutsAWeaknessBackIndentedAndRedAtItsOldPlace) {
    unmap(3);
    undo();
    EXPECT_EQ(keys(), allKeys);
    const Row& row = bench.row(side.list, 3);
    EXPECT_EQ(row.image, 2);
    EXPECT_EQ(row.colour, red);
    EXPECT_EQ(row.indent, 2);
}

TEST_P(UnmappingUndo, GivesAMappedRowTheLargePictureOfAnOpportunityOnBothSides) {
    unmap(2);
    undo();
    EXPECT_EQ(bench.row(side.list, 2).largeImage, 3);
    unmap(3);
    undo();
    EXPECT_EQ(bench.row(side.list, 3).largeImage, 3);
}

TEST_P(UnmappingUndo, BringsATopRowBackPlain) {
    unmap(4);
    undo();
    EXPECT_EQ(keys(), allKeys);
    const Row& row = bench.row(side.list, 4);
    EXPECT_EQ(row.image, side.image);
    EXPECT_EQ(row.largeImage, side.image);
    EXPECT_EQ(row.indent, 0);
    EXPECT_FALSE(row.colour);
    EXPECT_EQ(row.subItem, "");
}

TEST_P(UnmappingUndo, LeavesACounterRecordThatRedoRuns) {
    unmap(2);
    EXPECT_EQ(bench.undoRecords(), Texts{record(add(), 2, strength, "Ann S2", "S")});
    undo();
    EXPECT_EQ(bench.redoRecords(), Texts{record(del(), 2, strength, "Ann S2", "S")});
    redo();
    EXPECT_EQ(keys(), (Texts{p1, weakness, p2, p3}));
    EXPECT_EQ(bench.undoRecords(), Texts{record(add(), 2, strength, "Ann S2", "S")});
}

TEST_P(UnmappingUndo, OfATopRowIsRedoneToo) {
    unmap(4);
    undo();
    EXPECT_EQ(bench.redoRecords(), Texts{record(del(), 4, p2, "Ann " + p2)});
    redo();
    EXPECT_EQ(keys(), (Texts{p1, strength, weakness, p3}));
}

TEST_P(UnmappingUndo, AfterADragPutsTheRowAtItsStoredPlaceUnderItsFirstParentsKey) {
    unmap(3);
    bench.map(side.strengths, 1, side.list, 1);
    bench.map(side.strengths, 3, side.list, 1);
    undo();
    EXPECT_EQ(keys(), (Texts{p1, p1 + "-S3", weakness, p1 + "-S1", strength, p2, p3}));
}

TEST_P(UnmappingUndo, CanPutARowUnderAnotherParent) {
    unmap(3);
    unmap(2);
    bench.form().undoRecords[1] = "";  // only the weakness is undone
    undo();
    EXPECT_EQ(keys(), (Texts{p1, p2, weakness, p3}));
}

TEST_P(UnmappingUndo, CannotBeRedoneOnceTheRowsWereShifted) {
    unmap(3);
    undo();
    bench.map(side.strengths, 1, side.list, 1);
    redo();
    EXPECT_EQ(keys(), (Texts{p1, p1 + "-S1", strength, weakness, p2, p3}));
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.redoRecords(), Texts{});
}

TEST_P(UnmappingUndo, BeyondTheListAddsNothingButCountsAsUndone) {
    bench.form().undoRecords[0] = record(add(), 9, "X-S9", "Z", "S");
    undo();
    EXPECT_EQ(keys(), allKeys);
    EXPECT_EQ(bench.redoRecords(), Texts{record(del(), 9, "X-S9", "Z", "S")});
    EXPECT_EQ(bench.messages(), Texts{});
}

TEST_P(UnmappingUndo, WhoseKeyIsTakenMarksNoOtherRow) {
    bench.form().undoRecords[0] = record(add(), 4, strength, "Z", "W");
    undo();
    EXPECT_EQ(keys(), allKeys);
    EXPECT_EQ(bench.row(side.list, 4).indent, 0);
    EXPECT_FALSE(bench.row(side.list, 4).colour);
    EXPECT_EQ(bench.redoRecords().size(), 1u);
}

TEST_P(UnmappingUndo, TakesAnyOtherExtraFieldForAStrengthInRed) {
    bench.form().undoRecords[0] = record(add(), 2, "X-S9", "Z", "Q");
    undo();
    EXPECT_EQ(bench.row(side.list, 2).image, 1);
    EXPECT_EQ(bench.row(side.list, 2).colour, red);
}

TEST_P(UnmappingUndo, TakesAnExtraFieldOfBlanksForATopRow) {
    bench.form().undoRecords[0] = record(add(), 2, "X9", "Z", "  ");
    undo();
    EXPECT_EQ(bench.row(side.list, 2).image, side.image);
    EXPECT_EQ(bench.row(side.list, 2).indent, 0);
    EXPECT_EQ(bench.redoRecords(), Texts{record(del(), 2, "X9", "Z", "  ")});
}

TEST_P(UnmappingUndo, MarksNothingAsChanged) {
    unmap(2);
    bench.form().editAFlag = false;
    undo();
    redo();
    EXPECT_FALSE(bench.form().editAFlag);
}

TEST_P(UnmappingUndo, IsForgottenWhenTheScreenIsLeft) {
    unmap(2);
    bench.click("ABack");
    EXPECT_EQ(bench.undoRecords(), Texts{});
}

}  // namespace
}  // namespace orvanta::test
