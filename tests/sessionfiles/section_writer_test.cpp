#include "sessionfiles/section_writer.h"

#include <gtest/gtest.h>

namespace orvanta::test {
namespace {

TEST(SectionWriter, EndsEveryLineInCrLfTheLastOneToo) {
    SectionWriter writer;
    writer.open(Section::Strength);
    writer.line(" Own fleet ");
    writer.line("");
    writer.close(Section::Strength);
    EXPECT_EQ(writer.finish(), "<STRENGTH>\r\n Own fleet \r\n\r\n</STRENGTH>\r\n");
}

TEST(SectionWriter, WritesASectionOfOneLineBetweenItsTags) {
    SectionWriter writer;
    writer.section(Section::Module, "GBS");
    writer.section(Section::Step, "");
    EXPECT_EQ(writer.finish(), "<MODULE>\r\nGBS\r\n</MODULE>\r\n<STEP>\r\n\r\n</STEP>\r\n");
}

TEST(SectionWriter, GivesNoBytesWhereNothingWasWritten) { EXPECT_EQ(SectionWriter().finish(), ""); }

}  // namespace
}  // namespace orvanta::test
