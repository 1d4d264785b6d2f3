#include "core/text.h"

#include <gtest/gtest.h>

#include "bench.h"

namespace orvanta::test {
namespace {

Texts splitTexts(std::string_view text, std::string_view delimiter) {
    Texts result;
    for (const std::string_view part : splitAt(text, delimiter)) result.emplace_back(part);
    return result;
}

Texts linesOf(std::string_view text) {
    Texts result;
    LineSource source(text);
    while (const auto line = source.next()) result.emplace_back(*line);
    return result;
}

TEST(Trimming, TakesTheBlanksOfBothEndsAndLeavesThoseInside) {
    EXPECT_EQ(trimBlanks("  two  words "), "two  words");
}

TEST(Trimming, LeavesNothingOfBlanksAlone) {
    EXPECT_EQ(trimBlanks("   "), "");
    EXPECT_EQ(trimBlanks(""), "");
}

TEST(Trimming, TakesNoOtherWhiteSpace) {
    EXPECT_EQ(trimBlanks(" \tx\xA0 "), "\tx\xA0");
    EXPECT_EQ(trimBlanks("\t"), "\t");
}

TEST(Splitting, GivesOnePartMoreThanThereAreDelimiters) {
    EXPECT_EQ(splitTexts("a--b--c", "--"), (Texts{"a", "b", "c"}));
    EXPECT_EQ(splitTexts("a", "--"), Texts{"a"});
}

TEST(Splitting, KeepsEmptyParts) {
    EXPECT_EQ(splitTexts("--a----", "--"), (Texts{"", "a", "", ""}));
    EXPECT_EQ(splitTexts("", "--"), Texts{""});
}

TEST(Splitting, TakesDelimitersFromTheLeft) {
    EXPECT_EQ(splitTexts("a---b", "--"), (Texts{"a", "-b"}));
}

TEST(Splitting, IntoSoManyPartsRefusesMoreAndFewer) {
    using Pair = std::array<std::string_view, 2>;
    EXPECT_EQ(partsOf<2>("a, b", ", "), (Pair{"a", "b"}));
    EXPECT_EQ(partsOf<2>(", ", ", "), (Pair{"", ""}));
    EXPECT_EQ(partsOf<2>("a", ", "), std::nullopt);
    EXPECT_EQ(partsOf<2>("a, b, ", ", "), std::nullopt);
    EXPECT_EQ(partsOf<1>("a", ", "), (std::array<std::string_view, 1>{"a"}));
    EXPECT_EQ(partsOf<1>("a, ", ", "), std::nullopt);
}

TEST(Replacing, ReachesEveryPlace) {
    EXPECT_EQ(replaceAll("<a><b>", "<", "&lt;"), "&lt;a>&lt;b>");
    EXPECT_EQ(replaceAll("<", "<", "&lt;"), "&lt;");
}

TEST(Replacing, DoesNotLookAtWhatItPutIn) { EXPECT_EQ(replaceAll("aa", "a", "aa"), "aaaa"); }

TEST(Replacing, LeavesATextWithoutTheWordAsItIs) {
    EXPECT_EQ(replaceAll("plain", "<", "&lt;"), "plain");
    EXPECT_EQ(replaceAll("", "<", "&lt;"), "");
}

TEST(Position, IsReadFromDigits) {
    EXPECT_EQ(positionFrom("12"), 12);
    EXPECT_EQ(positionFrom("007"), 7);
}

class NoPosition : public testing::TestWithParam<std::string> {};
INSTANTIATE_TEST_SUITE_P(In, NoPosition,
                         testing::Values("", " 1", "1 ", "1x", "x", "+1", "1.0", "99999999999"));

TEST_P(NoPosition, IsReadFromAnyOtherText) { EXPECT_EQ(positionFrom(GetParam()), std::nullopt); }

TEST(Lines, EndInAnyOfTheThreeWays) {
    EXPECT_EQ(linesOf("a\r\nb\rc\nd\r\n"), (Texts{"a", "b", "c", "d"}));
}

TEST(Lines, NeedNoEndBehindTheLast) { EXPECT_EQ(linesOf("a\r\nb"), (Texts{"a", "b"})); }

TEST(Lines, EndWhereTheirOwnEndIsWhateverComesFurtherDown) {
    EXPECT_EQ(linesOf("a\rb\n\rc\r\rd\n\r\ne\r"), (Texts{"a", "b", "", "c", "", "d", "", "e"}));
}

TEST(Lines, MayBeEmpty) {
    EXPECT_EQ(linesOf("\r\n\r\n"), (Texts{"", ""}));
    EXPECT_EQ(linesOf("\n\r"), (Texts{"", ""}));
    EXPECT_EQ(linesOf("a\r\r\nb"), (Texts{"a", "", "b"}));
}

TEST(Lines, AreNoneInAnEmptyText) { EXPECT_EQ(linesOf(""), Texts{}); }

TEST(Lines, KeepTheirBlanksTabsAndZeros) {
    EXPECT_EQ(linesOf(std::string_view(" a\t\0b \n", 7)), Texts{std::string(" a\t\0b ", 6)});
}

}  // namespace
}  // namespace orvanta::test
