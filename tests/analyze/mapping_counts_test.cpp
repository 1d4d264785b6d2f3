#include "analyze/mapping_counts.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta {

void PrintTo(const MappingCounts::Count& count, std::ostream* out) {
    *out << count.strengths << " strengths, " << count.weaknesses << " weaknesses";
}

namespace test {
namespace {

using Count = MappingCounts::Count;

class CountsOfMappings : public testing::TestWithParam<MappingSide> {
protected:
    CountsOfMappings() {
        bench.goTo(side);
        bench.map(side.strengths, 1, side.list, 1);
        bench.map(side.strengths, 2, side.list, 1);
        bench.map(side.weaknesses, 1, side.list, 1);
    }

    const MappingSide& side = GetParam();
    AnalysisBench bench;
    MappingCounts counts{bench.list(side.list)};
};
INSTANTIATE_TEST_SUITE_P(Sides, CountsOfMappings, testing::ValuesIn(mappingSides()),
                         NameOfParameter());

TEST_P(CountsOfMappings, KeepUpWithEachMapping) {
    EXPECT_EQ(counts.of(side.parent(1)), (Count{2, 1}));
    EXPECT_EQ(counts.of(side.parent(2)), Count());
}

TEST_P(CountsOfMappings, TakeInTheRowsThatAreThereAlready) {
    bench.map(side.strengths, 1, side.list, 5);
    bench.map(side.weaknesses, 1, side.list, 7);
    const MappingCounts late(bench.list(side.list));
    EXPECT_EQ(late.of(side.parent(1)), (Count{2, 1}));
    EXPECT_EQ(late.of(side.parent(2)), (Count{1, 0}));
    EXPECT_EQ(late.of(side.parent(3)), (Count{0, 1}));
}

TEST_P(CountsOfMappings, RiseWithAMapping) {
    bench.map(side.weaknesses, 2, side.list, 1);
    EXPECT_EQ(counts.of(side.parent(1)), (Count{2, 2}));
}

TEST_P(CountsOfMappings, FallWithARowThatIsTakenBack) {
    bench.select(side.list, 2);
    bench.play({{"do", "call"}, {"routine", side.unmapRoutine}});
    EXPECT_EQ(counts.of(side.parent(1)), (Count{1, 1}));
}

TEST_P(CountsOfMappings, TellO1FromO11) {
    StatementList& list = bench.list(side.list);
    list.add({.key = side.parent(11) + "-S9", .text = "Far away", .image = 1});
    EXPECT_EQ(counts.of(side.parent(1)), (Count{2, 1}));
    EXPECT_EQ(counts.of(side.parent(11)), (Count{1, 0}));
}

TEST_P(CountsOfMappings, StartAgainWithTheList) {
    bench.list(side.list).clear();
    EXPECT_EQ(counts.of(side.parent(1)), Count());
}

TEST_P(CountsOfMappings, DropTheRowsOfARemovedStatement) {
    for (int press = 0; press < side.presses - 1; ++press) bench.click("ABack");
    bench.select("lvAStrength", 1);
    bench.click("ASRemove");
    EXPECT_EQ(counts.of(side.parent(1)), (Count{1, 1}));
}

}  // namespace
}  // namespace test
}  // namespace orvanta
