#include "app/session_opening.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"
#include "core/modules.h"

namespace orvanta::test {
namespace {

const std::string brainstormPrompt = "Do you want to save changes in brainstorm session?";
const std::string analyzePrompt = "Do you want to save changes in analyze session?";

TEST(OpeningBrainstorm, ShowsTheChoiceScreenWithFocusInTheName) {
    Bench bench;
    bench.start();
    bench.click("Brainstorm");
    const FrmMain& form = bench.form();
    EXPECT_TRUE(form.fraBrainstorm.isVisible());
    EXPECT_TRUE(form.txtName.isReachable());
    EXPECT_FALSE(form.picBBack.isVisible());
    EXPECT_EQ(bench.events("focus"), Json::array({focusOn("txtName")}));
}

TEST(OpeningBrainstorm, BringsUndoAndRedo) {
    Bench bench;
    bench.start();
    bench.click("Brainstorm");
    EXPECT_TRUE(bench.form().cmdUndo.isVisible());
    EXPECT_TRUE(bench.form().cmdRedo.isVisible());
}

TEST(OpeningBrainstorm, StopsTheSound) {
    Bench bench;
    bench.start();
    bench.click("Brainstorm");
    EXPECT_EQ(bench.events("narration"), Json::array({stopped()}));
}

TEST(OpeningBrainstorm, LeavesAStepOfEitherModule) {
    AnalysisBench bench;
    bench.next(2);
    bench.click("Brainstorm");
    const FrmMain& form = bench.form();
    EXPECT_FALSE(form.fraAnalyze.isVisible());
    EXPECT_TRUE(form.txtName.isReachable());
}

TEST(OpeningBrainstorm, FreesTheOptionsAndForgetsWhatWasHeard) {
    Bench bench;
    bench.start();
    FrmMain& form = bench.form();
    for (const Module& module : modules) (form.*module.option).setEnabled(false);
    form.narratedStrength = form.narratedWeakness = 4;
    form.narratedOpportunity = form.narratedThreat = 4;
    bench.click("Brainstorm");
    for (const Module& module : modules) EXPECT_TRUE((form.*module.option).isEnabled());
    EXPECT_EQ(form.narratedStrength + form.narratedWeakness + form.narratedOpportunity +
                  form.narratedThreat,
              0);
}

TEST(OpeningBrainstorm, InTheMiddleOfTheWizardBeginsAnew) {
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    bench.enter("txtStrength", {"Own fleet"});
    bench.click("BNext");
    bench.answerMessage("no");
    bench.click("Brainstorm");
    const FrmMain& form = bench.form();
    EXPECT_TRUE(form.txtName.isReachable());
    EXPECT_EQ(form.txtName.text(), "");
    EXPECT_EQ(form.lvBStrength.count(), 0);
    EXPECT_FALSE(form.optGBS.isOn());
}

TEST(OpeningBrainstorm, OffersBothSessionsForSavingWhicheverIsOnScreen) {
    AnalysisBench bench;
    bench.form().editFlag = bench.form().editAFlag = true;
    bench.answerMessage("no");
    bench.answerMessage("no");
    bench.click("Brainstorm");
    EXPECT_EQ(bench.messages(), (Texts{brainstormPrompt, analyzePrompt}));
}

TEST(OpeningBrainstorm, KeepsTheStatementsOfTheOtherModuleOutOfSight) {
    AnalysisBench bench;
    bench.next(1);
    bench.click("Brainstorm");
    EXPECT_EQ(bench.texts("lvAStrength"), (Texts{"Ann S1", "Ann S2", "Bo S1"}));
}

TEST(OpeningAModule, LeavesAllAsItWasWhenThePromptIsCancelled) {
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    bench.enter("txtStrength", {"Own fleet"});
    bench.click("BNext");
    bench.events();
    const Json before = bench.answerTo({{"do", "state"}});
    bench.answerMessage("cancel");
    bench.click("Brainstorm");
    EXPECT_EQ(bench.messages(), Texts{brainstormPrompt});
    EXPECT_EQ(bench.answerTo({{"do", "state"}})["state"], before["state"]);
}

TEST(OpeningAModule, StopsTheSoundEvenWhenThePromptIsCancelled) {
    Bench bench;
    bench.start();
    bench.form().editAFlag = true;
    bench.answerMessage("cancel");
    bench.click("Analyze");
    EXPECT_EQ(bench.events("narration"), Json::array({stopped()}));
    EXPECT_FALSE(bench.form().fraAnalyze.isVisible());
}

TEST(OpeningAnalyze, OutOfACleanBrainstormSessionShowsAnEmptyListOfFiles) {
    AnalysisBench bench;
    bench.openBrainstorm();
    bench.click("Analyze");
    const FrmMain& form = bench.form();
    EXPECT_EQ(bench.messages(), Texts{});
    EXPECT_FALSE(form.fraBrainstorm.isVisible());
    EXPECT_TRUE(form.lstFiles.isReachable());
    EXPECT_EQ(form.lstFiles.items(), Texts{});
    EXPECT_FALSE(form.picABack.isVisible());
}

TEST(OpeningAnalyze, InTheMiddleOfTheWizardBeginsAnew) {
    AnalysisBench bench;
    bench.next(6);
    bench.click("Analyze");
    EXPECT_EQ(bench.stepsShown(), Texts{});
    EXPECT_EQ(bench.texts("lvAStrength"), Texts{});
    EXPECT_TRUE(bench.form().cmdUndo.isVisible());
    EXPECT_TRUE(bench.form().cmdRedo.isVisible());
}

TEST(OpeningAnalyze, KeepsTheStatementsOfTheOtherModuleOutOfSight) {
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    bench.enter("txtStrength", {"Own fleet"});
    bench.answerMessage("no");
    bench.click("Analyze");
    EXPECT_EQ(bench.texts("lvBStrength"), Texts{"Own fleet"});
    EXPECT_FALSE(bench.form().editFlag);
}

TEST(OpeningAModule, TellsAnErrorAndKeepsWhatWasDone) {
    Bench bench;
    bench.start();
    bench.form().txtName.focusGiven.subscribe([] { throw Failure(ErrorNumber::InvalidCall); });
    bench.click("Brainstorm");
    EXPECT_EQ(bench.events("message"),
              Json::array({refusal("[5] Invalid procedure call or argument")}));
    EXPECT_TRUE(bench.form().fraBrainstorm.isVisible());
}

TEST(QuittingAModule, TakesUndoAndRedoOffTheScreen) {
    Bench bench;
    bench.start();
    for (const auto& [open, quit] : {std::pair{"Brainstorm", "BQuit"}, {"Analyze", "AQuit"}}) {
        bench.click(open);
        bench.click(quit);
        EXPECT_FALSE(bench.form().cmdUndo.isVisible()) << quit;
        EXPECT_FALSE(bench.form().cmdRedo.isVisible()) << quit;
    }
}

TEST(UndoAndRedo, StayEnabledWithNothingToUndo) {
    Bench bench;
    bench.start();
    bench.click("Brainstorm");
    EXPECT_TRUE(bench.form().cmdUndo.isReachable());
    EXPECT_TRUE(bench.form().cmdRedo.isReachable());
}

}  // namespace
}  // namespace orvanta::test
