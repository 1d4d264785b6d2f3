#include "reports/document_ranges.h"

#include <gtest/gtest.h>

#include "failure_of.h"
#include "writing.h"

namespace orvanta::test {

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

TEST_F(Writing, AFormatOfARowDoesNotReachIntoATableWithinIt) {
    const WordRef outer = addTable(1, 1);
    const WordRef inner = selection.get("Tables").get("Add", {range(outer, 1, 1).value(), 1, 1});
    range(inner, 1, 1).put("Text", std::string("mapped"));
    range(outer, 1, 1).get("Font").put("Size", 30);
    EXPECT_EQ(savedTable()[0].cells[0].nested[0].cells[0].paragraphs[0].runs[0].size, 12);
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

TEST_F(Writing, TextInFrontOfATableThatFillsACellFails) {
    const WordRef table = addTable(1, 1);
    selection.get("Tables").get("Add", {range(table, 1, 1).value(), 1, 1});
    EXPECT_EQ(failureOf([&] { range(table, 1, 1).call("InsertBefore", {std::string("x")}); }),
              invalidCall);
}

TEST_F(Writing, ARangeRefusesMembersThatItDoesNotHave) {
    const WordRef inCell = range(addTable(1, 1), 1, 1), inBody = document.get("Range");
    for (const WordRef& text : {inCell, inBody}) {
        EXPECT_EQ(failureOf([&] { text.get("Font").put("Color", 1); }), invalidCall);
        EXPECT_EQ(failureOf([&] { text.get("Paragraphs").put("LeftIndent", 1); }), invalidCall);
        EXPECT_EQ(failureOf([&] { text.get("Sentences"); }), invalidCall);
        EXPECT_EQ(failureOf([&] { text.put("Style", std::string("x")); }), invalidCall);
        EXPECT_EQ(failureOf([&] { text.call("Delete"); }), invalidCall);
    }
    EXPECT_EQ(failureOf([&] { inBody.put("Orientation", 2); }), invalidCall);
    EXPECT_EQ(saved().outline(), (Outline{"#", ""}));
}

TEST_F(Writing, TheFirstCharactersOfACellAreAParagraphAsWell) {
    const WordRef table = addTable(1, 1);
    range(table, 1, 1).put("Text", std::string("Strengths: fleet"));
    cell(table, 1, 1).call("Select");
    selection.call("MoveRight", {1, 9});
    selection.get("Range").get("Paragraphs").put("SpaceAfter", 6);
    EXPECT_EQ(savedTable()[0].cells[0].paragraphs[0].words.at("sa"), 120);
}

}  // namespace orvanta::test
