#include "view/text_entry.h"

#include <gtest/gtest.h>

namespace orvanta::test {
namespace {

TEST(PastedText, BecomesOneLineWithABlankForEachLineBreak) {
    EXPECT_EQ(singleLineFrom("a\r\nb\rc\nd"), "a b c d");
    EXPECT_EQ(singleLineFrom("a\n\nb"), "a  b");
    EXPECT_EQ(singleLineFrom("a\r\r\nb"), "a  b");
}

TEST(PastedText, TurnsIntoTheCodePageToo) { EXPECT_EQ(singleLineFrom("é\u65E5"), "\xE9?"); }

TEST(TypedCharacter, GoesInUnlessItsCodeIsACommand) {
    for (const char character : {' ', 'a', '~', '\x80', '\xFF'})
        EXPECT_TRUE(isPrintable(character));
    for (const char character : {'\0', enterKey, '\x1F', '\x7F'})
        EXPECT_FALSE(isPrintable(character));
}

/// What is left of an entry into a box that takes five characters, the cursor told as "|".
std::string left(std::string_view before, std::string now, std::size_t limit = 5) {
    const std::size_t cursor = now.find('|');
    now.erase(cursor, 1);
    const EnteredText entered = withinLimit(before, {now, cursor}, limit);
    return entered.text.substr(0, entered.cursor) + '|' + entered.text.substr(entered.cursor);
}

TEST(EnteredText, StaysWholeWithinTheLimitOrWhereThereIsNone) {
    EXPECT_EQ(left("", "12345|"), "12345|");
    EXPECT_EQ(left("12", "1234567|", 0), "1234567|");
}

TEST(EnteredText, IsCutWhereItWentInAndTheRestStays) {
    EXPECT_EQ(left("", "1234567|"), "12345|");
    EXPECT_EQ(left("1234", "12abcd|34"), "12a|34");
    EXPECT_EQ(left("12345", "x|12345"), "|12345");
}

TEST(EnteredText, LeavesALongerTextThatWasThereBeforeAndLetsItShrink) {
    EXPECT_EQ(left("12345678", "12345678x|"), "12345678|");
    EXPECT_EQ(left("12345678", "1234567|"), "1234567|");
}

TEST(EnteredText, IsCutToWhatItReplaces) { EXPECT_EQ(left("12345", "1abcdef|5"), "1abc|5"); }

}  // namespace
}  // namespace orvanta::test
