#include "core/per_enum.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

namespace orvanta::test {
namespace {

enum class Season { Spring, Summer, Autumn, Winter, Count };

constexpr PerEnum<Season, int> days{
    {{Season::Spring, 92}, {Season::Summer, 94}, {Season::Autumn, 90}, {Season::Winter, 89}}};

TEST(AllOf, HasEachEnumeratorOnceAndNotTheirCount) {
    EXPECT_EQ(countOf<Season>, 4u);
    EXPECT_EQ(allOf<Season>,
              (std::array{Season::Spring, Season::Summer, Season::Autumn, Season::Winter}));
}

TEST(PerEnum, GivesTheValueOfARowByItsEnumerator) {
    EXPECT_EQ(days[Season::Spring], 92);
    EXPECT_EQ(days[Season::Winter], 89);
}

TEST(PerEnum, IsWalkedThroughInTheOrderOfTheEnumerators) {
    EXPECT_EQ((std::vector<int>(days.begin(), days.end())), (std::vector{92, 94, 90, 89}));
    EXPECT_EQ(std::accumulate(days.begin(), days.end(), 0), 365);
}

TEST(PerEnum, BeginsWithEmptyValuesAndTakesNewOnes) {
    PerEnum<Season, int> counts;
    EXPECT_EQ(counts[Season::Autumn], 0);
    ++counts[Season::Autumn];
    for (int& count : counts) count *= 3;
    EXPECT_EQ(counts[Season::Autumn], 3);
    EXPECT_EQ(counts[Season::Winter], 0);
}

TEST(PerEnum, EqualsOneOfTheSameValues) {
    PerEnum<Season, int> copy = days;
    EXPECT_TRUE(copy == days);
    copy[Season::Summer] = 0;
    EXPECT_FALSE(copy == days);
}

TEST(PerEnumDeathTest, HasNoValueOfTheCount) {
    PerEnum<Season, int> counts;
    EXPECT_DEATH(counts[Season::Count] = 1, "index");
}

}  // namespace
}  // namespace orvanta::test
