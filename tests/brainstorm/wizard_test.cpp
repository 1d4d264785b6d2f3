#include "brainstorm/wizard.h"

#include <gtest/gtest.h>

#include "brainstorm_bench.h"

namespace orvanta::test {
namespace {

constexpr const char* addPrompt = "Do you want to add the answer?";
const std::string saveToolTip = "Browse to the location you would like to save this file.";

TEST(ModuleChoice, RefusesABlankNameAndGivesItTheFocus) {
    Bench bench;
    bench.start();
    bench.click("Brainstorm");
    bench.set("txtName", "   ");
    bench.play({{"do", "choose"}, {"option", "optGBS"}});
    bench.events();
    bench.click("BNext");
    EXPECT_EQ(withoutArt(bench.events()),
              Json::array({stopped(), refusal("Please enter your name."), focusOn("txtName")}));
    EXPECT_TRUE(bench.form().txtName.isReachable());
}

TEST(ModuleChoice, AsksForTheNameBeforeTheModule) {
    Bench bench;
    bench.start();
    bench.click("Brainstorm");
    bench.click("BNext");
    EXPECT_EQ(bench.messages(), Texts{"Please enter your name."});
}

TEST(ModuleChoice, RefusesNoModuleAndLeavesTheFocus) {
    Bench bench;
    bench.start();
    bench.click("Brainstorm");
    bench.set("txtName", "Dana Reyes");
    bench.events();
    bench.click("BNext");
    EXPECT_EQ(withoutArt(bench.events()),
              Json::array({stopped(), refusal("Please select any SWOT analysis type.")}));
    EXPECT_FALSE(bench.form().picBBack.isVisible());
}

TEST(ModuleChoice, StaysWithoutAWordWhenTheBankIsIncomplete) {
    BrainstormBench bench;
    bench.back(1);
    bench.disk.files["app/gbsquestions.txt"] = lines({"<STRENGTH>", "<QUESTION>", "What?"});
    bench.click("BNext");
    EXPECT_EQ(bench.messages(), Texts{});
    EXPECT_EQ(bench.stepsShown(), Texts{});
    EXPECT_FALSE(bench.form().picBBack.isVisible());
}

TEST(ModuleChoice, TellsTheErrorOfABrokenBankAndStays) {
    BrainstormBench bench;
    bench.back(1);
    bench.disk.files["app/gbsquestions.txt"] = lines({"<STRENGTH>", "What?"});
    bench.click("BNext");
    EXPECT_EQ(bench.events("message"), Json::array({refusal("[9] Subscript out of range")}));
    EXPECT_EQ(bench.stepsShown(), Texts{});
}

TEST(ModuleChoice, LeadsToTheFirstStrengthWithBack) {
    BrainstormBench bench;
    EXPECT_EQ(bench.stepsShown(), Texts{"fraStrength"});
    EXPECT_EQ(bench.asked(answeredKinds()[0]), " S question 1");
    EXPECT_EQ(bench.form().questionStep, 1);
    EXPECT_TRUE(bench.form().picBBack.isReachable());
    EXPECT_EQ(bench.form().fraStrength.bounds().left, Twips{0});
    EXPECT_EQ(bench.form().fraStrength.bounds().top, Twips{0});
}

TEST(ModuleChoice, TrimsNothingOfTheName) {
    Bench bench;
    bench.start();
    bench.openBrainstorm("optGBS", " Dana ");
    EXPECT_EQ(bench.box("txtName").text(), " Dana ");
    EXPECT_TRUE(bench.form().fraStrength.isVisible());
}

class ListStep : public testing::TestWithParam<AnsweredKind> {
protected:
    const AnsweredKind& following() const {
        return answeredKinds()[static_cast<std::size_t>(kind.image)];
    }
    bool isLast() const { return kind.letter == "T"; }

    const AnsweredKind& kind = GetParam();
    BrainstormBench bench;
    FrmMain& form = bench.form();
};
INSTANTIATE_TEST_SUITE_P(Of, ListStep, testing::ValuesIn(answeredKinds()), NameOfParameter());

TEST_P(ListStep, AsksItsThreeQuestionsOneAfterTheOther) {
    bench.goTo(kind);
    EXPECT_EQ(bench.stepsShown(), Texts{kind.panel});
    EXPECT_EQ(bench.asked(kind), kind.asks(1));
    EXPECT_FALSE(form.onLastQuestion);
    bench.next(1);
    EXPECT_EQ(bench.asked(kind), kind.asks(2));
    EXPECT_FALSE(form.onLastQuestion);
    bench.next(1);
    EXPECT_EQ(bench.asked(kind), kind.asks(3));
    EXPECT_EQ(form.questionStep, 3);
    EXPECT_TRUE(form.onLastQuestion);
}

TEST_P(ListStep, TurnsNextIntoSaveAtTheLastQuestionOfTheThreatsAlone) {
    bench.goTo(kind, 2);
    EXPECT_EQ(form.buttons[Button::BNext].label.caption(), "Next>>");
    bench.next(1);
    const SkinnedButton& next = form.buttons[Button::BNext];
    EXPECT_EQ(next.label.caption(), isLast() ? "Save..." : "Next>>");
    EXPECT_EQ(next.label.toolTip(), isLast() ? saveToolTip : "");
    EXPECT_EQ(next.image.toolTip(), isLast() ? saveToolTip : "");
}

TEST_P(ListStep, LeadsFromItsLastQuestionToTheFollowingList) {
    bench.goTo(kind, 3);
    if (isLast()) bench.answerFile("docs/dana.bsm");
    bench.next(1);
    EXPECT_FALSE(form.onLastQuestion);
    if (isLast()) {
        EXPECT_FALSE(form.fraBrainstorm.isVisible());
    } else {
        EXPECT_EQ(bench.stepsShown(), Texts{following().panel});
        EXPECT_EQ(bench.asked(following()), following().asks(1));
        EXPECT_EQ(form.questionStep, 1);
    }
}

TEST_P(ListStep, EmptiesTheJournalOnItsWayOut) {
    bench.goTo(kind, 3);
    bench.enter(kind.box, {"statement"});
    ASSERT_EQ(bench.undoRecords().size(), 1u);
    if (isLast()) bench.answerFile("docs/dana.bsm");
    bench.next(1);
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.redoRecords(), Texts{});
}

TEST_P(ListStep, KeepsTheJournalFromQuestionToQuestion) {
    bench.goTo(kind);
    bench.enter(kind.box, {"statement"});
    bench.next(2);
    bench.back(1);
    EXPECT_EQ(bench.undoRecords().size(), 1u);
}

TEST_P(ListStep, CanNotBeLeftByNextIfItHasOneQuestion) {
    std::string bank = bankOf(3);
    for (int number : {2, 3}) {
        const std::string question =
            lines({"<QUESTION>", kind.letter + " question " + std::to_string(number)});
        bank.erase(bank.find(question), question.size());
    }
    bench.disk.files["app/mpquestions.txt"] = bank;
    bench.openBrainstorm("optMP");
    bench.goTo(kind);
    ASSERT_EQ(bench.stepsShown(), Texts{kind.panel});
    bench.next(3);
    EXPECT_EQ(bench.stepsShown(), Texts{kind.panel});
    EXPECT_EQ(form.questionStep, 1);
    EXPECT_FALSE(form.onLastQuestion);
}

TEST_P(ListStep, AsksAboutAnAnswerThatWasNotAdded) {
    bench.goTo(kind);
    bench.set(kind.box, " Late ");
    bench.answerMessage("yes");
    bench.events();
    bench.click("BNext");
    EXPECT_EQ(withoutArt(bench.events()),
              Json::array({stopped(), yesNoQuestion(addPrompt, "yes"), focusOn(kind.box)}));
    EXPECT_EQ(bench.rows(kind.list), (ShownRows{{kind.key(1), "Late"}}));
    EXPECT_EQ(bench.asked(kind), kind.asks(2));
}

TEST_P(ListStep, DropsAnUnaddedAnswerOnNo) {
    bench.goTo(kind);
    bench.set(kind.box, "Late");
    bench.answerMessage("no");
    bench.click("BNext");
    EXPECT_EQ(bench.box(kind.box).text(), "");
    EXPECT_EQ(bench.texts(kind.list), Texts{});
    EXPECT_EQ(bench.asked(kind), kind.asks(2));
}

TEST_P(ListStep, RefusesAnUnaddedAnswerOfBlanksAndGoesOnAllTheSame) {
    bench.goTo(kind);
    bench.set(kind.box, "  ");
    bench.answerMessage("yes");
    bench.events();
    bench.click("BNext");
    EXPECT_EQ(bench.events("message"),
              Json::array({yesNoQuestion(addPrompt, "yes"), refusal(kind.blankMessage)}));
    EXPECT_EQ(bench.box(kind.box).text(), "  ");
    EXPECT_EQ(bench.asked(kind), kind.asks(2));
}

TEST_P(ListStep, GoesBackToTheQuestionBeforeAndClearsTheMarkOfTheLast) {
    bench.goTo(kind, 3);
    bench.back(1);
    EXPECT_EQ(bench.asked(kind), kind.asks(2));
    EXPECT_EQ(form.questionStep, 2);
    EXPECT_FALSE(form.onLastQuestion);
    EXPECT_EQ(form.buttons[Button::BNext].label.caption(), "Next>>");
    EXPECT_EQ(form.buttons[Button::BNext].image.toolTip(), "");
    bench.next(1);
    EXPECT_TRUE(form.onLastQuestion);
}

/// A list that another one comes before.
class LaterListStep : public ListStep {};
INSTANTIATE_TEST_SUITE_P(Of, LaterListStep,
                         testing::Values(answeredKinds()[1], answeredKinds()[2],
                                         answeredKinds()[3]),
                         NameOfParameter());

TEST_P(LaterListStep, GoesBackFromItsFirstQuestionToTheLastOfTheListBefore) {
    const AnsweredKind& before = answeredKinds()[static_cast<std::size_t>(kind.image) - 2];
    bench.goTo(kind);
    bench.back(1);
    EXPECT_EQ(bench.stepsShown(), Texts{before.panel});
    EXPECT_EQ(bench.asked(before), before.asks(3));
    EXPECT_EQ(form.questionStep, 3);
    EXPECT_TRUE(form.onLastQuestion);
    bench.next(1);
    EXPECT_EQ(bench.stepsShown(), Texts{kind.panel});
    EXPECT_EQ(bench.asked(kind), kind.asks(1));
}

TEST_P(ListStep, LeavesStatementsAndAnUnaddedAnswerAloneOnTheWayBack) {
    bench.goTo(kind);
    bench.enter(kind.box, {"statement"});
    bench.set(kind.box, "half typed");
    bench.events();
    bench.click("BBack");
    EXPECT_EQ(bench.messages(), Texts{});
    EXPECT_EQ(bench.texts(kind.list), Texts{"statement"});
    EXPECT_EQ(bench.box(kind.box).text(), "half typed");
    EXPECT_EQ(bench.undoRecords(), Texts{});
}

}  // namespace
}  // namespace orvanta::test
