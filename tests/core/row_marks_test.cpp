#include "core/row_marks.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

struct HoveredList {
    std::string name;
    int presses;
};
std::ostream& operator<<(std::ostream& out, const HoveredList& list) { return out << list.name; }

class AnalyzeToolTip : public testing::TestWithParam<HoveredList> {
protected:
    AnalyzeToolTip() { bench.next(GetParam().presses); }
    std::string at(int row) {
        bench.play({{"do", "hover"}, {"list", list}, {"row", row}});
        return bench.list(list).toolTip();
    }
    const std::string list = GetParam().name;
    AnalysisBench bench;
};
INSTANTIATE_TEST_SUITE_P(
    Of, AnalyzeToolTip,
    testing::Values(HoveredList{"lvAStrength", 1}, HoveredList{"lvAWeakness", 2},
                    HoveredList{"lvAOpportunity", 3}, HoveredList{"lvAThreat", 4},
                    HoveredList{"lvStrengthOp", 5}, HoveredList{"lvWeaknessOp", 5},
                    HoveredList{"lvOpportunity", 5}, HoveredList{"lvStrengthTh", 6},
                    HoveredList{"lvWeaknessTh", 6}, HoveredList{"lvThreat", 6}),
    NameOfParameter());

TEST_P(AnalyzeToolTip, TellsWhoSaidTheStatement) {
    EXPECT_EQ(at(3), "[Bo]: " + bench.texts(list)[2]);
}

TEST_P(AnalyzeToolTip, IsTheTextAloneWhereNobodyIsNamed) {
    bench.relabel(list, 2, "");
    EXPECT_EQ(at(2), bench.texts(list)[1]);
}

TEST_P(AnalyzeToolTip, IsEmptyBesideTheRows) {
    at(1);
    EXPECT_EQ(at(0), "");
}

TEST(MappedRowToolTip, TellsWhoSaidTheMappedStatement) {
    AnalysisBench bench;
    bench.next(5);
    bench.map("lvStrengthOp", 3, "lvOpportunity", 1);
    bench.play({{"do", "hover"}, {"list", "lvOpportunity"}, {"row", 2}});
    EXPECT_EQ(bench.list("lvOpportunity").toolTip(), "[Bo]: Bo S1");
}

TEST(BrainstormToolTip, IsTheStatementAndStaysBesideTheRows) {
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    bench.enter("txtStrength", {"Loyal customers"});
    bench.play({{"do", "hover"}, {"list", "lvBStrength"}, {"row", 1}});
    EXPECT_EQ(bench.list("lvBStrength").toolTip(), "Loyal customers");
    bench.play({{"do", "hover"}, {"list", "lvBStrength"}, {"row", 0}});
    EXPECT_EQ(bench.list("lvBStrength").toolTip(), "Loyal customers");
}

TEST(RowIndent, OfARowThatIsNotThereIsPassedOver) {
    AnalysisBench bench;
    bench.next(1);
    setRowIndent(bench.list("lvOpportunity"), 4, 2);
    setRowIndent(bench.list("lvOpportunity"), 3, 2);
    EXPECT_EQ(bench.row("lvOpportunity", 3).indent, 2);
    EXPECT_EQ(bench.row("lvOpportunity", 2).indent, 0);
}

TEST(MappedRow, BearsIndentAndTheColourOfItsKind) {
    Bench bench;
    StatementList& list = bench.list("lvThreat");
    list.add({.key = "T1-S1", .text = "strength"});
    list.add({.key = "T1-W1", .text = "weakness"});
    markMappedRow(list, 1, StatementKind::Strength);
    markMappedRow(list, 2, StatementKind::Weakness);
    EXPECT_EQ(list.row(1).indent, 2);
    EXPECT_EQ(list.row(1).colour, (Colour{0, 120, 60}));
    EXPECT_EQ(list.row(2).indent, 2);
    EXPECT_EQ(list.row(2).colour, (Colour{200, 0, 0}));
}

}  // namespace
}  // namespace orvanta::test
