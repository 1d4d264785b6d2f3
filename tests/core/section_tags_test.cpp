#include "core/section_tags.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

#include "core/per_enum.h"

namespace orvanta::test {
namespace {

constexpr std::array known{Section::Name, Section::Strength, Section::Threats};

TEST(SectionTags, OpenAndCloseTheSectionOfTheirWord) {
    const auto opening = tagOf("<STRENGTH>", known), closing = tagOf("</THREATS>", known);
    ASSERT_TRUE(opening && closing);
    EXPECT_EQ(opening->section, Section::Strength);
    EXPECT_TRUE(opening->opens);
    EXPECT_EQ(closing->section, Section::Threats);
    EXPECT_FALSE(closing->opens);
}

TEST(SectionTags, AreKnownByTheWordOfEverySection) {
    const auto all = allOf<Section>;
    for (const Section section : all) {
        const auto tag = tagOf("<" + std::string(wordOf(section)) + ">", all);
        EXPECT_TRUE(tag && tag->section == section) << wordOf(section);
    }
}

class NoTag : public testing::TestWithParam<std::string> {};
INSTANTIATE_TEST_SUITE_P(Of, NoTag,
                         testing::Values("", "<", ">", "</", "<>", "</>", "STRENGTH", "<STRENGTH",
                                         "STRENGTH>", "<strength>", "< STRENGTH>", "<STRENGTHS>",
                                         "<STRENGTH> <NAME>", "<//STRENGTH>", "<THREAT>"));

TEST_P(NoTag, IsALineOfAnyOtherForm) { EXPECT_FALSE(tagOf(GetParam(), known)); }

TEST(SectionTags, OfASectionThatTheFormatLacksAreNone) {
    EXPECT_FALSE(tagOf("<STEP>", known));
    EXPECT_FALSE(tagOf("</WEAKNESS>", known));
}

/// The section that a line is data of, behind the lines before it.
class DataLine : public testing::Test {
protected:
    std::optional<Section> of(std::string_view line) { return open.takeLine(line, known); }
    OpenSection open;
};

TEST_F(DataLine, BelongsToTheOpenSection) {
    EXPECT_EQ(of("ahead"), std::nullopt);
    EXPECT_EQ(of("<NAME>"), std::nullopt);
    EXPECT_EQ(of("inside"), Section::Name);
    EXPECT_EQ(of("</NAME>"), std::nullopt);
    EXPECT_EQ(of("behind"), std::nullopt);
}

TEST_F(DataLine, BelongsToTheFirstOfTwoOpenedSections) {
    of("<NAME>");
    EXPECT_EQ(of("<STRENGTH>"), std::nullopt);
    EXPECT_EQ(of("inside"), Section::Name);
}

TEST_F(DataLine, BelongsToNoneBehindAnyClosingTag) {
    of("<NAME>");
    of("</THREATS>");
    EXPECT_EQ(of("behind"), std::nullopt);
    EXPECT_EQ(open.section(), std::nullopt);
}

TEST_F(DataLine, IsATagThatTheFormatLacks) {
    of("<NAME>");
    EXPECT_EQ(of("<STEP>"), Section::Name);
    EXPECT_EQ(of("</STEP>"), Section::Name);
}

}  // namespace
}  // namespace orvanta::test
