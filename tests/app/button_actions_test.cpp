#include "app/button_actions.h"

#include <gtest/gtest.h>

#include <functional>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

/// Behind a click, what tells that just this button's action ran.
struct Action {
    std::string button;
    std::function<void(AnalysisBench&)> prepare;
    std::function<bool(AnalysisBench&)> ran;
};
std::ostream& operator<<(std::ostream& out, const Action& action) { return out << action.button; }

struct NameOfButton {
    template <class Info>
    std::string operator()(const Info& info) const {
        return info.param.button;
    }
};

bool asked(AnalysisBench& bench, const std::string& mode, const std::string& filter) {
    for (const Json& event : bench.events("fileDialog"))
        if (event["mode"] == mode && event["filter"] == filter) return true;
    return false;
}

bool showed(AnalysisBench& bench, const std::string& form) {
    for (const Json& event : bench.events("dialog"))
        if (event["form"] == form) return true;
    return false;
}

const std::string brainstormFiles = "All Brainstorming Files (*.bsm)|*.bsm";
const std::string analyzeFiles = "All Analyze Files (*.aze)|*.aze";

void openBrainstorm(AnalysisBench& bench) { bench.click("Brainstorm"); }
void nothing(AnalysisBench&) {}
std::function<void(AnalysisBench&)> nextTimes(int presses) {
    return [=](AnalysisBench& bench) { bench.next(presses); };
}

/// Add, Edit and Remove of one screen, which holds a statement and one in its box.
void addEditing(std::vector<Action>& actions, const std::string& screen, const std::string& box,
                const std::string& list, const std::function<void(AnalysisBench&)>& open) {
    const auto prepare = [=](AnalysisBench& bench) {
        open(bench);
        while (bench.list(list).count() > 0) bench.list(list).remove(1);
        bench.list(list).add({.key = "K", .text = "there", .image = 1, .largeImage = 1});
        bench.select(list, 1);
        bench.set(box, "typed");
        bench.events();
    };
    actions.push_back(
        {screen + "Add", prepare, [=](AnalysisBench& bench) {
             return bench.texts(list) == Texts{"there", "typed"} && bench.box(box).text().empty();
         }});
    actions.push_back({screen + "Edit", prepare, [=](AnalysisBench& bench) {
                           const Json dialogs = bench.events("dialog");
                           return dialogs.size() == 1 && dialogs[0]["fromControl"] == screen &&
                                  dialogs[0]["text"] == "there";
                       }});
    actions.push_back({screen + "Remove", prepare,
                       [=](AnalysisBench& bench) { return bench.texts(list).empty(); }});
}

void openBrainstormAt(AnalysisBench& bench, int presses) {
    bench.openBrainstorm();
    for (int i = 0; i < presses; ++i) bench.click("BNext");
}

std::vector<Action> editingActions() {
    std::vector<Action> actions;
    const Texts words{"Strength", "Weakness", "Opportunity", "Threat"};
    for (int i = 0; i < 4; ++i) {
        const std::string& word = words[static_cast<std::size_t>(i)];
        const std::string letter(1, word.front());
        addEditing(actions, "B" + letter, "txt" + word, "lvB" + word,
                   [=](AnalysisBench& bench) { openBrainstormAt(bench, 3 * i); });
        addEditing(actions, "A" + letter, "txtA" + word, "lvA" + word, [=](AnalysisBench& bench) {
            bench.next(i + 1);
            for (const char* copy :
                 {"lvStrengthOp", "lvStrengthTh", "lvWeaknessOp", "lvWeaknessTh"})
                while (bench.list(copy).count() > 1) bench.list(copy).remove(1);
        });
    }
    return actions;
}

std::vector<Action> allActions() {
    std::vector<Action> actions = editingActions();
    const auto add = [&](const std::string& button, std::function<void(AnalysisBench&)> prepare,
                         std::function<bool(AnalysisBench&)> ran) {
        actions.push_back({button, std::move(prepare), std::move(ran)});
    };
    add("ABack", nextTimes(2),
        [](AnalysisBench& bench) { return bench.stepsShown() == Texts{"fraASSummary"}; });
    add("ANext", nextTimes(2),
        [](AnalysisBench& bench) { return bench.stepsShown() == Texts{"fraAOpportunity"}; });
    add("AQuit", nextTimes(2), [](AnalysisBench& bench) { return !bench.isShown("fraAnalyze"); });
    add("OAFile", nothing, [](AnalysisBench& bench) { return asked(bench, "open", analyzeFiles); });
    add("AFAdd", nothing,
        [](AnalysisBench& bench) { return asked(bench, "open", brainstormFiles); });
    add(
        "AFRemove", [](AnalysisBench& bench) { bench.select("lstFiles", 0); },
        [](AnalysisBench& bench) { return bench.form().lstFiles.items() == Texts{"docs/bo.bsm"}; });
    add("Analyze", nothing,
        [](AnalysisBench& bench) { return bench.form().lstFiles.items().empty(); });
    add("Brainstorm", nothing, [](AnalysisBench& bench) { return bench.isShown("fraBrainstorm"); });
    add(
        "BNext", [](AnalysisBench& bench) { openBrainstormAt(bench, 0); },
        [](AnalysisBench& bench) { return bench.form().questionStep == 2; });
    add(
        "BBack", [](AnalysisBench& bench) { openBrainstormAt(bench, 1); },
        [](AnalysisBench& bench) { return bench.form().questionStep == 1; });
    add("BQuit", openBrainstorm,
        [](AnalysisBench& bench) { return !bench.isShown("fraBrainstorm"); });
    add("BOpen", openBrainstorm,
        [](AnalysisBench& bench) { return asked(bench, "open", brainstormFiles); });
    add(
        "Print",
        [](AnalysisBench& bench) {
            bench.click("Brainstorm");
            bench.play({{"do", "choose"}, {"option", "optPSD"}});
        },
        [](AnalysisBench& bench) { return bench.events("print").size() == 1; });
    add("About", nothing, [](AnalysisBench& bench) { return showed(bench, "frmAbout"); });
    add("Report", nothing, [](AnalysisBench& bench) { return showed(bench, "frmReportType"); });
    add("Overview", nothing, [](AnalysisBench& bench) { return bench.events("open").size() == 1; });
    add("Quit", nothing, [](AnalysisBench& bench) { return bench.events("exit").size() == 1; });
    return actions;
}

class ButtonAction : public testing::TestWithParam<Action> {};
INSTANTIATE_TEST_SUITE_P(Of, ButtonAction, testing::ValuesIn(allActions()), NameOfButton());

TEST_P(ButtonAction, RunsWhenTheButtonIsLetGo) {
    AnalysisBench bench;
    GetParam().prepare(bench);
    bench.events();
    ASSERT_FALSE(GetParam().ran(bench)) << "before the click";
    bench.click(GetParam().button);
    EXPECT_TRUE(GetParam().ran(bench));
}

TEST(ButtonActions, AreTriedForAllButtons) { EXPECT_EQ(allActions().size(), countOf<Button>); }

class ButtonFace : public testing::TestWithParam<Button> {
protected:
    ButtonFace() { bench.start(); }
    Art art() { return bench.form().buttons[GetParam()].image.art(); }
    bool large() const { return faceOf(GetParam()).size == ButtonSize::Large; }
    Bench bench;
};
const auto baseNameOf = [](const auto& tested) {
    return std::string(faceOf(tested.param).baseName);
};
INSTANTIATE_TEST_SUITE_P(Of, ButtonFace, testing::ValuesIn(allOf<Button>), baseNameOf);

TEST_P(ButtonFace, StaysDownUntilItIsLetGo) {
    pressButton(bench.program(), GetParam());
    pressButton(bench.program(), GetParam());
    EXPECT_EQ(art(), large() ? Art::LargeDown : Art::SmallDown);
    releaseButton(bench.program(), GetParam());
    EXPECT_EQ(art(), large() ? Art::LargeNormal : Art::SmallNormal);
}

TEST(SkinnedButtons, CopyTheirArtFromTheFourHiddenPictures) {
    Bench bench;
    bench.start();
    bench.form().imgBtnSDown.setArt(Art::LargeDown);
    bench.form().imgBtnLNormal.setArt(Art::SmallNormal);
    pressButton(bench.program(), Button::BNext);
    releaseButton(bench.program(), Button::About);
    EXPECT_EQ(bench.form().buttons[Button::BNext].image.art(), Art::LargeDown);
    EXPECT_EQ(bench.form().buttons[Button::About].image.art(), Art::SmallNormal);
}

TEST(SkinnedButtons, LookReleasedWhileTheirActionRuns) {
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    bench.play({{"do", "press"}, {"button", "BSAdd"}});
    EXPECT_EQ(bench.events(),
              Json::array({{{"event", "art"}, {"button", "BSAdd"}, {"pressed", true}}}));
    bench.play({{"do", "release"}, {"button", "BSAdd"}});
    EXPECT_EQ(bench.events(),
              Json::array({{{"event", "art"}, {"button", "BSAdd"}, {"pressed", false}},
                           refusal("Please enter strength."),
                           focusOn("txtStrength")}));
}

TEST(SkinnedButtons, ActOnReleaseAndNotOnPress) {
    Bench bench;
    bench.start();
    bench.play({{"do", "press"}, {"button", "Brainstorm"}});
    EXPECT_FALSE(bench.form().fraBrainstorm.isVisible());
    bench.play({{"do", "release"}, {"button", "Brainstorm"}});
    EXPECT_TRUE(bench.form().fraBrainstorm.isVisible());
}

TEST(SkinnedButtons, ActOncePerReleaseOfOneThatWasHeldTwice) {
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    bench.set("txtStrength", "Brand");
    bench.play({{"do", "press"}, {"button", "BSAdd"}});
    bench.play({{"do", "press"}, {"button", "BSAdd"}});
    bench.play({{"do", "release"}, {"button", "BSAdd"}});
    EXPECT_EQ(bench.texts("lvBStrength"), Texts{"Brand"});
}

Json behindArt(AnalysisBench& bench, const std::string& button) {
    bench.events();
    bench.click(button);
    Json rest = bench.events();
    rest.erase(rest.begin(), rest.begin() + 2);
    return rest;
}

TEST(OverviewButton, OpensTheOverviewPageAndLetsTheSoundGoOn) {
    AnalysisBench bench;
    EXPECT_EQ(behindArt(bench, "Overview"),
              Json::array({{{"event", "open"},
                            {"target", "http://www.orvanta.example/orvanta-overview/"}}}));
}

TEST(ReportButton, StopsTheSoundBeforeItsDialogComesUp) {
    AnalysisBench bench;
    const Json seen = behindArt(bench, "Report");
    ASSERT_GE(seen.size(), 2u);
    EXPECT_EQ(seen[0], stopped());
    EXPECT_EQ(seen[1], (Json{{"event", "dialog"}, {"form", "frmReportType"}}));
}

TEST(AboutButton, StopsTheSoundBeforeTheBoxComesUp) {
    AnalysisBench bench;
    EXPECT_EQ(behindArt(bench, "About"),
              Json::array({stopped(), {{"event", "dialog"}, {"form", "frmAbout"}}}));
}

class SilentButton : public testing::TestWithParam<std::string> {};
INSTANTIATE_TEST_SUITE_P(Of, SilentButton, testing::Values("ASAdd", "ASEdit", "ASRemove"));

TEST_P(SilentButton, LetsTheSoundGoOnWhileAPersonTypes) {
    AnalysisBench bench;
    bench.next(1);
    bench.set("txtAStrength", "typed");
    bench.select("lvAStrength", 1);
    bench.events();
    bench.click(GetParam());
    EXPECT_EQ(bench.events("narration"), Json::array());
}

TEST(ReportAndAbout, LeaveTheSessionAsItIs) {
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    bench.enter("txtStrength", {"Own fleet"});
    const Json before = bench.answerTo({{"do", "state"}});
    bench.click("Report");
    bench.click("About");
    EXPECT_EQ(bench.answerTo({{"do", "state"}})["state"], before["state"]);
}

}  // namespace
}  // namespace orvanta::test
