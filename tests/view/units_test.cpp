#include "view/units.h"

#include <gtest/gtest.h>

namespace orvanta::test {
namespace {

TEST(Twips, AddUpAndAreScaledInFractions) {
    EXPECT_EQ(Twips{30} + Twips{15}, Twips{45});
    EXPECT_EQ(Twips{30} - Twips{45}, Twips{-15});
    EXPECT_EQ(Twips{15} * 0.5, Twips{7.5});
    EXPECT_LT(Twips{7.5}, Twips{15});
}

}  // namespace
}  // namespace orvanta::test
