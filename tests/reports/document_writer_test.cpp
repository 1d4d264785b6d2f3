#include "reports/document_writer.h"

#include <gtest/gtest.h>

#include "failure_of.h"
#include "memory_disk.h"
#include "rtf_reader.h"

namespace orvanta::test {

namespace {

using Outline = std::vector<std::string>;

/// A new document of the program's own word processor, as a script sees it.
class Writing : public testing::Test {
protected:
    Writing() {
        disk.folders = {"docs"};
        DocumentWriter writer(disk);
        application = WordRef(writer.createApplication());
        document = application.get("Documents").get("Add");
        selection = application.get("Selection");
    }

    WordRef end() { return document.get("Bookmarks").item("\\endofdoc").get("Range"); }

    WordRef addTable(int rows, int columns) {
        return document.get("Tables").get("Add", {end().value(), rows, columns});
    }

    static WordRef cell(const WordRef& table, int row, int column) {
        return table.get("Cell", {row, column});
    }
    static WordRef range(const WordRef& table, int row, int column) {
        return cell(table, row, column).get("Range");
    }

    RtfDocument saved() {
        document.call("SaveAs", {std::string("docs/x.rtf")});
        return readRtf(disk.files["docs/x.rtf"]);
    }
    RtfTable savedTable() { return saved().tables().front(); }

    MemoryDisk disk;
    WordRef application, document, selection;
};

constexpr int invalidCall = 5;
constexpr int indexOutOfBounds = 35600;

}  // namespace

TEST_F(Writing, InsertingBeforeExtendsTheRangeOverTheNewText) {
    const WordRef range = document.get("Range");
    range.call("InsertBefore", {std::string("one\r\n")});
    range.get("Font").put("Size", 20);
    range.call("Collapse", {0});
    range.call("InsertBefore", {std::string("two\r\n")});
    range.get("Font").put("Size", 10);
    const RtfDocument read = saved();
    EXPECT_EQ(read.outline(), (Outline{"one", "two", ""}));
    EXPECT_EQ(std::get<RtfParagraph>(read.body[0]).runs[0].size, 20);
    EXPECT_EQ(std::get<RtfParagraph>(read.body[1]).runs[0].size, 10);
}

TEST_F(Writing, InsertingBeforeLeavesTheEndOfTheRangeBehindItsText) {
    document.get("Range").call("InsertBefore", {std::string("say ")});
    const WordRef range = end();
    range.call("InsertAfter", {std::string("one")});
    range.call("InsertBefore", {std::string("number ")});
    range.call("InsertAfter", {std::string("!")});
    range.call("InsertBefore", {std::string("this:\r\n")});
    range.call("InsertAfter", {std::string("?")});
    EXPECT_EQ(saved().outline(), (Outline{"say this:", "number one!?"}));
}

TEST_F(Writing, InsertingAfterExtendsTheRangeOverTheNewText) {
    const WordRef range = end();
    range.call("InsertAfter", {std::string("one")});
    range.call("InsertAfter", {std::string(" two")});
    range.get("Font").put("Bold", true);
    const RtfDocument read = saved();
    EXPECT_EQ(read.outline(), (Outline{"one two"}));
    for (const RtfRun& run : {std::get<RtfParagraph>(read.body[0]).runs[0],
                              std::get<RtfParagraph>(read.body[0]).runs[1]})
        EXPECT_TRUE(run.bold);
}

TEST_F(Writing, InsertingBeforePutsTextInFrontOfWhatTheRangeHolds) {
    const WordRef range = end();
    range.call("InsertParagraphAfter");
    range.call("InsertParagraphAfter");
    range.call("InsertBefore", {std::string("\r\ntitle\r\n")});
    EXPECT_EQ(saved().outline(), (Outline{"", "title", "", "", ""}));
}

TEST_F(Writing, ACollapsedRangeStandsBehindEverythingThatItHeld) {
    const WordRef range = document.get("Range");
    range.call("InsertBefore", {std::string("title\r\n")});
    range.call("Collapse", {0});
    range.call("InsertBefore", {std::string("text")});
    EXPECT_EQ(saved().outline(), (Outline{"title", "text"}));
}

TEST_F(Writing, CrLfIsOneEndOfAParagraph) {
    end().call("InsertAfter", {std::string("a\r\n\r\nb")});
    EXPECT_EQ(saved().outline(), (Outline{"a", "", "b"}));
}

TEST_F(Writing, ANewParagraphTakesTheFormatsOfTheOneThatItCameFrom) {
    const WordRef range = document.get("Range");
    range.get("Paragraphs").put("SpaceBefore", 6);
    range.get("Font").put("Name", std::string("Arial"));
    range.call("InsertParagraphAfter");
    const RtfDocument read = saved();
    for (const auto& block : read.body) {
        EXPECT_EQ(std::get<RtfParagraph>(block).words.at("sb"), 120);
        EXPECT_EQ(std::get<RtfParagraph>(block).runs[0].font, "Arial");
    }
}

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

TEST_F(Writing, TextReplacesWhatACellHeldAndKeepsItsLook) {
    const WordRef table = addTable(1, 1);
    range(table, 1, 1).get("Font").put("Size", 18);
    range(table, 1, 1).put("Text", std::string("first"));
    range(table, 1, 1).put("Text", std::string("second"));
    const RtfCell cell = savedTable()[0].cells[0];
    EXPECT_EQ(cell.text(), "second");
    EXPECT_EQ(cell.paragraphs[0].runs[0].size, 18);
}

TEST_F(Writing, InsertingIntoACellGoesInFrontOfItsTextOrBehindIt) {
    const WordRef table = addTable(1, 1);
    const WordRef inside = range(table, 1, 1);
    inside.call("InsertAfter", {std::string("b\r\n")});
    inside.call("InsertAfter", {std::string("c")});
    inside.call("InsertBefore", {std::string("a")});
    EXPECT_EQ(savedTable()[0].cells[0].text(), "ab\nc");
}

TEST_F(Writing, OnlyTheExtendedSelectionOfACellTakesALook) {
    const WordRef table = addTable(1, 1);
    range(table, 1, 1).call("InsertAfter", {std::string("Threats\r\n")});
    cell(table, 1, 1).call("Select");
    selection.put("ExtendMode", true);
    selection.call("MoveRight", {1, 7});
    selection.get("Range").get("Font").put("Size", 18);
    range(table, 1, 1).call("InsertAfter", {std::string("second line")});
    const RtfCell cell = savedTable()[0].cells[0];
    EXPECT_EQ(cell.text(), "Threats\nsecond line");
    EXPECT_EQ(cell.paragraphs[0].runs[0].size, 18);
    EXPECT_EQ(cell.paragraphs[1].runs[0].size, 12);
}

TEST_F(Writing, AShorterSelectionLeavesTheRestOfTheWordAlone) {
    const WordRef table = addTable(1, 1);
    range(table, 1, 1).put("Text", std::string("Threats"));
    cell(table, 1, 1).call("Select");
    selection.call("MoveRight", {1, 3});
    selection.get("Range").get("Font").put("Italic", true);
    const auto runs = savedTable()[0].cells[0].paragraphs[0].runs;
    ASSERT_EQ(runs.size(), 3u);
    EXPECT_EQ(runs[0].text, "Thr");
    EXPECT_TRUE(runs[0].italic);
    EXPECT_EQ(runs[1].text, "eats");
    EXPECT_FALSE(runs[1].italic);
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

TEST_F(Writing, AFormatOfARowDoesNotReachIntoATableWithinIt) {
    const WordRef outer = addTable(1, 1);
    const WordRef inner = selection.get("Tables").get("Add", {range(outer, 1, 1).value(), 1, 1});
    range(inner, 1, 1).put("Text", std::string("mapped"));
    range(outer, 1, 1).get("Font").put("Size", 30);
    EXPECT_EQ(savedTable()[0].cells[0].nested[0].cells[0].paragraphs[0].runs[0].size, 12);
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

TEST_F(Writing, BoldOfARangeIsBoldOfItsFont) {
    const WordRef table = addTable(1, 1);
    range(table, 1, 1).put("Text", std::string("x"));
    range(table, 1, 1).put("Bold", true);
    EXPECT_TRUE(savedTable()[0].cells[0].paragraphs[0].runs[0].bold);
}

TEST_F(Writing, AlignmentAndDirectionCanBeTakenBack) {
    const WordRef table = addTable(1, 1);
    for (const int alignment : {1, 0})
        range(table, 1, 1).get("Paragraphs").put("Alignment", alignment);
    for (const int direction : {2, 0}) range(table, 1, 1).put("Orientation", direction);
    const RtfCell cell = savedTable()[0].cells[0];
    EXPECT_TRUE(cell.paragraphs[0].words.contains("ql"));
    EXPECT_TRUE(cell.words.contains("cltxlrtb"));
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
}

TEST_F(Writing, TextInFrontOfATableThatFillsACellFails) {
    const WordRef table = addTable(1, 1);
    selection.get("Tables").get("Add", {range(table, 1, 1).value(), 1, 1});
    EXPECT_EQ(failureOf([&] { range(table, 1, 1).call("InsertBefore", {std::string("x")}); }),
              invalidCall);
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
