#include "core/frm_main.h"

#include <gtest/gtest.h>

#include <set>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

using Captions = std::multiset<std::string>;

bool isButtonFace(const Control& control) { return control.name().starts_with("lblBtn"); }

/// What a person can read on the screen, but for buttons and lists.
Captions readOn(const FrmMain& form) {
    Captions captions;
    for (const Control* control : form.controls.all())
        if (const auto* label = dynamic_cast<const Label*>(control))
            if (label->isReachable() && !isButtonFace(*label)) captions.insert(label->caption());
    return captions;
}

/// The heading right above a list.
std::string headingOf(Bench& bench, const std::string& listName) {
    const StatementList& list = bench.list(listName);
    const Label* heading = nullptr;
    for (const Control* control : bench.form().controls.all()) {
        const auto* label = dynamic_cast<const Label*>(control);
        if (!label || label->container() != list.container()) continue;
        const bool above = label->bounds().left == list.bounds().left &&
                           label->bounds().top.value < list.bounds().top.value;
        if (above && (!heading || label->bounds().top.value > heading->bounds().top.value))
            heading = label;
    }
    return heading ? heading->caption() : "";
}

TEST(ScreenTexts, AreNoneButButtonsAndTheSwitchOfTheVoiceAtFirst) {
    Bench bench;
    bench.start();
    EXPECT_EQ(readOn(bench.form()), Captions{});
    EXPECT_EQ(bench.form().chkMute.caption(), "Sound Off");
    EXPECT_TRUE(bench.form().chkMute.isReachable());
}

TEST(ScreenTexts, LeadThroughTheChoiceOfAModule) {
    Bench bench;
    bench.start();
    bench.click("Brainstorm");
    EXPECT_EQ(readOn(bench.form()),
              (Captions{"Please enter your name",
                        "The following SWOT Brainstorming modules are available for use.",
                        "Please select the appropriate module or the one your team leader has "
                        "asked you to complete.",
                        "Distribute To Team Members"}));
}

TEST(ScreenTexts, AreTheQuestionAloneOnTheListScreens) {
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    EXPECT_EQ(readOn(bench.form()), Captions{" S question 1"});
}

TEST(ScreenTexts, LeadThroughTheSteps) {
    AnalysisBench bench;
    EXPECT_EQ(readOn(bench.form()),
              (Captions{"Open Brainstorm Files", "Add Brainstorm files to the list below."}));
    for (int heading = 1; heading <= 4; ++heading) {
        bench.next(1);
        EXPECT_EQ(readOn(bench.form()), Captions{" Heading " + std::to_string(heading)});
    }
    bench.next(1);
    EXPECT_EQ(readOn(bench.form()),
              (Captions{" Heading 5", "Opportunities", "Strengths", "Weaknesses"}));
    bench.next(1);
    EXPECT_EQ(readOn(bench.form()), (Captions{" Heading 6", "Threats", "Strengths", "Weaknesses"}));
}

TEST(ScreenTexts, NameEachListOfTheMappingScreensFromAbove) {
    AnalysisBench bench;
    EXPECT_EQ(headingOf(bench, "lvOpportunity"), "Opportunities");
    EXPECT_EQ(headingOf(bench, "lvThreat"), "Threats");
    for (const MappingSide& side : mappingSides()) {
        EXPECT_EQ(headingOf(bench, side.strengths), "Strengths") << side;
        EXPECT_EQ(headingOf(bench, side.weaknesses), "Weaknesses") << side;
    }
}

TEST(ScreenLists, BeginAndEndAtOneLineOnAllScreensAndAreOfOneWidth) {
    Bench bench;
    FrmMain& form = bench.form();
    const auto endOf = [](const Control& list) {
        return list.bounds().top.value + list.bounds().height.value;
    };
    const double end = endOf(form.lstFiles);
    for (const char* name : {"lvOpportunity", "lvThreat", "lvWeaknessOp", "lvWeaknessTh"}) {
        EXPECT_EQ(endOf(bench.list(name)), end) << name;
        EXPECT_EQ(bench.list(name).bounds().top, form.lstFiles.bounds().top) << name;
    }
    for (const char* name : {"lvBStrength", "lvBWeakness", "lvBOpportunity", "lvBThreat",
                             "lvAStrength", "lvAWeakness", "lvAOpportunity", "lvAThreat"}) {
        EXPECT_EQ(endOf(bench.list(name)), end) << name;
        EXPECT_EQ(bench.list(name).bounds().top, form.lstFiles.bounds().top) << name;
        EXPECT_EQ(bench.list(name).bounds().left, form.lstFiles.bounds().left) << name;
        EXPECT_EQ(bench.list(name).bounds().width, form.lstFiles.bounds().width) << name;
    }
}

TEST(MappingScreen, HasItsMappingListBetweenTheListsThatAreDraggedFrom) {
    Bench bench;
    const auto right = [](const Bounds& bounds) { return bounds.left + bounds.width; };
    for (const MappingSide& side : mappingSides()) {
        const Bounds strengths = bench.list(side.strengths).bounds(),
                     weaknesses = bench.list(side.weaknesses).bounds(),
                     mapping = bench.list(side.list).bounds();
        EXPECT_LT(right(strengths).value, mapping.left.value) << side;
        EXPECT_LT(right(mapping).value, weaknesses.left.value) << side;
        for (const Bounds& beside : {strengths, weaknesses}) {
            EXPECT_EQ(beside.top.value, mapping.top.value) << side;
            EXPECT_EQ(beside.height.value, mapping.height.value) << side;
        }
    }
}

TEST(ScreenTexts, OfTheAnalyzeStepsAreBuiltInUntilTheirFileIsRead) {
    Bench bench;
    const Json state = bench.answerTo({{"do", "state"}})["state"];
    for (const char* label : {"lblAStrength", "lblAWeakness", "lblAOpportunity", "lblAThreats",
                              "lblAOMapping", "lblATMapping"})
        EXPECT_EQ(state["captions"][label],
                  "Before we move on, take a look through your list and see if there are any that "
                  "should drop off or perhaps be consolidated with others.")
            << label;
}

TEST(ScreenTexts, TellWhatTheLinkToTheTeamIsFor) {
    Bench bench;
    EXPECT_EQ(bench.form().lblDistribute.toolTip(),
              "Use this link to email the Brainstorm module to your team.");
}

TEST(MainForm, HoldsEveryControlUnderANameOfItsOwn) {
    Bench bench;
    for (const Control* control : bench.form().controls.all())
        EXPECT_EQ(&bench.control(control->name()), control) << control->name();
}

TEST(OfferedModules, BearTheirNames) {
    Bench bench;
    const FrmMain& form = bench.form();
    EXPECT_EQ(form.optGBS.caption(), "General Business Strategy");
    EXPECT_EQ(form.optMP.caption(), "Marketing Planning");
    EXPECT_EQ(form.optSBD.caption(), "Sales && Business Development");
    EXPECT_EQ(form.optPSD.caption(), "Product / Service Development");
    EXPECT_EQ(form.optHRP.caption(), "Human Resources Planning");
}

TEST(UndoAndRedo, TellWhatTheyDo) {
    Bench bench;
    EXPECT_EQ(bench.form().cmdUndo.toolTip(), "Click here to undo last change.");
    EXPECT_EQ(bench.form().cmdRedo.toolTip(), "Click here to redo last change.");
}

}  // namespace
}  // namespace orvanta::test
