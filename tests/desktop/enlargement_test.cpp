#include "desktop/enlargement.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QStyle>

#include "desktop/screen_room.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

}  // namespace

TEST(Enlargement, IsNoneWithLettersOfTheDesign) {
    ASSERT_EQ(QApplication::font().pointSizeF(), 9);
    EXPECT_EQ(enlargement(), 1);
    EXPECT_EQ(enlarged(13), 13);
    EXPECT_EQ(enlarged({160, 32}), QSize(160, 32));
}

TEST(LargestEnlargement, IsOneWhereTheSmallestWindowJustFitsAndWhereItDoesNot) {
    EXPECT_EQ(largestEnlargement({776, 476}), 1);
    EXPECT_EQ(largestEnlargement({640, 400}), 1);
}

TEST(LargestEnlargement, IsAsTheNarrowerOfTheTwoExtentsAllows) {
    EXPECT_DOUBLE_EQ(largestEnlargement({776 * 3 / 2, 2000}), 1.5);
    EXPECT_DOUBLE_EQ(largestEnlargement({2000, 476 * 5 / 4}), 1.25);
}

TEST(LargestEnlargement, IsTwoAtMost) { EXPECT_EQ(largestEnlargement({7680, 4320}), 2); }

}  // namespace orvanta::test
