#include <gtest/gtest.h>

#include <QtTest>

#include "desktop/statement_list_view.h"
#include "painted_contrast.h"
#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

}  // namespace

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
