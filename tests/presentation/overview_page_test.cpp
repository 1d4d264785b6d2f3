#include "presentation/overview_page.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

TEST(OverviewPage, IsOpenedInTheBrowserAndNothingElseHappens) {
    Bench bench;
    bench.start();
    openOverviewPage(bench.program());
    bench.play({{"do", "activate"}});
    EXPECT_EQ(bench.events(),
              Json::array({{{"event", "open"},
                            {"target", "http://www.orvanta.example/orvanta-overview/"}}}));
}

}  // namespace
}  // namespace orvanta::test
