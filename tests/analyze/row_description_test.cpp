#include "analyze/row_description.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

class DescriptionOfARow : public testing::Test {
protected:
    DescriptionOfARow() {
        bench.goTo(mappingSides()[0]);
        bench.map("lvStrengthOp", 1, "lvOpportunity", 1);
    }

    std::string described(const std::string& list, int position) {
        return describeRow(bench.list(list), position, nullptr);
    }
    std::string describedWithCounts(int position) {
        return describeRow(bench.list("lvOpportunity"), position, &counts);
    }

    AnalysisBench bench;
    MappingCounts counts{bench.list("lvOpportunity")};
};

TEST_F(DescriptionOfARow, TellsKindPlaceAndWhoSaidIt) {
    EXPECT_EQ(described("lvAWeakness", 3), "Weakness, row 3 of 3, said by Bo");
}

TEST_F(DescriptionOfARow, NamesNobodyWhereNobodyIsNamed) {
    bench.relabel("lvAThreat", 2, "");
    EXPECT_EQ(described("lvAThreat", 2), "Threat, row 2 of 3");
    bench.relabel("lvAThreat", 2, "[]: ");
    EXPECT_EQ(described("lvAThreat", 2), "Threat, row 2 of 3");
}

TEST_F(DescriptionOfARow, TellsUnderWhatItIsMapped) {
    EXPECT_EQ(describedWithCounts(2), "Strength, row 2 of 4, said by Ann, under: Ann O1");
}

TEST_F(DescriptionOfARow, TellsHowMuchIsMappedUnderIt) {
    EXPECT_EQ(describedWithCounts(1),
              "Opportunity, row 1 of 4, said by Ann, 1 strength and 0 weaknesses under it");
    EXPECT_EQ(describedWithCounts(4),
              "Opportunity, row 4 of 4, said by Bo, 0 strengths and 0 weaknesses under it");
}

}  // namespace
}  // namespace orvanta::test
