#include <gtest/gtest.h>

#include "full_analysis.h"
#include "report_bench.h"
#include "rtf_reader.h"

namespace orvanta::test {

namespace {

enum TableNumber { opportunityMap, threatMap, opportunities, threats, strengths, weaknesses };
constexpr std::array mappingTables{opportunityMap, threatMap};
constexpr std::array listTables{opportunities, threats, strengths, weaknesses};

RtfDocument documentOf(const Analysis& analysis) {
    return readRtf(ReportBench(analysis).document());
}

/// The document of an analyze file that is told line by line.
RtfDocument documentOf(const Texts& file) {
    ReportBench bench;
    bench.disk.files["docs/team.aze"] = lines(file);
    return readRtf(bench.document());
}

std::string line(const std::string& key, const std::string& text) {
    return rowLine(key, "[Ann]: ", text);
}

RtfTable table(const RtfDocument& document, TableNumber number) {
    return document.tables().at(number);
}

Texts texts(const RtfRow& row) {
    Texts texts;
    for (const RtfCell& cell : row.cells) texts.push_back(cell.text());
    return texts;
}

/// The texts of all rows but the first.
std::vector<Texts> entries(const RtfTable& table) {
    std::vector<Texts> rows;
    for (const RtfRow& row : table)
        if (&row != &table.front()) rows.push_back(texts(row));
    return rows;
}

std::vector<Texts> mapped(const RtfRow& group) {
    std::vector<Texts> rows;
    for (const RtfRow& row : group.cells.front().nested) rows.push_back(texts(row));
    return rows;
}

RtfRun lookOf(const RtfCell& cell) { return cell.paragraphs.front().runs.front(); }

/// As "Arial 12 bold italic".
std::string shown(const RtfRun& look) {
    return look.font + " " + std::to_string(look.size) + (look.bold ? " bold" : "") +
           (look.italic ? " italic" : "");
}

std::string lookOf(const RtfDocument& document, std::size_t block) {
    return shown(std::get<RtfParagraph>(document.body.at(block)).runs.front());
}

bool isKeptWithNext(const RtfRow& row) {
    for (const RtfCell& cell : row.cells)
        for (const RtfParagraph& paragraph : cell.paragraphs)
            if (!paragraph.words.contains("keepn")) return false;
    return true;
}

bool hasSpacing(const RtfCell& cell, int points) {
    const RtfWords& words = cell.paragraphs.front().words;
    return words.at("sb") == points * 20 && words.at("sa") == points * 20;
}

bool isCentred(const RtfCell& cell) { return cell.paragraphs.front().words.contains("qc"); }
bool isUpward(const RtfCell& cell) { return cell.words.contains("cltxbtlr"); }

}  // namespace

TEST(ReportDocument, HasItsTitlesTextsAndTablesInOrder) {
    EXPECT_EQ(documentOf(smallAnalysis()).outline(), (Texts{"SWOT Analysis - Correlation Report",
                                                            "",
                                                            "Usage Instructions:",
                                                            usageText,
                                                            "",
                                                            "#",
                                                            "",
                                                            "#",
                                                            "",
                                                            "SWOT Analysis - List Report",
                                                            "",
                                                            "",
                                                            "Usage Instructions:",
                                                            usageText,
                                                            "",
                                                            "#",
                                                            "",
                                                            "#",
                                                            "",
                                                            "#",
                                                            "",
                                                            "#",
                                                            ""}));
}

TEST(ReportDocument, SetsTitlesAndTextsInTheirFonts) {
    const RtfDocument document = documentOf(smallAnalysis());
    for (const std::size_t title : {0u, 9u}) EXPECT_EQ(lookOf(document, title), "Arial 20 bold");
    for (const std::size_t head : {2u, 12u}) EXPECT_EQ(lookOf(document, head), "Arial 10 bold");
    for (const std::size_t text : {3u, 13u}) EXPECT_EQ(lookOf(document, text), "Arial 10");
}

TEST(ReportDocument, HasATitleOfItsOwnAndTwoHeadings) {
    const RtfDocument document = documentOf(smallAnalysis());
    EXPECT_EQ(document.title, "SWOT Analysis - Correlation Report");
    std::vector<std::size_t> headings;
    for (std::size_t block = 0; block < document.body.size(); ++block)
        if (const auto* paragraph = std::get_if<RtfParagraph>(&document.body[block]);
            paragraph && paragraph->words.contains("outlinelevel"))
            headings.push_back(block);
    EXPECT_EQ(headings, (std::vector<std::size_t>{0, 9}));
}

TEST(ReportDocument, KeepsItsTitlesAndTextsWithTheTableBelow) {
    const RtfDocument document = documentOf(smallAnalysis());
    std::string kept;  // a letter for each block: a table, kept or loose
    for (const auto& block : document.body) {
        const auto* paragraph = std::get_if<RtfParagraph>(&block);
        kept += !paragraph ? '#' : paragraph->words.contains("keepn") ? 'k' : '.';
    }
    EXPECT_EQ(kept, "kkkkk#.#.kkkkkk#.#.#.#.");
}

TEST(ReportDocument, IsALandscapePage) {
    const RtfWords page = documentOf(smallAnalysis()).words;
    EXPECT_TRUE(page.contains("landscape"));
    for (const auto& [word, points] : RtfWords{{"paperw", 800},
                                               {"paperh", 612},
                                               {"margl", 100},
                                               {"margt", 72},
                                               {"margb", 36},
                                               {"margr", 72}})
        EXPECT_EQ(page.at(word), points * 20) << word;
}

TEST(ReportDocument, HeadsTheCorrelationTables) {
    const RtfDocument document = documentOf(smallAnalysis());
    for (const auto& [number, word] :
         {std::pair{opportunityMap, "Opportunities"}, {threatMap, "Threats"}}) {
        const RtfRow head = table(document, number).front();
        EXPECT_EQ(texts(head), (Texts{std::string(word) + "\n     +Strength / -Weakness",
                                      "Priority", "Action Plan"}));
        const auto& lines = head.cells[0].paragraphs;
        EXPECT_EQ(shown(lines[0].runs.front()), "Arial 18 bold");
        EXPECT_EQ(shown(lines[1].runs.front()), "Arial 12 bold italic");
        EXPECT_EQ(shown(lookOf(head.cells[1])), "Arial 12 bold");
        EXPECT_EQ(shown(lookOf(head.cells[2])), "Arial 16 bold");
        EXPECT_TRUE(isUpward(head.cells[1]) && isCentred(head.cells[1]));
        for (const RtfCell& cell : head.cells) {
            EXPECT_EQ(cell.background, "204,204,204");
            EXPECT_TRUE(cell.words.contains("clvertalc") && hasSpacing(cell, 6));
        }
    }
}

TEST(ReportDocument, HeadsTheListTables) {
    const RtfDocument document = documentOf(smallAnalysis());
    const std::array names{"Opportunities", "Threats", "Strengths", "Weaknesses"};
    for (const TableNumber number : listTables) {
        const RtfRow head = table(document, number).front();
        EXPECT_EQ(texts(head), (Texts{names[number - opportunities], "Priority", "Comments"}));
        EXPECT_EQ(shown(lookOf(head.cells[0])), "Arial 20 bold");
        EXPECT_EQ(shown(lookOf(head.cells[1])), "Arial 12 bold");
        EXPECT_EQ(shown(lookOf(head.cells[2])), "Arial 16 bold");
        EXPECT_TRUE(isUpward(head.cells[1]));
        for (const RtfCell& cell : head.cells) {
            EXPECT_EQ(cell.background, "204,204,204");
            EXPECT_TRUE(cell.words.contains("clvertalc"));
        }
    }
}

TEST(ReportDocument, GivesEveryTableTheSameColumnsAndAHeavyEdgeAtRightAndBelow) {
    for (const RtfTable& table : documentOf(smallAnalysis()).tables())
        for (const RtfRow& row : table) {
            EXPECT_EQ(row.cells[0].width, 330);
            EXPECT_EQ(row.cells[1].width, 30);
            EXPECT_EQ(row.cells[2].width, 250);
            for (const RtfCell& cell : row.cells) {
                EXPECT_EQ(cell.right, &cell == &row.cells.back() ? 60 : 10);
                EXPECT_EQ(cell.bottom, &row == &table.back() ? 60 : 10);
            }
        }
}

TEST(ReportDocument, SetsAStatementWithItsPriorityAndRoomForAPlan) {
    const RtfDocument document = documentOf(smallAnalysis());
    for (const TableNumber number : mappingTables) {
        const RtfRow row = table(document, number)[1];
        EXPECT_EQ(texts(row), (Texts{number == opportunityMap ? "New market" : "Strike", "1", ""}));
        EXPECT_EQ(row.words.at("trrh"), 440);
        EXPECT_EQ(shown(lookOf(row.cells[0])), "Arial 12 bold");
        EXPECT_EQ(shown(lookOf(row.cells[1])), "Arial 12 bold");
        EXPECT_FALSE(isCentred(row.cells[0]) || isUpward(row.cells[1]));
        EXPECT_TRUE(isCentred(row.cells[1]));
        for (const RtfCell& cell : row.cells) {
            EXPECT_EQ(cell.background, "250,250,250");
            EXPECT_TRUE(hasSpacing(cell, 6));
        }
    }
}

TEST(ReportDocument, PutsMixedMappingsInOneTableInTheirOrder) {
    const RtfTable map = table(documentOf(smallAnalysis()), opportunityMap);
    ASSERT_EQ(map.size(), 4u);
    EXPECT_EQ(
        mapped(map[2]),
        (std::vector<Texts>{{"+", "Loyal customers"}, {"-", "Slow delivery"}, {"+", "Own fleet"}}));
    EXPECT_EQ(texts(map[2]), (Texts{"", "", ""}));  // the priority stands above the group
}

TEST(ReportDocument, SetsTheMappedRowsSmallWithoutBorders) {
    const RtfDocument document = documentOf(smallAnalysis());
    const RtfRow group = table(document, opportunityMap)[2];
    for (const RtfRow& row : group.cells[0].nested) {
        EXPECT_EQ(row.cells[0].width, 20);
        EXPECT_EQ(row.cells[1].width, 300);
        EXPECT_TRUE(isCentred(row.cells[0]));
        EXPECT_FALSE(isCentred(row.cells[1]));
        for (const RtfCell& cell : row.cells) {
            EXPECT_EQ(shown(lookOf(cell)), "Arial 10");
            EXPECT_TRUE(hasSpacing(cell, 3));
            EXPECT_EQ(cell.top + cell.left + cell.bottom + cell.right, 0);
        }
    }
}

TEST(ReportDocument, HasNoGroupForAStatementWithoutMappings) {
    const RtfTable map = table(documentOf(smallAnalysis()), opportunityMap);
    EXPECT_EQ(texts(map[3]), (Texts{"Partner abroad", "2", ""}));
    EXPECT_TRUE(map[3].cells[0].nested.empty());
}

TEST(ReportDocument, NumbersEachCorrelationTableFromOne) {
    const RtfDocument document = documentOf(smallAnalysis());
    for (const TableNumber number : mappingTables) {
        std::string numbers;
        for (const Texts& row : entries(table(document, number))) numbers += row[1];
        EXPECT_EQ(numbers, "12");
    }
}

TEST(ReportDocument, ListsTheStatementsWithTheirPlace) {
    const RtfDocument document = documentOf(smallAnalysis());
    EXPECT_EQ(entries(table(document, opportunities)),
              (std::vector<Texts>{{"New market", "1", ""}, {"Partner abroad", "2", ""}}));
    EXPECT_EQ(entries(table(document, threats)),
              (std::vector<Texts>{{"Strike", "1", ""}, {"New competitor", "2", ""}}));
    EXPECT_EQ(entries(table(document, strengths)),
              (std::vector<Texts>{{"Loyal customers", "1", ""}, {"Own fleet", "2", ""}}));
    EXPECT_EQ(entries(table(document, weaknesses)), std::vector<Texts>{});
}

TEST(ReportDocument, SetsAListedStatementInPlainType) {
    const RtfRow row = table(documentOf(smallAnalysis()), strengths)[2];
    EXPECT_EQ(row.words.at("trrh"), 440);
    EXPECT_TRUE(isCentred(row.cells[1]));
    EXPECT_FALSE(isCentred(row.cells[0]) || isUpward(row.cells[1]));
    for (const RtfCell& cell : row.cells) {
        EXPECT_EQ(shown(lookOf(cell)), "Arial 12");
        EXPECT_EQ(cell.background, "250,250,250");
        EXPECT_TRUE(hasSpacing(cell, 6));
    }
}

TEST(ReportDocument, RepeatsTheHeadsOfTheListTablesAlone) {
    const RtfDocument document = documentOf(smallAnalysis());
    for (const TableNumber number : mappingTables)
        for (const RtfRow& row : table(document, number)) EXPECT_FALSE(row.words.contains("trhdr"));
    for (const TableNumber number : listTables)
        for (const RtfRow& row : table(document, number))
            EXPECT_EQ(row.words.contains("trhdr"), row.words.at("trrh") == 1200);
}

TEST(ReportDocument, KeepsAStatementWithItsGroupAndAListTogether) {
    const RtfDocument document = documentOf(smallAnalysis());
    const auto kept = [&](TableNumber number) {
        std::vector<bool> rows;
        for (const RtfRow& row : table(document, number)) rows.push_back(isKeptWithNext(row));
        return rows;
    };
    EXPECT_EQ(kept(opportunityMap), (std::vector{true, true, false, true}));
    EXPECT_EQ(kept(threatMap), (std::vector{true, true, true, true}));
    EXPECT_EQ(kept(strengths), (std::vector{true, true, true}));
    EXPECT_EQ(kept(weaknesses), (std::vector{true}));
}

TEST(ReportDocument, ListsAStrengthOnceHoweverOftenItIsMapped) {
    const RtfDocument document = documentOf(
        Analysis{.strengths = {{"S1", "Own fleet"}},
                 .opportunityMap = {
                     {"O1", "a"}, {"O1-S1", "Own fleet"}, {"O2", "b"}, {"O2-S1", "Own fleet"}}});
    const RtfTable map = table(document, opportunityMap);
    for (const int group : {2, 4})
        EXPECT_EQ(mapped(map.at(group)), (std::vector<Texts>{{"+", "Own fleet"}}));
    EXPECT_EQ(table(document, strengths).size(), 2u);
}

TEST(ReportDocument, TakesAStatementAsItStands) {
    const std::string text =
        "a {b} \\c <d> & \x93"
        "e\x94 \xe9 \x80 5\tf  g";
    const RtfDocument document = documentOf(
        Analysis{.strengths = {{"S1", text}}, .opportunityMap = {{"O1", text}, {"O1-W1", text}}});
    EXPECT_EQ(table(document, opportunityMap)[1].cells[0].text(), text);
    EXPECT_EQ(mapped(table(document, opportunityMap)[2]), (std::vector<Texts>{{"-", text}}));
    EXPECT_EQ(table(document, strengths)[1].cells[0].text(), text);
}

TEST(ReportDocument, DropsMarksFromMappedTextsAndFromNoOthers) {
    const RtfDocument document =
        documentOf(Analysis{.strengths = {{"S1", "[+] a[-]"}},
                            .opportunityMap = {{"O1", "[+][-] a [+]"}, {"O1-S1", " [[+]-]b"}}});
    const RtfTable map = table(document, opportunityMap);
    EXPECT_EQ(map[1].cells[0].text(), "a");
    EXPECT_EQ(mapped(map[2]), (std::vector<Texts>{{"+", "b"}}));
    EXPECT_EQ(table(document, strengths)[1].cells[0].text(), "[+] a[-]");
}

TEST(ReportDocument, NumbersAListWithoutGapsWhereRowsWereDropped) {
    const RtfDocument document =
        documentOf(Texts{"<STRENGTH>", line("S1", "first"), "S2<!-SWOT-!>two fields",
                         line("S3", "a<!-SWOT-!>b"), "", line("S4", "second"), "</STRENGTH>"});
    EXPECT_EQ(entries(table(document, strengths)),
              (std::vector<Texts>{{"first", "1", ""}, {"second", "2", ""}}));
}

TEST(ReportDocument, SkipsAMappedRowWhoseTextBecomesTwoWithoutItsMarks) {
    const RtfDocument document = documentOf(Texts{"<OPPORTUNITYMAPPING>", line("O1", "one"),
                                                  line("O2", "two<!-SW[+]OT-!>more"),
                                                  line("O3", "three"), "</OPPORTUNITYMAPPING>"});
    EXPECT_EQ(entries(table(document, opportunityMap)),
              (std::vector<Texts>{{"one", "1", ""}, {"three", "2", ""}}));
}

TEST(ReportDocument, TakesAKeyWithTwoHyphensForAStatement) {
    const RtfDocument document = documentOf(Texts{"<THREATMAPPING>", line("T1-S1-x", "odd"),
                                                  line("T1-X1", "minus"), "</THREATMAPPING>"});
    const RtfTable map = table(document, threatMap);
    EXPECT_EQ(texts(map[1]), (Texts{"odd", "1", ""}));
    EXPECT_EQ(mapped(map[2]), (std::vector<Texts>{{"-", "minus"}}));
}

TEST(ReportDocument, OverwritesTheFrontOfAListWithARepeatedSectionAndKeepsItsTail) {
    const RtfDocument document =
        documentOf(Texts{"<WEAKNESS>", line("W1", "a"), line("W2", "b"), "</WEAKNESS>",
                         " <WEAKNESS> ", line("W3", "c"), "  </WEAKNESS>"});
    EXPECT_EQ(entries(table(document, weaknesses)),
              (std::vector<Texts>{{"c", "1", ""}, {"b", "2", ""}}));
}

TEST(ReportDocument, AddsARepeatedMappingSectionToTheFirstOne) {
    const RtfDocument document =
        documentOf(Texts{"<THREATMAPPING>", line("T1", "a"), "</THREATMAPPING>", "<THREATMAPPING>",
                         line("T2", "b"), "</THREATMAPPING>"});
    EXPECT_EQ(entries(table(document, threatMap)),
              (std::vector<Texts>{{"a", "1", ""}, {"b", "2", ""}}));
}

TEST(ReportDocument, TakesTagsByTheirCase) {
    const RtfDocument document = documentOf(
        Texts{"<strength>", line("S1", "a"), "</strength>", "<STEP>", line("S2", "b"), "</STEP>"});
    EXPECT_TRUE(entries(table(document, strengths)).empty());
}

TEST(ReportDocument, HoldsMoreEntriesThanAListStartsWith) {
    Texts file{"<STRENGTH>"};
    for (int i = 1; i <= 45; ++i) file.push_back(line("S" + std::to_string(i), "text"));
    const RtfTable list = table(documentOf(file), strengths);
    ASSERT_EQ(list.size(), 46u);
    EXPECT_EQ(list.back().cells[1].text(), "45");
}

TEST(ReportDocument, OfAnEmptyAnalysisHasItsFixedPartsAlone) {
    const RtfDocument document = documentOf(Analysis{});
    EXPECT_EQ(document.outline(), documentOf(smallAnalysis()).outline());
    for (const RtfTable& table : document.tables()) {
        ASSERT_EQ(table.size(), 1u);
        for (const RtfCell& cell : table[0].cells) EXPECT_EQ(cell.bottom, 60);
    }
}

TEST(ReportDocument, IsTheSameEachTime) {
    EXPECT_EQ(ReportBench().document(), ReportBench().document());
}

}  // namespace orvanta::test
