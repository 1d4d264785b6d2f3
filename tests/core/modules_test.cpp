#include "core/modules.h"

#include <gtest/gtest.h>

#include "bench.h"

namespace orvanta::test {
namespace {

struct ModuleNames {
    std::string option, code, word;
};
std::ostream& operator<<(std::ostream& out, const ModuleNames& names) {
    return out << names.option;
}

class ChosenModule : public testing::TestWithParam<ModuleNames> {};
INSTANTIATE_TEST_SUITE_P(Of, ChosenModule,
                         testing::Values(ModuleNames{"optGBS", "gbs", "GBS"},
                                         ModuleNames{"optHRP", "hrp", "HRP"},
                                         ModuleNames{"optMP", "mp", "MP"},
                                         ModuleNames{"optPSD", "psd", "PSD"},
                                         ModuleNames{"optSBD", "sbd", "SBD"}));

TEST_P(ChosenModule, IsNamedInFilesByCodeAndWord) {
    Bench bench;
    chooseModuleByWord(bench.form(), GetParam().word);
    EXPECT_TRUE(bench.control(GetParam().option).as<Option>()->isOn());
    EXPECT_EQ(chosenCode(bench.form()), GetParam().code);
    EXPECT_EQ(chosenModuleWord(bench.form()), GetParam().word);
}

TEST(NoChosenModule, HasNeitherCodeNorWord) {
    Bench bench;
    EXPECT_EQ(chosenModule(bench.form()), nullptr);
    EXPECT_EQ(chosenCode(bench.form()), "");
    EXPECT_EQ(chosenModuleWord(bench.form()), "");
}

TEST(ModuleWord, ThatIsUnknownLeavesTheChoice) {
    Bench bench;
    bench.form().optMP.setOn(true);
    for (const char* word : {"", "sbd", "XYZ", "SBD "}) {
        chooseModuleByWord(bench.form(), word);
        EXPECT_EQ(chosenCode(bench.form()), "mp") << word;
    }
}

}  // namespace
}  // namespace orvanta::test
