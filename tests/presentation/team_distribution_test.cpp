#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

struct Link {
    std::string name, option;
};
std::ostream& operator<<(std::ostream& out, const Link& link) { return out << link.name; }

class TeamDistribution : public testing::TestWithParam<Link> {
protected:
    TeamDistribution() {
        bench.start();
        bench.click("Brainstorm");
        bench.events();
    }
    Bench bench;
};
INSTANTIATE_TEST_SUITE_P(Of, TeamDistribution,
                         testing::Values(Link{"gbs", "optGBS"}, Link{"hrp", "optHRP"},
                                         Link{"mp", "optMP"}, Link{"psd", "optPSD"},
                                         Link{"sbd", "optSBD"}),
                         NameOfParameter());

TEST_P(TeamDistribution, StartsAMailWithTheLinkOfTheModuleAndABlankAtItsEnd) {
    bench.play({{"do", "choose"}, {"option", GetParam().option}});
    bench.clickControl("lblDistribute");
    EXPECT_EQ(bench.events(),
              Json::array({{{"event", "open"},
                            {"target",
                             "mailto:?subject=Invitation for Brainstorming Session&body=Download "
                             "link%3A http%3A%2F%2Fwww.orvanta.example%2Fdownload.php?type%3D" +
                                 GetParam().name + " "}}}));
}

TEST(TeamDistributionLink, RefusesWithNoModuleChosen) {
    Bench bench;
    bench.start();
    bench.click("Brainstorm");
    bench.events();
    bench.clickControl("lblDistribute");
    EXPECT_EQ(bench.events(), Json::array({refusal("Please select any SWOT analysis type.")}));
}

TEST(TeamDistributionLink, IsNotChangedByTheModuleThatAReceivedFileNames) {
    Bench bench;
    bench.start();
    bench.click("Brainstorm");
    bench.disk.files["docs/team.bsm"] = lines({"<MODULE>", "GBS&bcc=x@example.com", "</MODULE>"});
    bench.answerFile("docs/team.bsm");
    bench.click("BOpen");
    bench.events();
    bench.clickControl("lblDistribute");
    EXPECT_EQ(bench.events(), Json::array({refusal("Please select any SWOT analysis type.")}));
}

TEST(TeamDistributionLink, BearsItsCaptionAndToolTip) {
    Bench bench;
    bench.start();
    EXPECT_EQ(bench.form().lblDistribute.caption(), "Distribute To Team Members");
    EXPECT_EQ(bench.form().lblDistribute.toolTip(),
              "Use this link to email the Brainstorm module to your team.");
}

}  // namespace
}  // namespace orvanta::test
