#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

constexpr const char* addPrompt = "Do you want to add the answer?";

struct Screen {
    std::string name, panel, clip;
    bool showsUndo;
};
std::ostream& operator<<(std::ostream& out, const Screen& screen) { return out << screen.name; }

const std::vector<Screen> screens{
    {"Strengths", "fraASSummary", "analyze_S", true},
    {"Weaknesses", "fraAWeakness", "analyze_W", true},
    {"Opportunities", "fraAOpportunity", "analyze_O", true},
    {"Threats", "fraAThreats", "analyze_T", true},
    {"OpportunityMapping", "fraAnalyzeOpportunity", "analyze_OM", false},
    {"ThreatMapping", "fraAnalyzeThreat", "analyze_TM", false},
};

int pressesTo(const Screen& screen) {
    for (std::size_t i = 0; i < screens.size(); ++i)
        if (screens[i].name == screen.name) return static_cast<int>(i) + 1;
    return 0;
}

class AnalyzeNext : public testing::TestWithParam<Screen> {
protected:
    AnalyzeNext() {
        bench.addClips();
        bench.next(pressesTo(GetParam()) - 1);
    }
    AnalysisBench bench;
};
INSTANTIATE_TEST_SUITE_P(To, AnalyzeNext, testing::ValuesIn(screens), NameOfParameter());

TEST_P(AnalyzeNext, ShowsTheNextScreenAloneWithBack) {
    bench.click("ANext");
    EXPECT_EQ(bench.stepsShown(), Texts{GetParam().panel});
    EXPECT_TRUE(bench.isShown("picABack"));
}

TEST_P(AnalyzeNext, StopsTheSoundAndSpeaksTheClipOfTheScreen) {
    bench.click("ANext");
    EXPECT_EQ(withoutArt(bench.events()),
              Json::array({stopped(), narration(clipPath(GetParam().clip))}));
}

TEST_P(AnalyzeNext, OnlyStopsTheSoundWhereTheClipIsMissing) {
    bench.disk.files.erase(clipPath(GetParam().clip));
    bench.click("ANext");
    EXPECT_EQ(withoutArt(bench.events()), Json::array({stopped()}));
}

TEST_P(AnalyzeNext, OnlyStopsTheSoundWhenMuted) {
    bench.play({{"do", "mute"}, {"on", true}});
    bench.events();
    bench.click("ANext");
    EXPECT_EQ(withoutArt(bench.events()), Json::array({stopped()}));
}

TEST_P(AnalyzeNext, EmptiesBothStacksOfTheJournal) {
    bench.form().undoRecords[0] = "a record";
    bench.form().redoRecords[1] = "another";
    bench.click("ANext");
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.redoRecords(), Texts{});
}

TEST_P(AnalyzeNext, HidesUndoAndRedoOnTheMappingScreensOnly) {
    bench.click("ANext");
    EXPECT_EQ(bench.isShown("cmdUndo"), GetParam().showsUndo);
    EXPECT_EQ(bench.isShown("cmdRedo"), GetParam().showsUndo);
}

TEST_P(AnalyzeNext, KeepsItsCaption) {
    bench.click("ANext");
    EXPECT_EQ(bench.form().buttons[Button::ANext].label.caption(), "Next>>");
}

struct WayBack {
    std::string name, from, panel;
    Json spoken;
};
std::ostream& operator<<(std::ostream& out, const WayBack& way) { return out << way.name; }

class AnalyzeBack : public testing::TestWithParam<WayBack> {
protected:
    AnalyzeBack() {
        bench.addClips();
        for (const Screen& screen : screens)
            if (screen.name == GetParam().from) bench.next(pressesTo(screen));
    }
    AnalysisBench bench;
};
INSTANTIATE_TEST_SUITE_P(
    From, AnalyzeBack,
    testing::Values(
        WayBack{"ThreatMapping", "ThreatMapping", "fraAnalyzeOpportunity",
                narration(clipPath("analyze_OM"))},
        // The clip of the threat mapping where the one of the threats would be expected.
        WayBack{"OpportunityMapping", "OpportunityMapping", "fraAThreats",
                narration(clipPath("analyze_TM"))},
        WayBack{"Threats", "Threats", "fraAOpportunity", narration(clipPath("analyze_O"))},
        WayBack{"Opportunities", "Opportunities", "fraAWeakness", narration(clipPath("analyze_W"))},
        WayBack{"Weaknesses", "Weaknesses", "fraASSummary", narration(clipPath("analyze_S"))}),
    NameOfParameter());

TEST_P(AnalyzeBack, ShowsTheScreenBeforeAlone) {
    bench.click("ABack");
    EXPECT_EQ(bench.stepsShown(), Texts{GetParam().panel});
    EXPECT_TRUE(bench.isShown("picABack"));
}

TEST_P(AnalyzeBack, StopsTheSoundAndSpeaks) {
    bench.click("ABack");
    EXPECT_EQ(withoutArt(bench.events()), Json::array({stopped(), GetParam().spoken}));
}

TEST_P(AnalyzeBack, OnlyStopsTheSoundWhenMuted) {
    bench.play({{"do", "mute"}, {"on", true}});
    bench.events();
    bench.click("ABack");
    EXPECT_EQ(withoutArt(bench.events()), Json::array({stopped()}));
}

TEST_P(AnalyzeBack, EmptiesBothStacksOfTheJournal) {
    bench.form().undoRecords[0] = "a record";
    bench.form().redoRecords[1] = "another";
    bench.click("ABack");
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.redoRecords(), Texts{});
}

TEST(AnalyzeBackToTheFiles, UncoversThemHidesBackAndSpeaksNothing) {
    AnalysisBench bench;
    bench.addClips();
    bench.next(1);
    bench.click("ABack");
    EXPECT_EQ(withoutArt(bench.events()), Json::array({stopped()}));
    EXPECT_EQ(bench.stepsShown(), Texts{});
    EXPECT_FALSE(bench.isShown("picABack"));
}

TEST(AnalyzeBackToTheThreats, ShowsUndoAndRedoAgain) {
    AnalysisBench bench;
    bench.next(5);
    bench.click("ABack");
    EXPECT_TRUE(bench.isShown("cmdUndo"));
    EXPECT_TRUE(bench.isShown("cmdRedo"));
}

TEST(AnalyzeBackToTheOpportunityMapping, LeavesUndoAndRedoHidden) {
    AnalysisBench bench;
    bench.next(6);
    bench.click("ABack");
    EXPECT_FALSE(bench.isShown("cmdUndo"));
    EXPECT_FALSE(bench.isShown("cmdRedo"));
}

TEST(AnalyzeBackToTheThreats, IsSilentWithoutTheThreatsClipEvenIfTheMappingClipIsThere) {
    AnalysisBench bench;
    bench.addClips();
    bench.disk.files.erase(clipPath("analyze_T"));
    bench.next(5);
    bench.click("ABack");
    EXPECT_EQ(bench.events("narration"), Json::array({stopped()}));
}

TEST(AnalyzeBackToTheThreats, StartsTheMappingClipWithoutLookingForIt) {
    AnalysisBench bench;
    bench.addClips();
    bench.disk.files.erase(clipPath("analyze_TM"));
    bench.next(5);
    bench.click("ABack");
    EXPECT_EQ(bench.events("narration"),
              Json::array({stopped(), narration(clipPath("analyze_TM"))}));
}

TEST(AnalyzeBack, AsksNothingAndLeavesATypedTextInItsBox) {
    AnalysisBench bench;
    bench.next(2);
    bench.set("txtAWeakness", "half typed");
    bench.click("ABack");
    EXPECT_EQ(bench.messages(), Texts{});
    EXPECT_EQ(bench.box("txtAWeakness").text(), "half typed");
}

TEST(AnalyzeWizard, KeepsStatementsMappingsAndOrderOnTheWayBackAndForward) {
    AnalysisBench bench;
    bench.next(3);
    bench.enter("txtAOpportunity", {"Late idea"});
    bench.drag("lvAOpportunity", 1, "lvAOpportunity", 4);
    bench.next(2);
    bench.map("lvStrengthOp", 1, "lvOpportunity", 1);
    const ShownRows ranked = bench.rows("lvAOpportunity"), mapped = bench.rows("lvOpportunity");
    for (int i = 0; i < 4; ++i) bench.click("ABack");
    bench.next(4);
    EXPECT_EQ(bench.rows("lvAOpportunity"), ranked);
    EXPECT_EQ(bench.rows("lvOpportunity"), mapped);
}

TEST(AnalyzeWizard, BearsBuiltInInstructionsUntilItsTextsAreRead) {
    Bench bench;
    const Json answer = bench.answerTo({{"do", "state"}});
    for (const char* label : {"lblAStrength", "lblAWeakness", "lblAOpportunity", "lblAThreats",
                              "lblAOMapping", "lblATMapping"})
        EXPECT_EQ(answer["state"]["captions"][label],
                  "Before we move on, take a look through your list and see if there are any "
                  "that should drop off or perhaps be consolidated with others.")
            << label;
}

class AnswerLeftInTheBox : public testing::TestWithParam<ReviewedKind> {
protected:
    AnswerLeftInTheBox() { bench.goTo(GetParam()); }
    std::string nextPanel() const { return screens[GetParam().presses].panel; }
    const ReviewedKind& kind = GetParam();
    AnalysisBench bench;
};
INSTANTIATE_TEST_SUITE_P(Of, AnswerLeftInTheBox, testing::ValuesIn(reviewedKinds()),
                         NameOfParameter());

TEST_P(AnswerLeftInTheBox, IsAddedOnYesBeforeTheScreenChanges) {
    bench.addClips();
    bench.set(kind.box, " Late ");
    bench.answerMessage("yes");
    bench.events();
    bench.click("ANext");
    EXPECT_EQ(withoutArt(bench.events()),
              Json::array({stopped(), yesNoQuestion(addPrompt, "yes"), focusOn(kind.box),
                           narration(clipPath(screens[kind.presses].clip))}));
    EXPECT_EQ(bench.rows(kind.list).back(), (ShownRow{kind.key(4), "Late"}));
    EXPECT_EQ(bench.stepsShown(), Texts{nextPanel()});
}

TEST_P(AnswerLeftInTheBox, CanNoLongerBeUndoneOnTheNextScreen) {
    bench.set(kind.box, "Late");
    bench.answerMessage("yes");
    bench.click("ANext");
    EXPECT_EQ(bench.undoRecords(), Texts{});
}

TEST_P(AnswerLeftInTheBox, IsDroppedOnNo) {
    bench.set(kind.box, "Late");
    bench.answerMessage("no");
    bench.click("ANext");
    EXPECT_EQ(bench.box(kind.box).text(), "");
    EXPECT_EQ(bench.rows(kind.list).size(), 3u);
    EXPECT_EQ(bench.stepsShown(), Texts{nextPanel()});
}

TEST_P(AnswerLeftInTheBox, IsRefusedIfBlankAndStaysWhileTheWizardMovesOn) {
    bench.set(kind.box, "   ");
    bench.answerMessage("yes");
    bench.events();
    bench.click("ANext");
    EXPECT_EQ(bench.events("message"),
              Json::array({yesNoQuestion(addPrompt, "yes"), refusal(kind.blankMessage)}));
    EXPECT_EQ(bench.box(kind.box).text(), "   ");
    EXPECT_EQ(bench.stepsShown(), Texts{nextPanel()});
}

TEST_P(AnswerLeftInTheBox, IsNotAskedForWhenTheBoxIsEmpty) {
    bench.click("ANext");
    EXPECT_EQ(bench.messages(), Texts{});
}

}  // namespace
}  // namespace orvanta::test
