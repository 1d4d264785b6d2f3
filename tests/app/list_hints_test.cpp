#include "app/list_hints.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {

namespace {

std::string hintOf(Bench& bench, const std::string& list) {
    return hintIn(bench.form(), bench.list(list));
}

}  // namespace

TEST(ListHint, TellsInAnEmptyListWhatComesThereAndHow) {
    Bench bench;
    EXPECT_EQ(hintOf(bench, "lvBWeakness"), "No weaknesses yet. Type one above and press Enter.");
    EXPECT_EQ(hintOf(bench, "lvAThreat"), "No threats yet. Type one above and press Enter.");
    EXPECT_EQ(hintOf(bench, "lvStrengthOp"), "No strengths. Go back to add some.");
    EXPECT_EQ(hintOf(bench, "lvThreat"), "No threats. Go back to add some.");
    EXPECT_EQ(hintIn(bench.form().lstFiles),
              "No files yet. Press Add to choose the files of your team.");
}

TEST(ListHint, TellsHowToMapUntilSomethingIsMapped) {
    AnalysisBench bench;
    bench.next(5);
    EXPECT_EQ(hintOf(bench, "lvOpportunity"), "Drag a strength or a weakness onto an opportunity.");
    EXPECT_EQ(hintOf(bench, "lvThreat"), "Drag a strength or a weakness onto a threat.");
    bench.map("lvStrengthOp", 1, "lvOpportunity", 1);
    EXPECT_EQ(hintOf(bench, "lvOpportunity"), "");
}

TEST(ListHint, GoesWithTheFirstRow) {
    AnalysisBench bench;
    bench.next(1);
    for (const char* list : {"lvAStrength", "lvStrengthOp", "lvWeaknessTh"})
        EXPECT_EQ(hintOf(bench, list), "") << list;
    EXPECT_EQ(hintIn(bench.form().lstFiles), "");
}

}  // namespace orvanta::test
