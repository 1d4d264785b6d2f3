#include <gtest/gtest.h>

#include <QtTest>

#include "desktop/statement_list_view.h"
#include "painted_contrast.h"
#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

/// The pixel columns at the left of a row that stand out from its ground.
int edgeWidthOf(const QImage& row) {
    const QColor ground = row.pixelColor(row.width() / 2, 2);
    int width = 0;
    while (width < row.width() && row.pixelColor(width, 2) != ground) ++width;
    return width;
}

}  // namespace

TEST(ChosenRow, IsStrongInTheListThatHasTheKeyboardAndQuietInTheOthers) {
    WindowBench<AnalysisBench> bench;
    bench.goTo(mappingSides()[0]);
    bench.window().show();
    QApplication::setActiveWindow(&bench.window());
    QCoreApplication::processEvents();  // the window gives the keyboard to its first control
    const auto chosenIn = [&](const std::string& name) {
        QCoreApplication::processEvents();
        auto& view = bench.widget<StatementListView>(name);
        return paintedAs(*view.viewport(), view.visualRect(view.indexAtPosition(1)));
    };
    for (const auto& [keyboard, other] :
         {std::pair("lvStrengthOp", "lvOpportunity"), std::pair("lvOpportunity", "lvStrengthOp")}) {
        bench.select("lvStrengthOp", 1);
        bench.select("lvOpportunity", 1);
        bench.widget(keyboard).setFocus();
        const QImage strong = chosenIn(keyboard), quiet = chosenIn(other);
        EXPECT_NE(groundOf(strong), groundOf(quiet)) << keyboard;
        EXPECT_GT(edgeWidthOf(strong), edgeWidthOf(quiet)) << keyboard;
        EXPECT_GT(edgeWidthOf(quiet), 0) << keyboard;
    }
}

TEST(RowOfTwoLines, HoldsOnBothAWordThatIsWiderThanTheList) {
    WindowBench<AnalysisBench> bench;
    bench.goTo(mappingSides()[0]);
    bench.window().show();
    auto& view = bench.widget<StatementListView>("lvOpportunity");
    bench.list("lvOpportunity").setText(1, std::string(300, 'M'));
    QCoreApplication::processEvents();
    ASSERT_EQ(view.linesPerRow(), 2);
    const QRect row = view.visualRect(view.indexAtPosition(1));
    const QSize part(40, row.height() * 3 / 10);
    for (const int top : {row.top(), row.bottom() - part.height()})
        EXPECT_GT(writtenContrast(paintedAs(
                      *view.viewport(), QRect({row.center().x() - part.width() / 2, top}, part))),
                  4)
            << "below " << top;
}

TEST(HintOfAnEmptyList, IsWholeOrNotThere) {
    QWidget viewport;
    const auto paintedIn = [&viewport](int height) {
        viewport.resize(160, height);
        QImage image(viewport.size(), QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        drawHint(painter, viewport, 0, QStringLiteral("Drag a strength onto an opportunity."));
        return image;
    };
    const auto isBlank = [](const QImage& image) {
        QImage white = image;
        white.fill(Qt::white);
        return image == white;
    };
    const QImage whole = paintedIn(200);
    ASSERT_FALSE(isBlank(whole));
    int last = whole.height() - 1;
    while (isBlank(whole.copy(0, last, whole.width(), 1))) --last;
    EXPECT_TRUE(isBlank(paintedIn(last)));
    EXPECT_TRUE(isBlank(paintedIn(10)));
    EXPECT_FALSE(isBlank(paintedIn(last + whole.height() / 10)));
}

TEST(CountsInTheMappingList, StandAtTheRightOfARowAndFollowIt) {
    WindowBench<AnalysisBench> bench;
    bench.goTo(mappingSides()[0]);
    bench.window().show();
    auto& view = bench.widget<StatementListView>("lvOpportunity");
    const auto rightEndOf = [&](int position) {
        QCoreApplication::processEvents();
        QRect place = view.visualRect(view.indexAtPosition(position));
        place.setLeft(place.right() - 80);
        return paintedAs(*view.viewport(), place);
    };
    const QImage bare = rightEndOf(1);
    EXPECT_EQ(bare, rightEndOf(2));
    bench.map("lvStrengthOp", 1, "lvOpportunity", 1);
    EXPECT_NE(rightEndOf(1), bare);
    bench.select("lvOpportunity", 2);
    bench.play({{"do", "call"}, {"routine", "removeOpportunityMappingRow"}});
    EXPECT_EQ(rightEndOf(1), bare);
}

}  // namespace orvanta::test
