#include "sessionfiles/section_reader.h"

#include <gtest/gtest.h>

#include <array>

#include "bench.h"

namespace orvanta::test {
namespace {

constexpr std::array known{Section::Name, Section::Strength};

/// What a file hands over: the word of the section, the line as it stands and the trimmed one.
Texts handedOver(std::string_view bytes) {
    Texts seen;
    readSections(bytes, known,
                 [&](Section section, std::string_view line, std::string_view trimmed) {
                     seen.push_back(std::string(wordOf(section)) + '[' + std::string(line) + "][" +
                                    std::string(trimmed) + ']');
                 });
    return seen;
}

TEST(SectionReader, HandsOverTheLinesOfEachSectionRawAndTrimmed) {
    EXPECT_EQ(
        handedOver("<NAME>\r\n Dana \r\n</NAME>\r\n<STRENGTH>\r\nFleet\r\n\r\n</STRENGTH>\r\n"),
        (Texts{"NAME[ Dana ][Dana]", "STRENGTH[Fleet][Fleet]", "STRENGTH[][]"}));
}

TEST(SectionReader, PassesOverLinesOutsideTheSections) {
    EXPECT_EQ(handedOver("ahead\n<NAME>\n</NAME>\nbehind\n<STEP>\nST\n</STEP>"), Texts{});
}

TEST(SectionReader, KnowsIndentedTagsAndAnyLineEndAndNeedsNoneAtTheLast) {
    EXPECT_EQ(handedOver("  <NAME> \rDana\n </NAME>\r\n<STRENGTH>\nFleet"),
              (Texts{"NAME[Dana][Dana]", "STRENGTH[Fleet][Fleet]"}));
}

TEST(SectionReader, HandsNothingOverOfAnEmptyFile) { EXPECT_EQ(handedOver(""), Texts{}); }

}  // namespace
}  // namespace orvanta::test
