#include "desktop/art.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

TEST(Pictures, AreThereForEachArtOfAButton) {
    EXPECT_TRUE(artName(Art::None).isEmpty());
    for (const Art art : {Art::SmallNormal, Art::SmallDown, Art::LargeNormal, Art::LargeDown})
        EXPECT_FALSE(picture(artName(art), {88, 32}, 1).isNull()) << static_cast<int>(art);
}

TEST(Pictures, OfRowsAreFourAndNoneBesideThem) {
    for (int image = 1; image <= 4; ++image) EXPECT_FALSE(rowIcon(image).isNull()) << image;
    for (const int image : {-1, 0, 5}) EXPECT_TRUE(rowIcon(image).isNull()) << image;
    EXPECT_TRUE(smallRowIcon(5).isNull());
}

TEST(Pictures, OfRowsAreDrawnAnewForTheSmallSize) {
    const auto drawn = [](const QIcon& icon) { return icon.pixmap(QSize(12, 12), 1).toImage(); };
    for (int image = 1; image <= 4; ++image)
        EXPECT_NE(drawn(smallRowIcon(image)), drawn(rowIcon(image))) << image;
}

/// A picture that is made for its size has its straight edges between pixels, none across one.
TEST(Pictures, OfAStrengthAreSharpAtTheSmallSize) {
    const QImage drawn = smallRowIcon(1).pixmap(QSize(12, 12), 1).toImage();
    const QRgb ground = drawn.pixel(6, 0), sign = drawn.pixel(6, 6);
    for (int x = 0; x < 12; ++x)
        EXPECT_TRUE(drawn.pixel(x, 6) == ground || drawn.pixel(x, 6) == sign) << x;
}

TEST(Pictures, ArePaleWhereTheirButtonIsDisabled) {
    const auto strongest = [](QIcon::Mode mode) {
        const QImage drawn =
            pictureIcon(QStringLiteral("undo")).pixmap(QSize(20, 20), 1, mode).toImage();
        int most = 0;
        for (int y = 0; y < drawn.height(); ++y)
            for (int x = 0; x < drawn.width(); ++x)
                most = std::max(most, qAlpha(drawn.pixel(x, y)));
        return most;
    };
    EXPECT_EQ(strongest(QIcon::Normal), 255);
    EXPECT_GT(strongest(QIcon::Disabled), 0);
    EXPECT_LT(strongest(QIcon::Disabled), 128);
}

TEST(Pictures, AreDrawnInThePixelsOfTheirScreen) {
    const QPixmap sharp = picture(QStringLiteral("logo"), {40, 20}, 2);
    EXPECT_EQ(sharp.size(), QSize(80, 40));
    EXPECT_EQ(sharp.devicePixelRatio(), 2);
}

}  // namespace

}  // namespace orvanta::test
