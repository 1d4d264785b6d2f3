#include "desktop/conversions.h"

#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QTextDocument>
#include <QToolTip>

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

class ScreenOf : public orvanta::Screen {
public:
    explicit ScreenOf(double twipsPerPixel) : m_twipsPerPixel(twipsPerPixel) {}
    double twipsPerPixel() const override { return m_twipsPerPixel; }

private:
    double m_twipsPerPixel;
};

TEST(TextOfTheCodePage, ComesBackFromQtAsItWas) {
    EXPECT_EQ(fromCp1252("\x80 caf\xE9"), QString::fromUtf8("€ café"));
    EXPECT_EQ(toCp1252(QString::fromUtf8("€ café")), "\x80 caf\xE9");
    EXPECT_TRUE(fitsCp1252(QString::fromUtf8("€ café")));
}

TEST(TextOfQt, ThatTheCodePageLacksBecomesQuestionMarks) {
    EXPECT_EQ(toCp1252(QString::fromUtf8("a日b")), "a?b");
    EXPECT_FALSE(fitsCp1252(QString::fromUtf8("a日b")));
    EXPECT_TRUE(fitsCp1252(QStringLiteral("a?b")));
}

TEST(ShownCaption, HasSingleAmpersandsAndNoBlanksAtItsEnds) {
    EXPECT_EQ(shownCaption(" Sales && Business Development "),
              QStringLiteral("Sales & Business Development"));
}

TEST(ShownToolTip, IsNeverTakenForMarkup) {
    EXPECT_TRUE(
        shownToolTip("<b>a</b> & c").contains(QStringLiteral("&lt;b&gt;a&lt;/b&gt; &amp; c")));
    EXPECT_TRUE(shownToolTip("").isEmpty());
}

TEST(ShownToolTip, IsOneLineWhereItIsNotWide) {
    EXPECT_FALSE(shownToolTip("Add this statement to the list below.").contains(u'\n'));
}

TEST(ShownToolTip, IsBrokenIntoFewLinesOfEvenWidth) {
    const QString shown = shownToolTip(
        "Click here to see an overview presentation that will instruct you on the SWOT analysis "
        "process, from the first thought to the report.");
    QTextDocument document;
    document.setHtml(shown);
    const QStringList lines = document.toPlainText().split(u'\n');
    ASSERT_GE(lines.size(), 2) << shown.toStdString();
    const QFontMetrics metrics(QToolTip::font());
    for (const QString& line : lines) {
        EXPECT_LE(metrics.horizontalAdvance(line), 360) << line.toStdString();
        EXPECT_GE(metrics.horizontalAdvance(line), 200) << line.toStdString();
    }
}

TEST(ShownToolTip, BreaksAWordThatIsWiderThanItself) {
    QTextDocument document;
    document.setHtml(shownToolTip("See " + QString(400, u'W') + " there"));
    const QFontMetrics metrics(QToolTip::font());
    for (const QString& line : document.toPlainText().split(u'\n'))
        EXPECT_LE(metrics.horizontalAdvance(line), 360) << line.toStdString();
}

TEST(PixelGrid, CountsInTheTwipsOfItsScreenAndRoundsToWholePixels) {
    const ScreenOf ordinary(15), large(12);
    EXPECT_EQ(PixelGrid(ordinary).exact({1500}), 100);
    EXPECT_EQ(PixelGrid(ordinary).pixels({22}), 1);
    EXPECT_EQ(PixelGrid(ordinary).pixels({23}), 2);
    EXPECT_EQ(PixelGrid(large).pixels({1500}), 125);
}

TEST(PixelGrid, GivesAFontOfTheSamePixelsThatTwipsWouldHave) {
    const ScreenOf ordinary(15), large(12);
    const double small = PixelGrid(ordinary).font({12}).pointSizeF();
    EXPECT_NEAR(PixelGrid(large).font({12}).pointSizeF() / small, 15.0 / 12, 0.01);
    EXPECT_TRUE(PixelGrid(ordinary).font({12}, true).bold());
}

}  // namespace

}  // namespace orvanta::test
