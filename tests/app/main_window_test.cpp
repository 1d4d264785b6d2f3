#include "app/main_window.h"

#include <gtest/gtest.h>

#include <map>

#include "analysis_bench.h"
#include "core/modules.h"
#include "displays.h"

namespace orvanta::test {
namespace {

/// The options on offer by their place, from the top.
Texts offered(const FrmMain& form) {
    std::map<double, std::string> byTop;
    for (const Module& module : modules) {
        const Option& option = form.*module.option;
        if (option.isVisible()) byTop[option.bounds().top.value] = option.name();
    }
    Texts names;
    for (const auto& [top, name] : byTop) names.push_back(name);
    return names;
}

/// A program that has only these banks.
void startWithBanks(Bench& bench, const Texts& codes) {
    for (const Module& module : modules)
        bench.disk.files.erase("app/" + std::string(module.code) + "questions.txt");
    for (const std::string& code : codes)
        bench.disk.files["app/" + code + "questions.txt"] = bankOf(2);
    bench.start();
}

TEST(MainWindow, BearsTheNameOfTheProduct) {
    Bench bench;
    bench.start();
    EXPECT_EQ(bench.form().caption, "Orvanta");
}

TEST(OfferedModules, AreTheOnesWithABankInTheirOwnOrder) {
    Bench bench;
    bench.start();
    EXPECT_EQ(offered(bench.form()), (Texts{"optGBS", "optMP", "optSBD", "optPSD", "optHRP"}));
}

TEST(OfferedModules, StandAboveEachOtherWithoutGaps) {
    Bench bench;
    startWithBanks(bench, {"gbs", "psd"});
    const FrmMain& form = bench.form();
    EXPECT_EQ(offered(form), (Texts{"optGBS", "optPSD"}));
    EXPECT_EQ(form.optPSD.bounds().top, form.optGBS.bounds().top + Twips{360});
}

TEST(OfferedModules, BeginAtThePlaceOfTheFirstEvenWithoutIt) {
    Bench bench;
    startWithBanks(bench, {"hrp", "sbd"});
    const FrmMain& form = bench.form();
    EXPECT_EQ(form.optSBD.bounds().top, form.optGBS.bounds().top);
    EXPECT_EQ(form.optHRP.bounds().top, form.optGBS.bounds().top + Twips{360});
}

TEST(OfferedModules, AreNoneWithoutBanks) {
    Bench bench;
    startWithBanks(bench, {});
    EXPECT_EQ(offered(bench.form()), Texts{});
}

TEST(OfferedModules, DoNotCountAFolderAsABank) {
    Bench bench;
    bench.disk.folders.insert("app/mpquestions.txt");
    startWithBanks(bench, {"gbs"});
    EXPECT_EQ(offered(bench.form()), Texts{"optGBS"});
}

class LayoutOn : public testing::TestWithParam<Display> {
protected:
    const Display& display = GetParam();
};
INSTANTIATE_TEST_SUITE_P(Displays, LayoutOn, testing::ValuesIn(displays), NameOfParameter());

TEST_P(LayoutOn, IsInPlaceBeforeTheOptionsCloseUp) {
    Bench started, untouched;
    const FrmMain& design = untouched.form();
    started.disk.files.erase("app/mpquestions.txt");
    started.play({{"do", "start"}, {"twipsPerPixel", display.twipsPerPixel}});
    const FrmMain& window = started.form();
    const double first = design.optGBS.bounds().top.value * display.left;
    EXPECT_NEAR(window.optGBS.bounds().top.value, first, 1e-6);
    EXPECT_NEAR(window.optSBD.bounds().top.value, first + 360, 1e-6);
    EXPECT_NEAR(window.optPSD.bounds().top.value, first + 720, 1e-6);
}

}  // namespace
}  // namespace orvanta::test
