#include <gtest/gtest.h>

#include "brainstorm_bench.h"

namespace orvanta::test {
namespace {

Json mute(bool on) { return {{"do", "mute"}, {"on", on}}; }
Json clip(const std::string& name) { return narration(clipPath(name)); }

const std::string savePrompt = "Do you want to save changes in brainstorm session?";

TEST(BackFromTheFirstStrength, IsTheModuleChoiceWithoutBack) {
    BrainstormBench bench;
    bench.enter("txtStrength", {"Own fleet"});
    bench.back(1);
    EXPECT_EQ(bench.stepsShown(), Texts{});
    EXPECT_TRUE(bench.form().txtName.isReachable());
    EXPECT_FALSE(bench.form().picBBack.isVisible());
    EXPECT_EQ(bench.form().questionStep, 0);
    EXPECT_EQ(bench.undoRecords(), Texts{});
}

TEST(AnotherModule, KeepsTheStatementsAndAsksTheQuestionsOfItsBank) {
    BrainstormBench bench;
    bench.disk.files["app/mpquestions.txt"] = bankOf(8);
    bench.enter("txtStrength", {"Own fleet"});
    bench.back(1);
    bench.play({{"do", "choose"}, {"option", "optMP"}});
    bench.next(1);
    EXPECT_EQ(bench.texts("lvBStrength"), Texts{"Own fleet"});
    EXPECT_EQ(bench.program().questions.strengthCount, 8);
}

TEST(AnotherModule, StaysSilentUpToTheNumberThatWasHeard) {
    BrainstormBench bench;
    bench.addClips("mp");
    bench.next(1);
    bench.back(2);
    bench.play({{"do", "choose"}, {"option", "optMP"}});
    bench.next(1);
    bench.click("BNext");
    EXPECT_EQ(bench.events("narration"), Json::array({stopped()}));
    bench.click("BNext");
    EXPECT_EQ(bench.events("narration"), Json::array({stopped(), clip("mp_S3")}));
}

TEST(Question, SpeaksOnlyTheFirstTimeThatNextReachesIt) {
    BrainstormBench bench;
    bench.addClips("gbs");
    bench.click("BNext");
    EXPECT_EQ(bench.events("narration"), Json::array({stopped(), clip("gbs_S2")}));
    bench.back(1);
    bench.click("BNext");
    EXPECT_EQ(bench.events("narration"), Json::array({stopped()}));
}

TEST(Question, WithoutAClipCountsAsHeard) {
    BrainstormBench bench;
    bench.next(1);
    EXPECT_EQ(bench.form().narratedStrength, 2);
    bench.addClips("gbs");
    bench.back(1);
    bench.click("BNext");
    EXPECT_EQ(bench.events("narration"), Json::array({stopped()}));
}

TEST(Question, PassedInSilenceSpeaksLater) {
    BrainstormBench bench;
    bench.addClips("gbs");
    bench.play(mute(true));
    bench.next(1);
    EXPECT_EQ(bench.form().narratedStrength, 1);
    bench.play(mute(false));
    bench.back(1);
    bench.click("BNext");
    EXPECT_EQ(bench.events("narration"), Json::array({stopped(), clip("gbs_S2")}));
}

TEST(Question, NotYetHeardSpeaksOnceTheSoundIsOnAgain) {
    BrainstormBench bench;
    bench.addClips("gbs");
    bench.play(mute(true));
    bench.next(1);
    bench.play(mute(false));
    bench.click("BNext");
    EXPECT_EQ(bench.events("narration"), Json::array({stopped(), clip("gbs_S3")}));
}

TEST(Question, SpeaksAtEveryPressOfBackWithoutCounting) {
    BrainstormBench bench;
    bench.addClips("gbs");
    bench.next(2);
    bench.click("BBack");
    EXPECT_EQ(bench.events("narration"), Json::array({stopped(), clip("gbs_S2")}));
    bench.click("BBack");
    EXPECT_EQ(bench.events("narration"), Json::array({stopped(), clip("gbs_S1")}));
    EXPECT_EQ(bench.form().narratedStrength, 3);
}

TEST(Question, AtTheEndOfTheListBeforeSpeaksOnBack) {
    BrainstormBench bench;
    bench.addClips("gbs");
    bench.goTo(answeredKinds()[1]);
    bench.click("BBack");
    EXPECT_EQ(bench.events("narration"), Json::array({stopped(), clip("gbs_S3")}));
}

TEST(Question, ReachedAgainAfterTheLastOneIsSilent) {
    BrainstormBench bench;
    bench.addClips("gbs");
    bench.next(2);
    bench.back(1);
    bench.click("BNext");
    EXPECT_EQ(bench.events("narration"), Json::array({stopped()}));
    EXPECT_TRUE(bench.form().onLastQuestion);
}

class SaveAtTheEnd : public testing::Test {
protected:
    SaveAtTheEnd() { bench.goTo(answeredKinds()[3], 3); }
    BrainstormBench bench;
    FrmMain& form = bench.form();
};

TEST_F(SaveAtTheEnd, OfEmptyListsWritesAFileWithoutStatements) {
    bench.answerFile("docs/dana");
    bench.click("BNext");
    EXPECT_EQ(bench.disk.files.at("docs/dana.bsm"),
              brainstormFile("Dana Reyes", "GBS", {}, {}, {}, {}));
    EXPECT_EQ(bench.messages(), Texts{"Your brainstorming session completed."});
}

TEST_F(SaveAtTheEnd, LeavesTheModuleClean) {
    bench.enter("txtThreat", {"New rival"});
    bench.play({{"do", "tick"}});
    bench.answerFile("docs/dana.bsm");
    bench.click("BNext");
    EXPECT_FALSE(form.fraBrainstorm.isVisible());
    EXPECT_FALSE(form.editFlag);
    EXPECT_FALSE(form.onLastQuestion);
    EXPECT_EQ(form.buttons[Button::BNext].label.toolTip(), "");
    EXPECT_EQ(form.buttons[Button::BNext].image.toolTip(), "");
    EXPECT_FALSE(bench.disk.files.contains("app/brainstorm.tmp"));
}

TEST_F(SaveAtTheEnd, LeavesUndoAndRedoOnScreenAndBackSwitchedOn) {
    bench.answerFile("docs/dana.bsm");
    bench.click("BNext");
    EXPECT_TRUE(form.cmdUndo.isReachable());
    EXPECT_TRUE(form.cmdRedo.isReachable());
    EXPECT_TRUE(form.picBBack.isVisible());
}

TEST_F(SaveAtTheEnd, StaysOnTheLastQuestionWhenItIsCancelled) {
    bench.click("BNext");
    EXPECT_EQ(bench.stepsShown(), Texts{"fraThreats"});
    EXPECT_TRUE(form.onLastQuestion);
    EXPECT_EQ(form.buttons[Button::BNext].label.caption(), "Save...");
    EXPECT_NE(form.buttons[Button::BNext].image.toolTip(), "");
}

TEST_F(SaveAtTheEnd, StaysWhenTheFileIsNotToBeOverwritten) {
    bench.disk.files["docs/dana.bsm"] = "before";
    bench.answerFile("docs/dana.bsm");
    bench.answerMessage("no");
    bench.click("BNext");
    EXPECT_EQ(bench.disk.files.at("docs/dana.bsm"), "before");
    EXPECT_EQ(bench.stepsShown(), Texts{"fraThreats"});
    EXPECT_EQ(form.buttons[Button::BNext].label.caption(), "Save...");
}

TEST_F(SaveAtTheEnd, AsksAboutAnUnaddedAnswerFirst) {
    bench.set("txtThreat", "New rival");
    bench.answerMessage("yes");
    bench.answerFile("docs/dana.bsm");
    bench.click("BNext");
    EXPECT_EQ(bench.disk.files.at("docs/dana.bsm"),
              brainstormFile("Dana Reyes", "GBS", {}, {}, {}, {"New rival"}));
}

TEST_F(SaveAtTheEnd, IsTakenBackByBackFromEveryThreat) {
    bench.back(3);
    EXPECT_EQ(bench.stepsShown(), Texts{"fraOpportunity"});
    EXPECT_EQ(form.buttons[Button::BNext].label.caption(), "Next>>");
}

TEST(BrainstormQuit, DropsAnUnaddedAnswerOfACleanSessionWithoutAWord) {
    BrainstormBench bench;
    bench.set("txtStrength", "half typed");
    bench.click("BQuit");
    EXPECT_EQ(bench.messages(), Texts{});
    EXPECT_FALSE(bench.form().fraBrainstorm.isVisible());
}

TEST(BrainstormQuit, KeepsListsAndOptionsUntilTheModuleIsOpenedAgain) {
    BrainstormBench bench;
    bench.enter("txtStrength", {"Own fleet"});
    bench.answerMessage("no");
    bench.click("BQuit");
    EXPECT_EQ(bench.texts("lvBStrength"), Texts{"Own fleet"});
    EXPECT_TRUE(bench.form().optGBS.isOn());
    bench.click("Brainstorm");
    EXPECT_EQ(bench.texts("lvBStrength"), Texts{});
    EXPECT_FALSE(bench.form().optGBS.isOn());
}

TEST(BrainstormQuit, StaysWhereItIsWhenThePromptIsCancelled) {
    BrainstormBench bench;
    bench.enter("txtStrength", {"Own fleet"});
    bench.next(1);
    bench.answerMessage("cancel");
    bench.click("BQuit");
    EXPECT_EQ(bench.messages(), Texts{savePrompt});
    EXPECT_EQ(bench.stepsShown(), Texts{"fraStrength"});
    EXPECT_EQ(bench.form().questionStep, 2);
    EXPECT_TRUE(bench.form().cmdUndo.isVisible());
}

TEST(OpenedBrainstormFile, StandsOnTheModuleChoiceFilledInWithItsModuleFixed) {
    BrainstormBench bench;
    bench.disk.files["docs/lee.bsm"] =
        brainstormFile("Lee Park", "PSD", {"S"}, {"W"}, {"O"}, {"T"});
    bench.back(1);
    bench.answerFile("docs/lee.bsm");
    bench.click("BOpen");
    const FrmMain& form = bench.form();
    EXPECT_EQ(form.txtName.text(), "Lee Park");
    EXPECT_TRUE(form.optPSD.isOn());
    EXPECT_FALSE(form.optPSD.isEnabled());
    EXPECT_FALSE(form.optGBS.isEnabled());
    EXPECT_EQ(bench.stepsShown(), Texts{});
    for (const AnsweredKind& kind : answeredKinds())
        EXPECT_EQ(bench.rows(kind.list), (ShownRows{{kind.key(1), kind.letter}}));
}

TEST(OpenedBrainstormFile, IsWalkedThroughAsANewSessionIs) {
    BrainstormBench bench;
    bench.disk.files["docs/lee.bsm"] = brainstormFile("Lee Park", "PSD", {"S"}, {}, {}, {});
    bench.back(1);
    bench.answerFile("docs/lee.bsm");
    bench.click("BOpen");
    bench.next(1);
    bench.enter("txtStrength", {"more"});
    EXPECT_EQ(bench.rows("lvBStrength"), (ShownRows{{"S1", "S"}, {"S2", "more"}}));
    EXPECT_EQ(bench.form().questionStep, 1);
}

}  // namespace
}  // namespace orvanta::test
