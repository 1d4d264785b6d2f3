#include "core/list_ranking.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

/// A list whose rows can be dragged into another order, filled with A to D.
struct RankedList {
    std::string name, list;
    bool analyze;
    std::string box;
    int presses;
};
std::ostream& operator<<(std::ostream& out, const RankedList& list) { return out << list.name; }

class RankedRows : public testing::TestWithParam<RankedList> {
protected:
    RankedRows() {
        bench.start();
        if (GetParam().analyze)
            openAnalyze();
        else
            openBrainstorm();
        bench.form().editFlag = bench.form().editAFlag = false;
        bench.form().undoRecords = {};
        bench.events();
    }
    void openAnalyze() {
        bench.openAnalyze();
        const Texts rows{"A", "B", "C", "D"};
        bench.addSource("docs/a.bsm", "Ann", {}, {}, rows, rows);
        for (int i = 0; i < GetParam().presses; ++i) bench.click("ANext");
    }
    void openBrainstorm() {
        bench.openBrainstorm();
        for (int i = 0; i < GetParam().presses; ++i) bench.click("BNext");
        bench.enter(GetParam().box, {"A", "B", "C", "D"});
    }
    std::string order() {
        std::string letters;
        for (const std::string& text : bench.texts(list)) letters += text;
        return letters;
    }
    void drag(int row, int at) { bench.drag(list, row, list, at); }

    const std::string list = GetParam().list;
    Bench bench;
};
INSTANTIATE_TEST_SUITE_P(
    Of, RankedRows,
    testing::Values(RankedList{"AnalyzeOpportunities", "lvAOpportunity", true, "", 3},
                    RankedList{"AnalyzeThreats", "lvAThreat", true, "", 4},
                    RankedList{"BrainstormOpportunities", "lvBOpportunity", false, "txtOpportunity",
                               6},
                    RankedList{"BrainstormThreats", "lvBThreat", false, "txtThreat", 9}),
    NameOfParameter());

TEST_P(RankedRows, KeepTheirOrderWhenOneIsDroppedOnTheRowAbove) {
    drag(3, 2);
    EXPECT_EQ(order(), "ABCD");
}

TEST_P(RankedRows, KeepTheirOrderWhenOneIsDroppedOnItself) {
    drag(3, 3);
    EXPECT_EQ(order(), "ABCD");
    EXPECT_EQ(bench.list(list).selected(), 3);
}

TEST_P(RankedRows, LetTheLastRowLandSecondWhenDroppedOnTheFirst) {
    drag(4, 1);
    EXPECT_EQ(order(), "ADBC");
}

TEST_P(RankedRows, LetARowLandBeneathOneFurtherDown) {
    drag(1, 3);
    EXPECT_EQ(order(), "BCAD");
}

TEST_P(RankedRows, LetARowLandAtTheEnd) {
    drag(1, 4);
    EXPECT_EQ(order(), "BCDA");
}

TEST_P(RankedRows, KeepTheirOrderWhenOneIsDroppedBesideAllRows) {
    drag(1, 0);
    EXPECT_EQ(order(), "ABCD");
}

TEST_P(RankedRows, KeepKeyPicturesAndSourceAndTheMovedOneIsSelected) {
    const Row before = bench.list(list).row(4);
    drag(4, 1);
    const Row& after = bench.list(list).row(2);
    EXPECT_EQ(after.key, before.key);
    EXPECT_EQ(after.image, before.image);
    EXPECT_EQ(after.largeImage, before.largeImage);
    EXPECT_EQ(after.subItem, GetParam().analyze ? "[Ann]: " : "");
    EXPECT_EQ(bench.list(list).selected(), 2);
}

TEST_P(RankedRows, AreMovedWithoutRecordMarkOrMessage) {
    bench.form().dragSection = "W";
    drag(4, 1);
    EXPECT_EQ(bench.events(), Json::array());
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_FALSE(bench.form().editFlag);
    EXPECT_FALSE(bench.form().editAFlag);
    EXPECT_EQ(bench.form().dragSection, "W");
}

TEST_P(RankedRows, StayWhenTheOnlyOneIsDroppedOnItself) {
    while (bench.list(list).count() > 1) bench.list(list).remove(2);
    drag(1, 1);
    EXPECT_EQ(order(), "A");
}

TEST_P(RankedRows, KeepAKeyThatItselfLooksLikeTheOneOfAMovingRow) {
    bench.list(list).setKey(4, "NEW-NEW-7");
    drag(4, 1);
    EXPECT_EQ(bench.list(list).row(2).key, "NEW-NEW-7");
}

TEST_P(RankedRows, KeepTheirEmptyKeys) {
    bench.list(list).setKey(4, "");
    bench.list(list).setKey(1, "");
    drag(4, 1);
    EXPECT_EQ(order(), "ADBC");
    EXPECT_EQ(bench.list(list).row(2).key, "");
}

TEST_P(RankedRows, AreNotRankedWithNothingSelected) {
    bench.select(list, 0);
    moveListRow(bench.list(list), bench.list(list), 1, true);
    EXPECT_EQ(order(), "ABCD");
}

TEST(RankedOpportunities, LeaveTheMappingListInItsOrder) {
    AnalysisBench bench;
    bench.next(3);
    bench.drag("lvAOpportunity", 1, "lvAOpportunity", 3);
    EXPECT_EQ(bench.keys("lvAOpportunity"), (Texts{"O2", "O3", "O1"}));
    EXPECT_EQ(bench.keys("lvOpportunity"), (Texts{"O1", "O2", "O3"}));
}

TEST(RankedThreats, LeaveTheMappingListInItsOrder) {
    AnalysisBench bench;
    bench.next(4);
    bench.drag("lvAThreat", 1, "lvAThreat", 3);
    EXPECT_EQ(bench.keys("lvAThreat"), (Texts{"T2", "T3", "T1"}));
    EXPECT_EQ(bench.keys("lvThreat"), (Texts{"T1", "T2", "T3"}));
}

class PickedRows : public testing::TestWithParam<ReviewedKind> {};
INSTANTIATE_TEST_SUITE_P(Of, PickedRows, testing::ValuesIn(pickedKinds()), NameOfParameter());

TEST_P(PickedRows, CannotBeRanked) {
    AnalysisBench bench;
    bench.goTo(GetParam());
    const ShownRows before = bench.rows(GetParam().list);
    bench.drag(GetParam().list, 1, GetParam().list, 3);
    EXPECT_EQ(bench.rows(GetParam().list), before);
}

TEST(BrainstormStrengths, CannotBeRanked) {
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    bench.enter("txtStrength", {"A", "B", "C"});
    bench.drag("lvBStrength", 1, "lvBStrength", 3);
    EXPECT_EQ(bench.texts("lvBStrength"), (Texts{"A", "B", "C"}));
}

TEST(BrainstormWeaknesses, CannotBeRanked) {
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    for (int i = 0; i < 3; ++i) bench.click("BNext");
    bench.enter("txtWeakness", {"A", "B", "C"});
    bench.drag("lvBWeakness", 1, "lvBWeakness", 3);
    EXPECT_EQ(bench.texts("lvBWeakness"), (Texts{"A", "B", "C"}));
}

}  // namespace
}  // namespace orvanta::test
