#include "reports/document_writer.h"

#include <gtest/gtest.h>

#include "failure_of.h"
#include "writing.h"

namespace orvanta::test {

TEST_F(Writing, TheEndOfTheDocumentIsTheOnlyBookmark) {
    EXPECT_EQ(failureOf([&] { document.get("Bookmarks").item(std::string("\\startofdoc")); }),
              35601);
}

TEST_F(Writing, LandscapeTurnsThePageRoundBeforeItsWidthIsSet) {
    document.get("PageSetup").put("Orientation", 1);
    document.get("PageSetup").put("PageWidth", 800);
    const RtfWords page = saved().words;
    EXPECT_EQ(page.at("paperw"), 16000);
    EXPECT_EQ(page.at("paperh"), 12240);
}

TEST_F(Writing, ATableHasTheRowsAndColumnsAskedForAndNoBorders) {
    addTable(2, 3);
    const RtfTable table = savedTable();
    ASSERT_EQ(table.size(), 2u);
    EXPECT_EQ(table[0].cells.size(), 3u);
    EXPECT_EQ(table[0].cells[0].top, 0);
}

TEST_F(Writing, AParagraphStandsBehindATableAtTheEnd) {
    addTable(1, 1);
    end().call("InsertParagraphAfter");
    addTable(1, 1);
    EXPECT_EQ(saved().outline(), (Outline{"#", "", "#", ""}));
}

TEST_F(Writing, ANewRowHasTheFormatsOfTheLastOneAndNoneOfItsTexts) {
    const WordRef table = addTable(1, 2);
    const WordRef first = table.get("Rows").item(1).get("Range");
    range(table, 1, 1).put("Text", std::string("text"));
    range(table, 1, 2).put("Orientation", 2);
    cell(table, 1, 1).put("VerticalAlignment", 1);
    first.get("Font").put("Name", std::string("Arial"));
    first.get("Font").put("Size", 16);
    first.get("Paragraphs").get("Format").put("SpaceAfter", 6);
    first.get("Paragraphs").get("Format").put("KeepWithNext", true);
    first.get("Shading").put("BackgroundPatternColor", 13421772);
    table.get("Rows").item(1).put("Height", 22);
    table.get("Rows").call("Add");
    const RtfRow row = savedTable()[1];
    EXPECT_EQ(row.cells[0].text(), "");
    EXPECT_EQ(row.cells[0].paragraphs[0].runs[0].font, "Arial");
    EXPECT_EQ(row.cells[0].paragraphs[0].runs[0].size, 16);
    EXPECT_EQ(row.cells[0].paragraphs[0].words.at("sa"), 120);
    EXPECT_TRUE(row.cells[0].paragraphs[0].words.contains("keepn"));
    EXPECT_EQ(row.cells[0].background, "204,204,204");
    EXPECT_TRUE(row.cells[0].words.contains("clvertalc"));
    EXPECT_TRUE(row.cells[1].words.contains("cltxbtlr"));
    EXPECT_EQ(row.words.at("trrh"), 440);
}

TEST_F(Writing, ANewRowIsNeitherBoldNorItalicNorAHeading) {
    const WordRef table = addTable(1, 1);
    table.get("Range").get("Font").put("Bold", true);
    table.get("Range").get("Font").put("Italic", true);
    table.get("Rows").item(1).put("HeadingFormat", true);
    table.get("Rows").call("Add");
    range(table, 2, 1).put("Text", std::string("entry"));
    const RtfTable saved = savedTable();
    EXPECT_TRUE(saved[0].words.contains("trhdr"));
    EXPECT_FALSE(saved[1].words.contains("trhdr"));
    EXPECT_FALSE(saved[1].cells[0].paragraphs[0].runs[0].bold);
    EXPECT_FALSE(saved[1].cells[0].paragraphs[0].runs[0].italic);
}

TEST_F(Writing, ANewRowDoesNotRepeatANestedTable) {
    const WordRef table = addTable(1, 1);
    selection.get("Tables").get("Add", {range(table, 1, 1).value(), 1, 2});
    table.get("Rows").call("Add");
    const RtfTable saved = savedTable();
    EXPECT_EQ(saved[0].cells[0].nested.size(), 1u);
    EXPECT_TRUE(saved[1].cells[0].nested.empty());
}

TEST_F(Writing, ANestedTableTakesTheParagraphFormatsOfItsPlaceAndGrowsByItself) {
    const WordRef outer = addTable(1, 1);
    range(outer, 1, 1).get("Paragraphs").put("SpaceBefore", 6);
    range(outer, 1, 1).get("Font").put("Size", 10);
    const WordRef inner = selection.get("Tables").get("Add", {range(outer, 1, 1).value(), 1, 2});
    inner.get("Columns").item(1).call("SetWidth", {20, 3});
    inner.get("Columns").item(2).call("SetWidth", {300, 3});
    inner.get("Rows").call("Add");
    range(inner, 2, 2).put("Text", std::string("mapped"));
    const RtfTable saved = savedTable();
    ASSERT_EQ(saved.size(), 1u);
    const auto& nested = saved[0].cells[0].nested;
    ASSERT_EQ(nested.size(), 2u);
    EXPECT_EQ(nested[1].cells[1].text(), "mapped");
    EXPECT_EQ(nested[1].cells[1].width, 300);
    EXPECT_EQ(nested[1].cells[0].paragraphs[0].words.at("sb"), 120);
    EXPECT_EQ(nested[1].cells[1].paragraphs[0].runs[0].size, 10);
}

TEST_F(Writing, WidthsAreThoseThatWereSetLast) {
    const WordRef table = addTable(1, 3);
    table.put("PreferredWidth", 576);
    for (const auto& [column, width] : {std::pair{1, 330}, {2, 30}, {3, 250}})
        table.get("Columns").item(column).call("SetWidth", {width, 3});
    const RtfRow row = savedTable()[0];
    EXPECT_EQ(row.cells[0].width, 330);
    EXPECT_EQ(row.cells[1].width, 30);
    EXPECT_EQ(row.cells[2].width, 250);
}

TEST_F(Writing, AWideEdgeOfAColumnReachesAllItsRowsAndOneOfARowAllItsCells) {
    const WordRef table = addTable(2, 2);
    table.get("Borders").put("Enable", true);
    table.get("Columns").item(2).get("Borders").item(-4).put("LineWidth", 24);
    table.get("Rows").item(2).get("Borders").item(-3).put("LineWidth", 24);
    const RtfTable saved = savedTable();
    for (const RtfRow& row : saved) {
        EXPECT_EQ(row.cells[0].right, 10);
        EXPECT_EQ(row.cells[1].right, 60);
    }
    for (const RtfCell& cell : saved[0].cells) EXPECT_EQ(cell.bottom, 10);
    for (const RtfCell& cell : saved[1].cells) EXPECT_EQ(cell.bottom, 60);
}

TEST_F(Writing, BordersCanBeTakenOffAgain) {
    const WordRef table = addTable(1, 1);
    table.get("Borders").put("Enable", true);
    table.get("Borders").put("Enable", false);
    EXPECT_EQ(savedTable()[0].cells[0].top, 0);
}

TEST_F(Writing, ARowColumnOrCellThatIsNotThereFails) {
    const WordRef table = addTable(1, 2);
    EXPECT_EQ(failureOf([&] { table.get("Rows").item(2); }), indexOutOfBounds);
    EXPECT_EQ(failureOf([&] { table.get("Columns").item(0); }), indexOutOfBounds);
    EXPECT_EQ(failureOf([&] { table.get("Cell", {1, 3}); }), indexOutOfBounds);
}

TEST_F(Writing, RowsAreAtLeastAsHighAsTheyAreTold) {
    const WordRef table = addTable(1, 1);
    EXPECT_EQ(failureOf([&] { table.get("Rows").put("HeightRule", 1); }), 0);
}

TEST_F(Writing, AMemberOrAValueThatIsNotKnownFails) {
    const WordRef table = addTable(1, 1);
    EXPECT_EQ(failureOf([&] { document.get("Footnotes"); }), invalidCall);
    EXPECT_EQ(failureOf([&] { document.call("Print"); }), invalidCall);
    EXPECT_EQ(failureOf([&] { application.put("Visible", true); }), invalidCall);
    EXPECT_EQ(failureOf([&] { range(table, 1, 1).get("Font").put("Size", true); }), invalidCall);
    EXPECT_EQ(failureOf([&] { table.get("Borders").item(-1); }), invalidCall);
    EXPECT_EQ(failureOf([&] { table.get("Rows").put("HeightRule", 2); }), invalidCall);
    EXPECT_EQ(failureOf([&] { table.get("Rows").put("Height", 1); }), invalidCall);
    EXPECT_EQ(failureOf([&] { table.get("Columns").get("Last", {1}); }), invalidCall);
    EXPECT_EQ(failureOf([&] { table.get("Columns").get("Item", {1, 1}); }), invalidCall);
    EXPECT_EQ(failureOf([&] { document.get("Tables").get("Add", {1, 1, 1}); }), invalidCall);
    EXPECT_EQ(failureOf([&] { document.get("PageSetup").put("Gutter", 1); }), invalidCall);
    EXPECT_EQ(failureOf([&] { application.get("Options"); }), invalidCall);
    EXPECT_EQ(failureOf([&] { table.get("Rows").item(1).get("Cells"); }), invalidCall);
    EXPECT_EQ(failureOf([&] { table.get("Rows").item(1).put("AllowBreakAcrossPages", true); }),
              invalidCall);
    EXPECT_EQ(failureOf([&] { table.get("Shading"); }), invalidCall);
}

TEST_F(Writing, ATargetThatCanNotBeWrittenFailsAndLeavesTheOldFile) {
    disk.files["docs/x.rtf"] = "old";
    disk.unwritable.insert({"docs/x.rtf", ErrorNumber::PermissionDenied});
    EXPECT_EQ(failureOf([&] { document.call("SaveAs", {std::string("docs/x.rtf")}); }), 70);
    EXPECT_EQ(disk.files["docs/x.rtf"], "old");
}

TEST_F(Writing, TwoInstancesDoNotShareADocument) {
    DocumentWriter writer(disk);
    WordRef other(writer.createApplication());
    other.get("Documents").get("Add").get("Range").call("InsertBefore", {std::string("other")});
    EXPECT_EQ(saved().outline(), (Outline{""}));
}

}  // namespace orvanta::test
