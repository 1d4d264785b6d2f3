#include "reports/document_pages.h"

#include <gtest/gtest.h>

#include "reports/rtf_writer.h"

namespace orvanta::test {

namespace {

using TablePtr = std::shared_ptr<DocumentTable>;

DocumentParagraph plainParagraph(const std::string& text) {
    return {.runs = {{text, {}}}, .mark = {}, .format = {}};
}

DocumentRow rowOf(const std::string& text, bool kept) {
    DocumentRow row;
    row.cells.push_back(std::make_shared<DocumentCell>());
    row.cells.front()->story.lastParagraph() = plainParagraph(text);
    row.cells.front()->story.lastParagraph().format.keepWithNext = kept;
    return row;
}

/// A row with a table of so many lines in it.
DocumentRow groupOf(std::size_t lines) {
    DocumentRow group = rowOf("", false);
    auto inner = std::make_shared<DocumentTable>();
    inner->columnWidths = {300};
    inner->rows.assign(lines, rowOf("mapped", false));
    auto& blocks = group.cells.front()->story.blocks;
    blocks.insert(blocks.begin(), inner);
    return group;
}

TablePtr tableOf(const std::vector<DocumentRow>& rows) {
    auto table = std::make_shared<DocumentTable>();
    table->columnWidths = {330};
    table->rows.push_back(rowOf("head", false));
    table->rows.insert(table->rows.end(), rows.begin(), rows.end());
    return table;
}

/// A table that repeats its head, all its rows kept with the next.
TablePtr listOf(std::size_t entries) {
    TablePtr table = tableOf(std::vector(entries, rowOf("entry", true)));
    table->rows.front() = rowOf("head", true);
    table->rows.front().repeatsAsHeader = true;
    return table;
}

/// On a page with room for 36 lines of 12 points.
Document documentOf(std::vector<Block> blocks) {
    Document document;
    document.page = {.width = 800,
                     .height = 612,
                     .left = 100,
                     .top = 72,
                     .right = 72,
                     .bottom = 36,
                     .landscape = true};
    document.body.blocks = std::move(blocks);
    return document;
}

bool isKept(const Block& block) { return std::get<DocumentParagraph>(block).format.keepWithNext; }

bool isKept(const DocumentRow& row) { return isKept(row.cells.front()->story.blocks.back()); }

Document caredFor(Document document) {
    careForPages(document);
    return document;
}

/// Its rows may be one row many times over; those of the copy are rows of their own.
TablePtr copyOf(const DocumentTable& table) {
    auto copy = std::make_shared<DocumentTable>(table);
    for (DocumentRow& row : copy->rows)
        for (auto& cell : row.cells) cell = std::make_shared<DocumentCell>(*cell);
    return copy;
}

DocumentTable caredFor(const TablePtr& table, const std::string& above = "") {
    const TablePtr copy = copyOf(*table);
    caredFor(documentOf({plainParagraph(above), copy, plainParagraph("")}));
    return *copy;
}

/// A letter for each row: kept with the next or loose.
std::string keeping(const TablePtr& table, const std::string& above = "") {
    std::string letters;
    for (const DocumentRow& row : caredFor(table, above).rows) letters += isKept(row) ? 'k' : '.';
    return letters;
}

/// A letter for each row: whole or to be torn where need be.
std::string wholeness(const TablePtr& table) {
    std::string letters;
    for (const DocumentRow& row : caredFor(table).rows) letters += row.staysWhole ? 'w' : '.';
    return letters;
}

}  // namespace

TEST(PageCare, KeepsWhatStandsAboveATableWithIt) {
    const Document document = caredFor(documentOf(
        {plainParagraph("title"), plainParagraph(""), tableOf({}), plainParagraph("end")}));
    EXPECT_TRUE(isKept(document.body.blocks[0]));
    EXPECT_TRUE(isKept(document.body.blocks[1]));
    EXPECT_FALSE(isKept(document.body.blocks[3]));
}

TEST(PageCare, LetsAPageEndBetweenTwoTables) {
    const Document document =
        caredFor(documentOf({tableOf({}), plainParagraph(""), tableOf({}), plainParagraph("text"),
                             tableOf({}), plainParagraph("")}));
    EXPECT_FALSE(isKept(document.body.blocks[1]));
    EXPECT_TRUE(isKept(document.body.blocks[3]));
}

TEST(PageCare, MakesABlankLineBehindATableLowAndLeavesAGapBetweenTables) {
    DocumentParagraph blank = plainParagraph("");
    blank.mark.size = 20;
    const Document document =
        caredFor(documentOf({blank, tableOf({}), blank, blank, tableOf({}), blank}));
    const auto look = [&](std::size_t block) {
        const auto& paragraph = std::get<DocumentParagraph>(document.body.blocks[block]);
        return std::pair(paragraph.mark.size, paragraph.format.spaceAfter);
    };
    EXPECT_EQ(look(0), std::pair(20, 0));
    EXPECT_EQ(look(2), std::pair(1, 22));
    EXPECT_EQ(look(3), std::pair(20, 0));
    EXPECT_EQ(look(5), std::pair(1, 0));
}

TEST(PageCare, LeavesADocumentWithoutTablesAsItIs) {
    const Document document = caredFor(documentOf({plainParagraph("one"), plainParagraph("")}));
    for (const Block& block : document.body.blocks) EXPECT_FALSE(isKept(block));
}

TEST(PageCare, KeepsAHeadWithItsFirstRow) {
    EXPECT_EQ(keeping(tableOf({rowOf("one", false), rowOf("two", false)})), "k..");
}

TEST(PageCare, LetsAHeadWithoutRowsEndAPage) { EXPECT_EQ(keeping(tableOf({})), "."); }

TEST(PageCare, HoldsAListTogetherThatMayFitOnAPage) {
    EXPECT_EQ(keeping(listOf(30)), std::string(31, 'k'));
}

TEST(PageCare, LetsAListPartThatFitsOnNoPage) {
    EXPECT_EQ(keeping(listOf(40)), "k" + std::string(38, '.') + "kk");
}

TEST(PageCare, LetsAListPartThatFitsOnNoPageWithItsTitle) {
    EXPECT_EQ(keeping(listOf(30), std::string(1000, 'x')), "k" + std::string(28, '.') + "kk");
}

TEST(PageCare, KeepsStatementsWithoutGroupsTogetherOnlyWhileThereIsRoom) {
    const TablePtr table = tableOf(std::vector(60, rowOf("statement", true)));
    const auto untilLoose = [&](const std::string& above) {
        return keeping(table, above).find('.');
    };
    EXPECT_GT(untilLoose(""), 20u);
    EXPECT_LT(untilLoose(""), 36u);
    EXPECT_LT(untilLoose(std::string(1000, 'x')), 20u);  // the page holds that too
}

TEST(PageCare, KeepsAStatementWithItsGroupHoweverMuchIsKeptAbove) {
    std::vector<DocumentRow> rows(60, rowOf("statement", true));
    rows.push_back(groupOf(1));
    EXPECT_EQ(keeping(tableOf(rows)).substr(60, 1), "k");
}

TEST(PageCare, HoldsAGroupTogetherWhereItFitsWithItsStatement) {
    const DocumentRow statement = rowOf("statement", true);
    EXPECT_EQ(wholeness(tableOf({statement, groupOf(1), statement, groupOf(20)})), "...ww");
    EXPECT_EQ(wholeness(tableOf({statement, groupOf(1), statement, groupOf(40)})), "...w.");
    const DocumentRow tall = rowOf(std::string(400, 'x'), true);
    EXPECT_EQ(wholeness(tableOf({statement, groupOf(1), tall, groupOf(20)})), "...w.");
}

TEST(PageCare, MayTearTheRowsThatNoPageEndsInFrontOf) {
    EXPECT_EQ(wholeness(tableOf({rowOf("one", false), rowOf("two", false)})), "..w");
    EXPECT_EQ(wholeness(tableOf({rowOf("one", true), rowOf("two", true), groupOf(1)})), "....");
    EXPECT_EQ(wholeness(listOf(5)), "......");
}

TEST(PageCare, CountsNoLinesOfUpwardText) {
    DocumentRow upward = rowOf(std::string(2000, 'x'), false);
    upward.cells.front()->direction = TextDirection::Upward;
    EXPECT_EQ(wholeness(tableOf({rowOf("one", false), upward})), "..w");
}

TEST(PageCare, ChangesNothingMoreWhenItIsTakenAgain) {
    const Document once = caredFor(documentOf(
        {plainParagraph("title"), listOf(5), plainParagraph(""),
         tableOf({rowOf("one", true), rowOf("two", true), groupOf(1)}), plainParagraph("")}));
    const std::string bytes = rtfBytes(once);
    EXPECT_EQ(rtfBytes(caredFor(once)), bytes);
}

// Letters of 12 points are taken to be 8.4 wide where a row must not be too high: 1,020 of them
// fill 27 lines of a column of 330, three quarters of the page.
TEST(PageCare, HoldsAStatementTogetherThatFillsThreeQuartersOfAPageAtMost) {
    const auto withStatementOf = [](std::size_t letters) {
        return tableOf({rowOf("first", false), rowOf(std::string(letters, 'x'), false)});
    };
    EXPECT_EQ(wholeness(withStatementOf(1020)).back(), 'w');
    EXPECT_EQ(wholeness(withStatementOf(1030)).back(), '.');
}

}  // namespace orvanta::test
