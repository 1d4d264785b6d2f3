#include "reports/document_model.h"

#include <gtest/gtest.h>

#include "bench.h"
#include "failure_of.h"

namespace orvanta::test {
namespace {

Texts runsOf(const DocumentParagraph& paragraph) {
    Texts texts;
    for (const TextRun& run : paragraph.runs) texts.push_back(run.text);
    return texts;
}

DocumentParagraph& paragraphIn(Story& story, std::size_t block) {
    return std::get<DocumentParagraph>(story.blocks[block]);
}

/// Runs "abc", bold "defg" and "hi".
DocumentParagraph threeRuns() {
    DocumentParagraph paragraph;
    paragraph.runs = {{"abc", {}}, {"defg", {.bold = true}}, {"hi", {}}};
    return paragraph;
}

TEST(ARun, IsSplitWhereAnotherBegins) {
    DocumentParagraph paragraph = threeRuns();
    EXPECT_EQ(splitRunAt(paragraph, 1), 1u);
    EXPECT_EQ(runsOf(paragraph), (Texts{"a", "bc", "defg", "hi"}));
}

TEST(ARun, BehindOthersIsSplitByItsOwnCharactersAndKeepsItsLook) {
    DocumentParagraph paragraph = threeRuns();
    EXPECT_EQ(splitRunAt(paragraph, 5), 2u);
    EXPECT_EQ(runsOf(paragraph), (Texts{"abc", "de", "fg", "hi"}));
    EXPECT_TRUE(paragraph.runs[1].format.bold);
    EXPECT_TRUE(paragraph.runs[2].format.bold);
    EXPECT_EQ(splitRunAt(paragraph, 8), 4u);
    EXPECT_EQ(runsOf(paragraph), (Texts{"abc", "de", "fg", "h", "i"}));
}

TEST(ARun, StaysWholeWhereOneBeginsAlready) {
    DocumentParagraph paragraph = threeRuns();
    EXPECT_EQ(splitRunAt(paragraph, 0), 0u);
    EXPECT_EQ(splitRunAt(paragraph, 3), 1u);
    EXPECT_EQ(splitRunAt(paragraph, 7), 2u);
    EXPECT_EQ(splitRunAt(paragraph, 9), 3u);
    EXPECT_EQ(runsOf(paragraph), (Texts{"abc", "defg", "hi"}));
}

TEST(TextInAStory, GoesIntoTheMiddleOfARunBehindOthersInTheLookOfTheMark) {
    Story story;
    paragraphIn(story, 0) = threeRuns();
    paragraphIn(story, 0).mark.italic = true;
    const StoryPlace behind = insertText(story, {0, 5}, "X");
    EXPECT_EQ(runsOf(paragraphIn(story, 0)), (Texts{"abc", "de", "X", "fg", "hi"}));
    EXPECT_TRUE(paragraphIn(story, 0).runs[2].format.italic);
    EXPECT_EQ(behind.block, 0u);
    EXPECT_EQ(behind.offset, 6u);
}

TEST(TextInAStory, WithALineEndMakesTwoParagraphsOfOne) {
    Story story;
    paragraphIn(story, 0) = threeRuns();
    paragraphIn(story, 0).format.spaceAfter = 6;
    const StoryPlace behind = insertText(story, {0, 5}, "X\r\nYZ");
    ASSERT_EQ(story.blocks.size(), 2u);
    EXPECT_EQ(runsOf(paragraphIn(story, 0)), (Texts{"abc", "de", "X"}));
    EXPECT_EQ(runsOf(paragraphIn(story, 1)), (Texts{"YZ", "fg", "hi"}));
    EXPECT_EQ(paragraphIn(story, 1).format.spaceAfter, 6);
    EXPECT_EQ(behind.block, 1u);
    EXPECT_EQ(behind.offset, 2u);
}

TEST(TextInAStory, CanNotGoWhereATableStands) {
    Story story;
    story.blocks.insert(story.blocks.begin(), std::make_shared<DocumentTable>());
    EXPECT_EQ(failureOf([&] { insertText(story, {0, 0}, "X"); }), 5);
}

TEST(TheEndOfAStory, IsBehindItsLastCharacter) {
    Story story;
    EXPECT_EQ(endOf(story).offset, 0u);
    insertText(story, endOf(story), "one\r\ntwo and");
    EXPECT_EQ(endOf(story).block, 1u);
    EXPECT_EQ(endOf(story).offset, 7u);
}

TEST(TheLookOfCharacters, ChangesBetweenTwoPlacesAndInTheMarksBetween) {
    Story story;
    insertText(story, {0, 0}, "one\r\ntwo\r\nthree");
    changeCharacters(story, {0, 1}, {2, 2}, false, [](CharacterFormat& look) { look.bold = true; });
    EXPECT_EQ(runsOf(paragraphIn(story, 0)), (Texts{"o", "ne"}));
    EXPECT_FALSE(paragraphIn(story, 0).runs[0].format.bold);
    EXPECT_TRUE(paragraphIn(story, 0).runs[1].format.bold);
    EXPECT_TRUE(paragraphIn(story, 0).mark.bold);
    EXPECT_TRUE(paragraphIn(story, 1).runs[0].format.bold);
    EXPECT_EQ(runsOf(paragraphIn(story, 2)), (Texts{"th", "ree"}));
    EXPECT_FALSE(paragraphIn(story, 2).runs[1].format.bold);
    EXPECT_FALSE(paragraphIn(story, 2).mark.bold);
}

TEST(TheLookOfCharacters, TakesInTheLastMarkWhereThatIsWanted) {
    Story story;
    insertText(story, {0, 0}, "one");
    changeCharacters(story, {0, 0}, {0, 3}, true, [](CharacterFormat& look) { look.size = 20; });
    EXPECT_EQ(paragraphIn(story, 0).mark.size, 20);
}

TEST(ANewRow, HasTheLooksOfTheLastOneAndNoneOfItsTexts) {
    DocumentTable table;
    auto cell = std::make_shared<DocumentCell>();
    insertText(cell->story, {0, 0}, "one\r\ntwo");
    cell->story.lastParagraph().mark = {.font = "Arial", .size = 16, .bold = true, .italic = true};
    cell->story.lastParagraph().format.alignment = Alignment::Centred;
    cell->shading = 200;
    cell->direction = TextDirection::Upward;
    table.rows.push_back({.cells = {cell}, .height = 22, .repeatsAsHeader = true});
    table.addRow();
    const DocumentCell& fresh = *table.rows.at(1).cells.at(0);
    ASSERT_EQ(fresh.story.blocks.size(), 1u);
    const auto& paragraph = std::get<DocumentParagraph>(fresh.story.blocks[0]);
    EXPECT_EQ(runsOf(paragraph), Texts{});
    EXPECT_TRUE(paragraph.mark == (CharacterFormat{.font = "Arial", .size = 16}));
    EXPECT_EQ(paragraph.format.alignment, Alignment::Centred);
    EXPECT_EQ(fresh.shading, 200);
    EXPECT_EQ(fresh.direction, TextDirection::Upward);
    EXPECT_EQ(table.rows[1].height, 22);
    EXPECT_FALSE(table.rows[1].repeatsAsHeader);
}

}  // namespace
}  // namespace orvanta::test
