#include "view/windows1252.h"

#include <gtest/gtest.h>

namespace orvanta::test {
namespace {

TEST(Windows1252, ComesBackFromUtf8ByteForByte) {
    std::string all;
    for (int code = 0; code < 256; ++code) all += static_cast<char>(code);
    EXPECT_EQ(windows1252From(utf8From1252(all)), all);
}

TEST(Windows1252, IsAsciiInItsLowerHalf) {
    std::string lower;
    for (int code = 0; code < 128; ++code) lower += static_cast<char>(code);
    EXPECT_EQ(utf8From1252(lower), lower);
}

TEST(Windows1252, HoldsTheSignsOfTheCodePage) {
    EXPECT_EQ(utf8From1252("\x80 \x85 \x91\x92 \x93\x94 \x96 \x99 \x9F"),
              "\u20AC \u2026 \u2018\u2019 \u201C\u201D \u2013 \u2122 \u0178");
}

TEST(Windows1252, IsLatin1AboveItsSigns) { EXPECT_EQ(utf8From1252("\xA0\xE9\xFF"), "\u00A0éÿ"); }

TEST(Windows1252, KeepsTheFiveOpenBytesAsTheirOwnNumbers) {
    const std::string open = "\x81\x8D\x8F\x90\x9D";
    EXPECT_EQ(utf8From1252(open), "\xC2\x81\xC2\x8D\xC2\x8F\xC2\x90\xC2\x9D");
    EXPECT_EQ(windows1252From(utf8From1252(open)), open);
}

TEST(TextFromOutside, BecomesOneQuestionMarkForEachCharacterThatTheCodePageLacks) {
    EXPECT_EQ(windows1252From("\u0141\u00F3d\u017A"), "?\xF3\x64?");
    EXPECT_EQ(windows1252From("\u65E5\u672C"), "??");
    EXPECT_EQ(windows1252From("a\U0001F600b"), "a?b");
}

TEST(TextFromOutside, KeepsNoControlThatHidesBehindASignOfTheCodePage) {
    EXPECT_EQ(windows1252From("\xC2\x80"), "?");  // U+0080 itself, whose byte is the euro sign
}

class BrokenUtf8 : public testing::TestWithParam<std::string> {};
INSTANTIATE_TEST_SUITE_P(Of, BrokenUtf8,
                         testing::Values("\x80",              // a follower without a lead
                                         "\xC3",              // a lead at the end
                                         "\xE2\x82",          // cut short
                                         "\xC1\x81",          // longer than need be
                                         "\xE0\x80\x80",      // the same, of three bytes
                                         "\xED\xA0\x80",      // half a surrogate pair
                                         "\xF0\x80\x80\x80",  // longer than need be, of four
                                         "\xFF"));

TEST_P(BrokenUtf8, BecomesAQuestionMarkAndTheRestStays) {
    EXPECT_EQ(windows1252From("a" + GetParam() + "b"), "a?b");
}

TEST(TextFromOutside, KeepsACharacterThatAStrayFollowerStandsBehind) {
    EXPECT_EQ(windows1252From("\xC3\xA9\x80\xE2\x82\xAC\x80"), "\xE9?\x80?");
}

}  // namespace
}  // namespace orvanta::test
