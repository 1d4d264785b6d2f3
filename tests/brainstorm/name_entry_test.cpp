#include "brainstorm/name_entry.h"

#include <gtest/gtest.h>

#include <string_view>

namespace orvanta::test {
namespace {

TEST(NameOfATeamMember, TakesAllButWhatAFileNameCannotHold) {
    constexpr std::string_view refused = "<|>/\\:*?\"";
    for (int code = ' '; code < 256; ++code) {
        const char character = static_cast<char>(code);
        EXPECT_EQ(isAllowedInName(character), refused.find(character) == refused.npos) << code;
    }
}

}  // namespace
}  // namespace orvanta::test
