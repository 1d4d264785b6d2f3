#include "core/design_grid.h"

#include <gtest/gtest.h>

namespace orvanta::test {
namespace {

TEST(DesignGrid, HasFifteenTwipsToACell) {
    EXPECT_EQ(gridLength(2), Twips{30});
    EXPECT_EQ(grid(1, 2, 3, 4), (Bounds{{15}, {30}, {45}, {60}}));
}

TEST(DesignGrid, MovesAndGrowsBoundsEdgeByEdge) {
    EXPECT_EQ(grid(1, 2, 3, 4) + grid(10, 20, 30, -1), grid(11, 22, 33, 3));
}

}  // namespace
}  // namespace orvanta::test
