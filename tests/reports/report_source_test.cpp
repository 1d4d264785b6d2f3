#include "reports/report_source.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>

#include "analysis_bench.h"
#include "full_analysis.h"

namespace orvanta::test {
namespace {

const std::string delimiter = "<!-SWOT-!>";

std::string entry(const std::string& key, const std::string& text) {
    return key + delimiter + text;
}

std::string rowOfAnn(const std::string& key, const std::string& text) {
    return rowLine(key, "[Ann]: ", text);
}

ReportLists read(const Texts& file, ReportScope scope = ReportScope::Everything) {
    ReportLists lists;
    readReportSource(lines(file), scope, lists);
    return lists;
}

struct ListSection {
    std::string name, word;
    ReportList ReportLists::*list;
    bool startsAnew, dropsMarks, ofTheDocumentAlone;
};

std::ostream& operator<<(std::ostream& out, const ListSection& section) {
    return out << section.name;
}

const std::vector<ListSection> sections{
    {"Strengths", "STRENGTH", &ReportLists::strengthEntries, true, false, true},
    {"Weaknesses", "WEAKNESS", &ReportLists::weaknessEntries, true, false, true},
    {"Opportunities", "OPPORTUNITY", &ReportLists::opportunityEntries, true, false, false},
    {"Threats", "THREATS", &ReportLists::threatEntries, true, false, false},
    {"MappedOpportunities", "OPPORTUNITYMAPPING", &ReportLists::opportunityMapEntries, false, true,
     false},
    {"MappedThreats", "THREATMAPPING", &ReportLists::threatMapEntries, false, true, false}};

class ReportSourceSection : public testing::TestWithParam<ListSection> {
protected:
    std::string open = "<" + GetParam().word + ">", close = "</" + GetParam().word + ">";

    Texts entries(const Texts& file, ReportScope scope = ReportScope::Everything) {
        return (read(file, scope).*GetParam().list).entries();
    }
    /// What the section gives for one line of it.
    Texts entriesOf(const std::string& line) { return entries({open, line, close}); }
};
INSTANTIATE_TEST_SUITE_P(Of, ReportSourceSection, testing::ValuesIn(sections), NameOfParameter{});

TEST_P(ReportSourceSection, GivesKeysAndTrimmedTextsInTheOrderOfTheFile) {
    EXPECT_EQ(entries({open, rowOfAnn("X9", "  Second "), rowOfAnn("X1", "First"), close}),
              (Texts{entry("X9", "Second"), entry("X1", "First")}));
}

TEST_P(ReportSourceSection, KeepsTheKeyAsItStands) {
    EXPECT_EQ(entriesOf(rowOfAnn(" X1 ", "A")), Texts{entry(" X1 ", "A")});
}

TEST_P(ReportSourceSection, DropsALineWithoutExactlyThreeFields) {
    EXPECT_EQ(entriesOf("X1" + delimiter + "two"), Texts{});
    EXPECT_EQ(entriesOf(rowOfAnn("X1", "a text with " + delimiter + " in it")), Texts{});
    EXPECT_EQ(entriesOf("no delimiter"), Texts{});
    EXPECT_EQ(entriesOf(""), Texts{});
}

TEST_P(ReportSourceSection, RemovesMarksInMappingListsAlone) {
    EXPECT_EQ(entriesOf(rowOfAnn("X1", "[+] a[-] [+]b ")),
              Texts{entry("X1", GetParam().dropsMarks ? "a b" : "[+] a[-] [+]b")});
}

TEST_P(ReportSourceSection, MayBeEmpty) { EXPECT_EQ(entries({open, close}), Texts{}); }

TEST_P(ReportSourceSection, MayBeLeftOpenAtTheEnd) {
    EXPECT_EQ(entries({open, rowOfAnn("X1", "A")}), Texts{entry("X1", "A")});
}

TEST_P(ReportSourceSection, TakesTagsWithBlanksAroundThemAndNoOthers) {
    EXPECT_EQ(entries({"  " + open + " ", rowOfAnn("X1", "A"), " " + close, rowOfAnn("X2", "B")}),
              Texts{entry("X1", "A")});
    std::string lower = open;
    std::ranges::transform(lower, lower.begin(), [](unsigned char c) { return std::tolower(c); });
    EXPECT_EQ(entries({lower, rowOfAnn("X1", "A")}), Texts{});
    EXPECT_EQ(entries({"\t" + open, rowOfAnn("X1", "A")}), Texts{});
}

TEST_P(ReportSourceSection, IsClosedByAnyClosingTag) {
    EXPECT_EQ(entries({open, rowOfAnn("X1", "A"), "</MODULE>", rowOfAnn("X2", "B")}),
              Texts{entry("X1", "A")});
}

TEST_P(ReportSourceSection, IsNotClosedByATagThatReportsDoNotKnow) {
    EXPECT_EQ(entries({open, "<STEP>", "AO", "</STEP>", rowOfAnn("X1", "A"), close}),
              Texts{entry("X1", "A")});
}

TEST_P(ReportSourceSection, HoldsItsGroundAgainstAnOpeningTagInsideIt) {
    EXPECT_EQ(entries({open, "<MODULE>", rowOfAnn("X1", "A"), close}), Texts{entry("X1", "A")});
}

TEST_P(ReportSourceSection, OverwritesStatementsFromTheirBeginningWhenRepeatedAndAddsMappings) {
    const Texts file{
        open, rowOfAnn("X1", "A"), rowOfAnn("X2", "B"), close, open, rowOfAnn("X3", "C"), close};
    const Texts overwritten{entry("X3", "C"), entry("X2", "B")};
    const Texts added{entry("X1", "A"), entry("X2", "B"), entry("X3", "C")};
    EXPECT_EQ(entries(file), GetParam().startsAnew ? overwritten : added);
}

TEST_P(ReportSourceSection, StartsStatementsAnewAlsoAtAnOpeningTagThatOpensNothing) {
    const Texts file{open, rowOfAnn("X1", "A"), open, rowOfAnn("X2", "B"), close};
    const Texts added{entry("X1", "A"), entry("X2", "B")};
    EXPECT_EQ(entries(file), GetParam().startsAnew ? Texts{entry("X2", "B")} : added);
}

TEST_P(ReportSourceSection, IsReadForTheWebPageUnlessItIsOfTheDocumentAlone) {
    EXPECT_EQ(entries({open, rowOfAnn("X1", "A"), close}, ReportScope::Correlation),
              GetParam().ofTheDocumentAlone ? Texts{} : Texts{entry("X1", "A")});
}

TEST_P(ReportSourceSection, HasNoLimit) {
    Texts file{open};
    for (int i = 0; i < 1000; ++i) file.push_back(rowOfAnn("X" + std::to_string(i), "A"));
    file.push_back(close);
    EXPECT_EQ(entries(file).size(), 1000u);
}

TEST(ReportSource, IgnoresModuleStepAndWhatLiesOutsideOfSections) {
    const ReportLists lists =
        read({rowOfAnn("S1", "A"), "<STEP>", rowOfAnn("S2", "B"), "</STEP>", "<MODULE>",
              rowOfAnn("S3", "C"), "</MODULE>", rowOfAnn("S4", "D")});
    for (const ListSection& section : sections)
        EXPECT_EQ((lists.*section.list).entries(), Texts{}) << section.name;
}

TEST(ReportSource, TakesEveryUsualLineEnd) {
    ReportLists lists;
    readReportSource("<STRENGTH>\r" + rowOfAnn("S1", "A") + "\n" + rowOfAnn("S2", "B") + "\r\n" +
                         rowOfAnn("S3", "C"),
                     ReportScope::Everything, lists);
    EXPECT_EQ(lists.strengthEntries.entries(),
              (Texts{entry("S1", "A"), entry("S2", "B"), entry("S3", "C")}));
}

struct Classified {
    std::string key;
    ReportRowKind kind;
};

class ReportRowOf : public testing::TestWithParam<Classified> {};
INSTANTIATE_TEST_SUITE_P(Key, ReportRowOf,
                         testing::Values(Classified{"O1", ReportRowKind::Parent},
                                         Classified{"", ReportRowKind::Parent},
                                         Classified{"O1-S2-W3", ReportRowKind::Parent},
                                         Classified{"O1-S2", ReportRowKind::Strength},
                                         Classified{"S1-S", ReportRowKind::Strength},
                                         Classified{"O1-W2", ReportRowKind::Weakness},
                                         Classified{"O1-s2", ReportRowKind::Weakness},
                                         Classified{"S1-", ReportRowKind::Weakness},
                                         Classified{"-", ReportRowKind::Weakness}));

TEST_P(ReportRowOf, TellsWhatTheRowIs) {
    const std::string whole = entry(GetParam().key, "text");
    ReportRow row{};
    ASSERT_TRUE(classifyEntry(whole, row));
    EXPECT_EQ(row.kind, GetParam().kind) << GetParam().key;
    EXPECT_EQ(row.text, "text");
}

TEST(ReportRow, HasExactlyAKeyAndAText) {
    ReportRow row{};
    EXPECT_FALSE(classifyEntry("", row));
    EXPECT_FALSE(classifyEntry("O1", row));
    EXPECT_FALSE(classifyEntry(entry(entry("O1", "a"), "b"), row));
    EXPECT_TRUE(classifyEntry(entry("O1", ""), row));
}

// Without its mark the text turns into a delimiter, and the entry falls apart in three.
TEST(ReportRow, IsPassedOverWhereAMarkHidADelimiter) {
    const ReportLists lists =
        read({"<OPPORTUNITYMAPPING>", rowOfAnn("O1", "<!-SW[+]OT-!>"), "</OPPORTUNITYMAPPING>"});
    ReportRow row{};
    ASSERT_EQ(lists.opportunityMapEntries.entries().size(), 1u);
    EXPECT_FALSE(classifyEntry(lists.opportunityMapEntries.entries().front(), row));
}

}  // namespace
}  // namespace orvanta::test
