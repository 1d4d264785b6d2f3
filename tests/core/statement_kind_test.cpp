#include "core/statement_kind.h"

#include <gtest/gtest.h>

namespace orvanta::test {
namespace {

TEST(StatementKinds, AreNumberedByTheirPicturesFromOne) {
    for (int image = 1; image <= 4; ++image) {
        const auto kind = kindOfImage(image);
        ASSERT_TRUE(kind.has_value()) << image;
        EXPECT_EQ(imageOf(*kind), image);
    }
    EXPECT_EQ(kindOfImage(1), StatementKind::Strength);
    EXPECT_EQ(kindOfImage(4), StatementKind::Threat);
}

TEST(StatementKinds, HaveNoOtherPictures) {
    for (const int image : {-1, 0, 5}) EXPECT_EQ(kindOfImage(image), std::nullopt) << image;
}

TEST(StatementKinds, AreToldByTheFirstLetterOfTheirNames) {
    for (const StatementKind kind : statementKinds) {
        EXPECT_EQ(letterOf(kind), nameOf(kind).front());
        EXPECT_EQ(letterOf(kind), nameOfSeveral(kind).front());
    }
}

}  // namespace
}  // namespace orvanta::test
