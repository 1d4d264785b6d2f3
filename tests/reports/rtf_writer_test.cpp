#include "reports/rtf_writer.h"

#include <gtest/gtest.h>

#include "rtf_reader.h"

namespace orvanta::test {

namespace {

DocumentParagraph paragraphOf(const std::string& text, const CharacterFormat& format = {}) {
    return {.runs = {{text, format}}, .mark = format, .format = {}};
}

/// A document of one paragraph.
Document documentOf(const std::string& text, const CharacterFormat& format = {}) {
    Document document;
    document.body.blocks.assign(1, paragraphOf(text, format));
    return document;
}

std::string shown(const std::string& text) {
    return readRtf(rtfBytes(documentOf(text))).outline().front();
}

std::shared_ptr<DocumentTable> tableOf(std::size_t rows, const std::vector<int>& widths) {
    auto table = std::make_shared<DocumentTable>();
    table->columnWidths = widths;
    table->rows.resize(rows);
    for (DocumentRow& row : table->rows)
        for (std::size_t i = 0; i < widths.size(); ++i)
            row.cells.push_back(std::make_shared<DocumentCell>());
    return table;
}

Document documentOf(const std::shared_ptr<DocumentTable>& table) {
    Document document;
    document.body.blocks.insert(document.body.blocks.begin(), table);
    return document;
}

RtfTable written(const std::shared_ptr<DocumentTable>& table) {
    return readRtf(rtfBytes(documentOf(table))).tables().front();
}

bool hasWord(const RtfWords& words, const std::string& word) { return words.contains(word); }

}  // namespace

class RtfByte : public testing::TestWithParam<int> {};

TEST_P(RtfByte, OfAStatementIsWrittenWholeOrNotAtAll) {
    const auto byte = static_cast<char>(GetParam());
    const bool isControl = (GetParam() < 32 && byte != '\t') || GetParam() == 127;
    EXPECT_EQ(shown(std::string("a") + byte + "b1"),
              isControl ? "ab1" : std::string("a") + byte + "b1");
}
INSTANTIATE_TEST_SUITE_P(All, RtfByte, testing::Range(0, 256));

TEST(RtfWriter, KeepsAStatementThatLooksLikeItsOwnWords) {
    const std::string text = "\\par}{\\b bold\\'41\\cell\\row {\\*\\x} C:\\new\\table";
    EXPECT_EQ(shown(text), text);
}

TEST(RtfWriter, KeepsBlanksAtBothEndsAndInARow) {
    EXPECT_EQ(shown("  five     blanks  "), "  five     blanks  ");
}

TEST(RtfWriter, KeepsADigitOrBlankBehindAnEscapedCharacter) {
    EXPECT_EQ(shown("\x80"
                    "9 \xe9"
                    "9 \t9 \t x"),
              "\x80"
              "9 \xe9"
              "9 \t9 \t x");
}

TEST(RtfWriter, WritesAnEmptyParagraph) {
    EXPECT_EQ(readRtf(rtfBytes(Document{})).outline(), (std::vector<std::string>{""}));
}

TEST(RtfWriter, TellsTheWholeLookOfEachRun) {
    const CharacterFormat loud{.font = "Arial", .size = 18, .bold = true, .italic = true};
    Document document = documentOf("loud", loud);
    std::get<DocumentParagraph>(document.body.blocks.front()).runs.push_back({"plain", {}});
    const RtfDocument read = readRtf(rtfBytes(document));
    const auto& runs = std::get<RtfParagraph>(read.body.front()).runs;
    ASSERT_EQ(runs.size(), 3u);
    EXPECT_EQ(runs[0].font, "Arial");
    EXPECT_EQ(runs[0].size, 18);
    EXPECT_TRUE(runs[0].bold && runs[0].italic);
    EXPECT_EQ(runs[1].font, "Times New Roman");
    EXPECT_EQ(runs[1].size, 12);
    EXPECT_FALSE(runs[1].bold || runs[1].italic);
    EXPECT_TRUE(runs[2].bold && runs[2].italic);  // the end of the paragraph
}

TEST(RtfWriter, TellsTheFormatOfAParagraphInPoints) {
    Document document = documentOf("x");
    std::get<DocumentParagraph>(document.body.blocks.front()).format = {
        .alignment = Alignment::Centred, .spaceBefore = 6, .spaceAfter = 3, .keepWithNext = true};
    const RtfDocument read = readRtf(rtfBytes(document));
    const RtfWords words = std::get<RtfParagraph>(read.body.front()).words;
    EXPECT_EQ(words.at("sb"), 120);
    EXPECT_EQ(words.at("sa"), 60);
    EXPECT_TRUE(hasWord(words, "qc") && hasWord(words, "keepn"));
    EXPECT_FALSE(hasWord(words, "ql"));
}

TEST(RtfWriter, TellsThePageForTheDocumentAndForItsSection) {
    Document document;
    document.page = {.width = 800,
                     .height = 612,
                     .left = 100,
                     .top = 72,
                     .right = 72,
                     .bottom = 36,
                     .landscape = true};
    const RtfWords page = readRtf(rtfBytes(document)).words;
    for (const auto& [word, twips] : RtfWords{{"paperw", 16000},
                                              {"pgwsxn", 16000},
                                              {"paperh", 12240},
                                              {"pghsxn", 12240},
                                              {"margl", 2000},
                                              {"marglsxn", 2000},
                                              {"margr", 1440},
                                              {"margrsxn", 1440},
                                              {"margt", 1440},
                                              {"margtsxn", 1440},
                                              {"margb", 720},
                                              {"margbsxn", 720}})
        EXPECT_EQ(page.at(word), twips) << word;
    EXPECT_TRUE(hasWord(page, "landscape") && hasWord(page, "lndscpsxn"));
}

TEST(RtfWriter, WritesColumnWidthsFromTheLeftEdgeOn) {
    const RtfTable table = written(tableOf(2, {330, 30, 250}));
    ASSERT_EQ(table.size(), 2u);
    for (const RtfRow& row : table) {
        EXPECT_EQ(row.cells[0].width, 330);
        EXPECT_EQ(row.cells[1].width, 30);
        EXPECT_EQ(row.cells[2].width, 250);
        EXPECT_EQ(row.cells[2].words.at("cellx"), 12092);
    }
}

TEST(RtfWriter, WritesBordersOnlyWhereTheTableHasThem) {
    auto table = tableOf(1, {100});
    EXPECT_EQ(written(table)[0].cells[0].top, 0);
    table->hasBorders = true;
    const RtfCell cell = written(table)[0].cells[0];
    for (const int width : {cell.top, cell.left, cell.bottom, cell.right}) EXPECT_EQ(width, 10);
}

TEST(RtfWriter, WritesAWideEdgeInThreePoints) {
    auto table = tableOf(1, {100, 100});
    table->hasBorders = true;
    table->rows[0].cells[1]->rightEdge = 24;
    table->rows[0].cells[0]->bottomEdge = 24;
    const RtfRow row = written(table)[0];
    EXPECT_EQ(row.cells[1].right, 60);
    EXPECT_EQ(row.cells[0].bottom, 60);
    EXPECT_EQ(row.cells[0].right, 10);
    EXPECT_EQ(row.cells[1].bottom, 10);
}

TEST(RtfWriter, WritesTheLooksOfACell) {
    auto table = tableOf(1, {100, 100});
    DocumentCell& dressed = *table->rows[0].cells[0];
    dressed.shading = 204 + 205 * 256 + 206 * 65536;
    dressed.direction = TextDirection::Upward;
    dressed.centredVertically = true;
    const RtfRow row = written(table)[0];
    EXPECT_EQ(row.cells[0].background, "204,205,206");
    EXPECT_TRUE(hasWord(row.cells[0].words, "cltxbtlr"));
    EXPECT_TRUE(hasWord(row.cells[0].words, "clvertalc"));
    EXPECT_EQ(row.cells[1].background, "");
    EXPECT_TRUE(hasWord(row.cells[1].words, "cltxlrtb"));
    EXPECT_FALSE(hasWord(row.cells[1].words, "clvertalc"));
}

TEST(RtfWriter, WritesTheLeastHeightOfARowAndNoneWithoutOne) {
    auto table = tableOf(2, {100});
    table->rows[0].height = 22;
    EXPECT_EQ(written(table)[0].words.at("trrh"), 440);
    EXPECT_FALSE(hasWord(written(table)[1].words, "trrh"));
}

TEST(RtfWriter, WritesAHeadingRowHighEnoughForUpwardText) {
    auto table = tableOf(2, {100});
    table->rows[0].repeatsAsHeader = true;
    EXPECT_TRUE(hasWord(written(table)[0].words, "trhdr"));
    EXPECT_EQ(written(table)[0].words.at("trrh"), 1200);
    EXPECT_FALSE(hasWord(written(table)[1].words, "trhdr"));
}

TEST(RtfWriter, WritesATableInACellAndWhatStandsAroundIt) {
    auto outer = tableOf(1, {330, 30});
    auto inner = tableOf(2, {20, 300});
    inner->rows[0].cells[1]->story.blocks.assign(1, paragraphOf("first"));
    inner->rows[1].cells[0]->story.blocks.assign(1, paragraphOf("-"));
    inner->rows[1].cells[1]->story.blocks.assign(1, paragraphOf("second"));
    Story& story = outer->rows[0].cells[0]->story;
    story.blocks = {paragraphOf("before"), inner, paragraphOf("behind")};
    outer->rows[0].cells[1]->story.blocks.assign(1, paragraphOf("beside"));
    const RtfRow row = written(outer)[0];
    EXPECT_EQ(row.cells[0].text(), "before\nbehind");
    EXPECT_EQ(row.cells[1].text(), "beside");
    ASSERT_EQ(row.cells[0].nested.size(), 2u);
    EXPECT_EQ(row.cells[0].nested[0].cells[1].text(), "first");
    EXPECT_EQ(row.cells[0].nested[1].cells[0].text(), "-");
    EXPECT_EQ(row.cells[0].nested[1].cells[1].text(), "second");
    EXPECT_EQ(row.cells[0].nested[0].cells[0].width, 20);
    EXPECT_EQ(row.cells[0].nested[0].cells[1].width, 300);
    EXPECT_TRUE(row.cells[1].nested.empty());
}

TEST(RtfWriter, HoldsNoRowOfATableInACellTogetherNorPadsIt) {
    auto outer = tableOf(1, {330});
    auto inner = tableOf(1, {20, 300});
    inner->rows[0].staysWhole = true;
    outer->rows[0].cells[0]->story.blocks = {inner, paragraphOf("")};
    const RtfRow row = written(outer)[0].cells[0].nested.at(0);
    EXPECT_FALSE(hasWord(row.words, "trkeep"));
    EXPECT_FALSE(hasWord(row.cells[0].words, "clpadl"));
}

TEST(RtfWriter, KeepsTwoTablesApart) {
    Document document;
    document.body.blocks = {tableOf(1, {100}), paragraphOf(""), tableOf(1, {100}), paragraphOf("")};
    EXPECT_EQ(readRtf(rtfBytes(document)).outline(), (std::vector<std::string>{"#", "", "#", ""}));
}

TEST(RtfWriter, MakesRoomForThreeFiguresInANarrowColumn) {
    const RtfRow row = written(tableOf(1, {330, 30}))[0];
    for (const std::string edge : {"l", "t", "r"}) {
        EXPECT_EQ(row.cells[1].words.at("clpad" + edge), 20) << edge;
        EXPECT_EQ(row.cells[1].words.at("clpadf" + edge), 3) << edge;
        EXPECT_FALSE(hasWord(row.cells[0].words, "clpad" + edge));
    }
}

TEST(RtfWriter, KeepsUpwardTextOffItsEdgesInANarrowColumn) {
    auto table = tableOf(1, {30});
    table->rows[0].cells[0]->direction = TextDirection::Upward;
    for (const std::string edge : {"l", "t", "b", "r"})
        EXPECT_EQ(written(table)[0].cells[0].words.at("clpad" + edge), 108) << edge;
}

TEST(RtfWriter, HoldsARowTogetherThatStaysWhole) {
    auto table = tableOf(2, {100});
    table->rows[1].staysWhole = true;
    EXPECT_FALSE(hasWord(written(table)[0].words, "trkeep"));
    EXPECT_TRUE(hasWord(written(table)[1].words, "trkeep"));
}

TEST(RtfWriter, TakesTheFirstLargeLineForTheTitleAndEachForAHeading) {
    Document document = documentOf("before");
    for (const std::string text : {"{First}", "Second"})
        document.body.blocks.push_back(paragraphOf(text, {.font = "Arial", .size = 20}));
    const RtfDocument read = readRtf(rtfBytes(document));
    EXPECT_EQ(read.title, "{First}");
    const auto words = [&](std::size_t block) {
        return std::get<RtfParagraph>(read.body[block]).words;
    };
    EXPECT_FALSE(hasWord(words(0), "s") || hasWord(words(0), "outlinelevel"));
    for (const std::size_t block : {1u, 2u}) {
        EXPECT_EQ(words(block).at("s"), 1);
        EXPECT_EQ(words(block).at("outlinelevel"), 0);
    }
}

TEST(RtfWriter, StylesAHeadingAsItsFirstOneLooks) {
    const RtfDocument read =
        readRtf(rtfBytes(documentOf("x", {.font = "Arial", .size = 20, .bold = true})));
    const RtfStyle& heading = read.styles.at(1);
    EXPECT_EQ(heading.name, "heading 1");
    EXPECT_EQ(heading.words.at("fs"), 40);
    EXPECT_EQ(heading.words.at("f"), 1);
    EXPECT_EQ(heading.words.at("b"), 1);
    EXPECT_EQ(heading.words.at("outlinelevel"), 0);
}

TEST(RtfWriter, TakesNoLineOfATableAndNoEmptyOneForATitle) {
    const CharacterFormat large{.font = "Arial", .size = 20};
    auto table = tableOf(1, {100});
    table->rows[0].cells[0]->story.blocks.assign(1, paragraphOf("in a cell", large));
    Document document = documentOf(table);
    document.body.blocks.emplace_back(DocumentParagraph{.runs = {}, .mark = large, .format = {}});
    const RtfDocument read = readRtf(rtfBytes(document));
    EXPECT_EQ(read.title, "");
    EXPECT_FALSE(read.styles.contains(1));
    EXPECT_FALSE(hasWord(read.tables()[0][0].cells[0].paragraphs[0].words, "s"));
}

TEST(RtfWriter, HasAStyleForABlankLineOfTheLowestSizeAlone) {
    const auto styleOf = [](const DocumentParagraph& paragraph) {
        Document document;
        document.body.blocks.assign(1, paragraph);
        const RtfDocument read = readRtf(rtfBytes(document));
        EXPECT_EQ(read.styles.at(2).words.at("fs"), 2);
        const RtfWords& words = std::get<RtfParagraph>(read.body.front()).words;
        return hasWord(words, "s") ? words.at("s") : 0;
    };
    EXPECT_EQ(styleOf(paragraphOf("", {.size = lowestLine})), 2);
    EXPECT_EQ(styleOf(paragraphOf("small", {.size = lowestLine})), 0);
    EXPECT_EQ(styleOf(DocumentParagraph{}), 0);
}

TEST(RtfWriter, IsInAmericanEnglishAndLeavesNoLineOfAParagraphAlone) {
    const RtfDocument read = readRtf(rtfBytes(documentOf("x", {.font = "Arial", .size = 20})));
    EXPECT_EQ(read.words.at("deflang"), 1033);
    for (const auto& [number, style] : read.styles) EXPECT_EQ(style.words.at("lang"), 1033);
    EXPECT_TRUE(hasWord(read.words, "widowctrl"));
    EXPECT_TRUE(hasWord(std::get<RtfParagraph>(read.body.front()).words, "widctlpar"));
}

TEST(RtfWriter, ListsEachFontOnceWithTheStandardOneAsNumberNought) {
    Document document = documentOf("a", {.font = "Arial"});
    document.body.blocks.push_back(paragraphOf("b", {.font = "Arial"}));
    const std::string bytes = rtfBytes(document);
    EXPECT_NE(bytes.find("{\\fonttbl{\\f1\\fswiss\\fcharset0 Arial;}"
                         "{\\f0\\froman\\fcharset0 Times New Roman;}}"),
              std::string::npos)
        << bytes;
}

}  // namespace orvanta::test
