#include "desktop/enlargement.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QRadioButton>
#include <QStyle>
#include <QStyleOptionButton>
#include <QStyleOptionFrame>
#include <array>

#include "desktop/conversions.h"
#include "desktop/screen_room.h"
#include "desktop/statement_row_painter.h"
#include "letters.h"
#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

/// Each of them fits the screen of the tests.
constexpr std::array sizes{9.0, 10.0, 11.0, 11.25, 12.0, 13.5};

int metric(QStyle::PixelMetric name) { return QApplication::style()->pixelMetric(name); }

QRect indicatorOf(const QRadioButton& button, QStyle::State isOn) {
    QStyleOptionButton option;
    option.initFrom(&button);
    option.state |= isOn;
    return button.style()->subElementRect(QStyle::SE_RadioButtonIndicator, &option, &button);
}

QRect contentsOf(const QLineEdit& box, QStyle::State focus) {
    QStyleOptionFrame option;
    option.initFrom(&box);
    option.state |= focus;
    return box.style()->subElementRect(QStyle::SE_LineEditContents, &option, &box);
}

/// How far down the band reaches at the left of a window.
int bandHeightIn(QWidget& window) {
    const QImage painted = window.grab().toImage();
    int height = 0;
    while (height < painted.height() && painted.pixelColor(2, height) != theme::sideGround)
        ++height;
    return height;
}

}  // namespace

TEST(Enlargement, IsNoneWithLettersOfTheDesign) {
    const Letters letters(9);
    EXPECT_EQ(enlargement(), 1);
    EXPECT_EQ(enlarged(13), 13);
    EXPECT_EQ(enlarged({160, 32}), QSize(160, 32));
}

TEST(Enlargement, IsThatOfTheDesktopsLetters) {
    const Letters letters(13.5);
    EXPECT_EQ(enlargement(), 1.5);
    EXPECT_EQ(enlarged(13), 20);
    EXPECT_EQ(enlarged({160, 32}), QSize(240, 48));
}

TEST(Enlargement, IsNotBelowOneAndSurvivesAThemeThatComesAgain) {
    {
        const Letters letters(6);
        EXPECT_EQ(enlargement(), 1);
    }
    const Letters letters(13.5);
    applyTheme(*qApp);
    EXPECT_EQ(enlargement(), 1.5);
}

TEST(Enlargement, KnowsLettersThatTheDesktopTellsInPixels) {
    const Letters usual(9);
    QFont font = QApplication::font();
    font.setPixelSize(18);  // 13.5 points
    QApplication::setFont(font);
    applyTheme(*qApp);
    EXPECT_EQ(enlargement(), 1.5);
}

TEST(Enlargement, HoldsForRowsBoxesAndPictures) {
    const Letters usual(9);
    const int row = rowHeight(QFontMetrics(QApplication::font()));
    const Letters letters(13.5);
    EXPECT_EQ(RowLengths().picture, 24);
    EXPECT_NEAR(rowHeight(QFontMetrics(QApplication::font())), row * 1.5, 2);
    EXPECT_EQ(metric(QStyle::PM_IndicatorWidth), 21);
    EXPECT_EQ(metric(QStyle::PM_SmallIconSize), 24);
    EXPECT_EQ(metric(QStyle::PM_MessageBoxIconSize), 72);
}

TEST(Enlargement, HoldsForTheBand) {
    const Letters letters(13.5);
    WindowBench bench;
    bench.start();
    EXPECT_EQ(bandHeightIn(bench.window()), 96);
}

TEST(Enlargement, KeepsAnOptionInItsPlaceWhenItIsChosen) {
    for (const double points : sizes) {
        const Letters letters(points);
        const QRadioButton button(QStringLiteral("Marketing Planning"));
        EXPECT_EQ(indicatorOf(button, QStyle::State_On), indicatorOf(button, QStyle::State_Off))
            << points;
        EXPECT_NEAR(indicatorOf(button, QStyle::State_On).width(), 16 * enlargement(), 1);
    }
}

TEST(Enlargement, KeepsATextInItsPlaceWhenItsBoxGetsTheKeyboard) {
    for (const double points : sizes) {
        const Letters letters(points);
        QLineEdit box;
        box.resize(enlarged({200, 28}));
        const QRect with = contentsOf(box, QStyle::State_HasFocus);
        const QRect without = contentsOf(box, QStyle::State_None);
        EXPECT_EQ(with.width(), without.width()) << points;
        EXPECT_EQ(with.center(), without.center()) << points;
    }
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
