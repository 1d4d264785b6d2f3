#include "reports/html_report.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"
#include "failure_of.h"
#include "full_analysis.h"

namespace orvanta::test {
namespace {

const std::string head =
    "<table width='85%' border='1' align='center' cellpadding='0' cellspacing='0'>\r\n"
    "<tr bgcolor='#003399'><td width='50%' height='30' bgcolor='#003399'>\r\n"
    "<strong><font color='#FFFFFF' face='Verdana, Arial, Helvetica, sans-serif'>\r\n"
    "Opportunity / Threat<br>&nbsp;&nbsp;&nbsp;&nbsp;+Strength / -Weakness</font></strong></td>\r\n"
    "<td width='10%' height='30'><strong><font color='#FFFFFF' face='Verdana, Arial, Helvetica, "
    "sans-serif'>Priority</font></strong></td>\r\n"
    "<td width='40%' height='30'><strong><font color='#FFFFFF' face='Verdana, Arial, Helvetica, "
    "sans-serif'>\r\n"
    "Actions to Address</font></strong></td></tr>\r\n";
const std::string inner =
    "<table width='90%' border='1' align='center' cellpadding='0' cellspacing='0'>\r\n";
const std::string end = "</table>\r\n";

std::string parent(const std::string& text) { return "<tr><td><strong> " + text + "</strong>\r\n"; }
std::string strength(const std::string& text) {
    return "<tr><td width='10%' align='center'>+</td><td>" + text + "</td></tr>\r\n";
}
std::string weakness(const std::string& text) {
    return "<tr><td width='10%' align='center'>-</td><td>" + text + "</td></tr>\r\n";
}
std::string closing(int priority) {
    return "</td><td align='center'>" + std::to_string(priority) + "</td><td>&nbsp;</td></tr>\r\n";
}

/// Rows of one mapping list: key and text.
using Mapped = std::vector<std::pair<std::string, std::string>>;

std::string analysisOf(const Mapped& opportunities, const Mapped& threats) {
    Texts file{"<MODULE>", "GBS", "</MODULE>"};
    const auto section = [&](const std::string& word, const Mapped& rows) {
        file.push_back("<" + word + ">");
        for (const auto& [key, text] : rows) file.push_back(rowLine(key, "[Ann]: ", text));
        file.push_back("</" + word + ">");
    };
    section("OPPORTUNITYMAPPING", opportunities);
    section("THREATMAPPING", threats);
    return lines(file);
}

class WebPage : public testing::Test {
protected:
    WebPage() { bench.start(); }

    /// The whole page of an analysis.
    std::string pageOf(const Mapped& opportunities, const Mapped& threats) {
        bench.disk.files["docs/team.aze"] = analysisOf(opportunities, threats);
        generateHtmlReport(bench.program(), "docs/team.aze");
        return bench.disk.files[page];
    }

    const std::string page = "app/System/report.htm";
    Bench bench;
};

TEST_F(WebPage, ShowsAnOpportunityWithItsMappedRowsByteForByte) {
    EXPECT_EQ(pageOf({{"O1", "Alpha"}, {"O1-S1", "Beta"}, {"O1-W1", "Gamma"}}, {{"T1", "Delta"}}),
              "<table width='85%' border='1' align='center' cellpadding='0' cellspacing='0'>\r\n"
              "<tr bgcolor='#003399'><td width='50%' height='30' bgcolor='#003399'>\r\n"
              "<strong><font color='#FFFFFF' face='Verdana, Arial, Helvetica, sans-serif'>\r\n"
              "Opportunity / Threat<br>&nbsp;&nbsp;&nbsp;&nbsp;+Strength / "
              "-Weakness</font></strong></td>\r\n"
              "<td width='10%' height='30'><strong><font color='#FFFFFF' face='Verdana, Arial, "
              "Helvetica, sans-serif'>Priority</font></strong></td>\r\n"
              "<td width='40%' height='30'><strong><font color='#FFFFFF' face='Verdana, Arial, "
              "Helvetica, sans-serif'>\r\n"
              "Actions to Address</font></strong></td></tr>\r\n"
              "<tr><td><strong> Alpha</strong>\r\n"
              "<table width='90%' border='1' align='center' cellpadding='0' cellspacing='0'>\r\n"
              "<tr><td width='10%' align='center'>+</td><td>Beta</td></tr>\r\n"
              "<tr><td width='10%' align='center'>-</td><td>Gamma</td></tr>\r\n"
              "</table>\r\n"
              "</td><td align='center'>1</td><td>&nbsp;</td></tr>\r\n"
              "<tr><td><strong> Delta</strong>\r\n"
              "</td><td align='center'>2</td><td>&nbsp;</td></tr>\r\n"
              "</table>\r\n");
}

TEST_F(WebPage, OfAnEmptyAnalysisIsItsHeadAndEnd) { EXPECT_EQ(pageOf({}, {}), head + end); }

TEST_F(WebPage, ClosesTheLastOpportunityTwiceWhereThereAreNoThreats) {
    EXPECT_EQ(pageOf({{"O1", "A"}}, {}), head + parent("A") + closing(1) + closing(1) + end);
}

TEST_F(WebPage, ClosesAnOpportunityAlsoWithoutMappedRows) {
    EXPECT_EQ(pageOf({{"O1", "A"}, {"O2", "B"}}, {}),
              head + parent("A") + closing(1) + parent("B") + closing(2) + closing(2) + end);
}

TEST_F(WebPage, LetsAThreatWithoutMappedRowsRunIntoTheNextOne) {
    EXPECT_EQ(pageOf({}, {{"T1", "A"}, {"T2", "B"}, {"T3", "C"}}),
              head + parent("A") + parent("B") + parent("C") + closing(3) + end);
}

TEST_F(WebPage, ClosesAThreatWithMappedRowsBeforeTheNextOne) {
    EXPECT_EQ(pageOf({}, {{"T1", "A"}, {"T1-S1", "B"}, {"T2", "C"}, {"T2-W1", "D"}}),
              head + parent("A") + inner + strength("B") + end + closing(1) + parent("C") + inner +
                  weakness("D") + end + closing(2) + end);
}

TEST_F(WebPage, CountsOnFromTheOpportunitiesToTheThreats) {
    EXPECT_EQ(pageOf({{"O1", "A"}, {"O1-S1", "a"}, {"O2", "B"}},
                     {{"T1", "C"}, {"T2", "D"}, {"T2-W1", "d"}, {"T3", "E"}}),
              head + parent("A") + inner + strength("a") + end + closing(1) + parent("B") +
                  closing(2) + parent("C") + parent("D") + inner + weakness("d") + end +
                  closing(4) + parent("E") + closing(5) + end);
}

TEST_F(WebPage, OpensTheInnerTableOnceHoweverTheKindsFollowEachOther) {
    EXPECT_EQ(pageOf({{"O1", "A"}, {"O1-W1", "a"}, {"O1-S1", "b"}, {"O1-W2", "c"}}, {}),
              head + parent("A") + inner + weakness("a") + strength("b") + weakness("c") + end +
                  closing(1) + closing(1) + end);
}

TEST_F(WebPage, PutsMappedRowsWithoutAnOpportunityStraightIntoTheTable) {
    EXPECT_EQ(pageOf({{"O1-S1", "a"}, {"O1", "A"}}, {}),
              head + inner + strength("a") + end + parent("A") + closing(1) + closing(1) + end);
}

TEST_F(WebPage, KeepsEmptyTextsAsEmptyCells) {
    EXPECT_EQ(pageOf({{"O1", ""}, {"O1-S1", ""}}, {}),
              head + parent("") + inner + strength("") + end + closing(1) + closing(1) + end);
}

TEST_F(WebPage, TakesTextsAsTheyStand) {
    EXPECT_EQ(pageOf({{"O1", "<b>R&D</b> \x80 \xFC"}}, {}),
              head + parent("<b>R&D</b> \x80 \xFC") + closing(1) + closing(1) + end);
}

TEST_F(WebPage, ShowsRowsWithThreePartKeysAsOpportunities) {
    EXPECT_EQ(pageOf({{"O1-S1-S2", "A"}}, {}), head + parent("A") + closing(1) + closing(1) + end);
}

TEST_F(WebPage, MakesItsOwnSignsAndNoneOfTheFile) {
    EXPECT_EQ(pageOf({{"O1", "A"}, {"O1-W1", "[+] a"}}, {}),
              head + parent("A") + inner + weakness("a") + end + closing(1) + closing(1) + end);
}

TEST_F(WebPage, ReplacesTheFormerOne) {
    bench.disk.files[page] = "former";
    EXPECT_EQ(pageOf({}, {}), head + end);
    EXPECT_EQ(pageOf({{"O1", "A"}}, {}), head + parent("A") + closing(1) + closing(1) + end);
}

TEST_F(WebPage, IsOpenedInTheBrowser) {
    pageOf({}, {});
    bench.play({{"do", "state"}});
    EXPECT_EQ(bench.events(), Json::array({{{"event", "open"}, {"target", page}}}));
}

TEST_F(WebPage, IsNotTouchedWhereTheAnalysisIsMissing) {
    bench.disk.files[page] = "former";
    generateHtmlReport(bench.program(), "docs/gone.aze");
    bench.play({{"do", "state"}});
    EXPECT_EQ(bench.events(), Json::array({refusal("File does not exists.")}));
    EXPECT_EQ(bench.disk.files[page], "former");
}

TEST_F(WebPage, FailsInTheHandsOfTheDialogWhereItCanNotBeWritten) {
    bench.disk.folders.erase("app/System");
    EXPECT_THROW(pageOf({}, {}), Failure);
    bench.play({{"do", "state"}});
    EXPECT_EQ(bench.events(), Json::array());
}

TEST_F(WebPage, IsItsHeadAloneWhereTheAnalysisCanNotBeRead) {
    bench.disk.files[page] = "former";
    bench.disk.unreadable.emplace("docs/team.aze", ErrorNumber::PermissionDenied);
    EXPECT_THROW(pageOf({{"O1", "A"}}, {}), Failure);
    EXPECT_EQ(bench.disk.files[page], head);
}

/// The most groups that a page can number.
constexpr int most = 32'767;

/// Groups with nothing mapped under them, "A" to the last.
Mapped bareGroups(int count) { return Mapped(static_cast<std::size_t>(count), {"X1", "A"}); }

/// The rows of so many opportunities, each closed.
std::string closedGroups(int count) {
    std::string rows;
    for (int priority = 1; priority <= count; ++priority) rows += parent("A") + closing(priority);
    return rows;
}

TEST_F(WebPage, Counts32767Groups) {
    EXPECT_TRUE(pageOf(bareGroups(most), {}) == head + closedGroups(most) + closing(most) + end);
}

/// What stands on the disk where the groups can't be numbered to their end.
class UncountablePage : public WebPage {
protected:
    std::string pageLeftOf(const Mapped& opportunities, const Mapped& threats) {
        bench.disk.files[page] = "former";
        EXPECT_EQ(failureOf([&] { pageOf(opportunities, threats); }), 6);
        bench.play({{"do", "state"}});
        EXPECT_EQ(bench.events(), Json::array());
        return bench.disk.files[page];
    }
};

TEST_F(UncountablePage, EndsBehindTheOpeningOfTheFirstOpportunityTooMany) {
    EXPECT_TRUE(pageLeftOf(bareGroups(most + 2), {{"T1", "B"}}) ==
                head + closedGroups(most) + parent("A"));
}

TEST_F(UncountablePage, ClosesTheGroupBeforeThatOneToo) {
    Mapped opportunities = bareGroups(most);
    opportunities.insert(opportunities.end(), {{"X1-S1", "a"}, {"O9", "B"}, {"O9-S1", "b"}});
    EXPECT_TRUE(pageLeftOf(opportunities, {}) == head + closedGroups(most - 1) + parent("A") +
                                                     inner + strength("a") + end + closing(most) +
                                                     parent("B"));
}

TEST_F(UncountablePage, EndsBehindTheOpeningOfTheFirstThreatTooMany) {
    EXPECT_TRUE(pageLeftOf(bareGroups(most), {{"T1", "B"}, {"T2", "C"}}) ==
                head + closedGroups(most) + parent("B"));
}

}  // namespace
}  // namespace orvanta::test
