#include <gtest/gtest.h>

#include "analysis_bench.h"
#include "full_analysis.h"

namespace orvanta::test {
namespace {

constexpr const char* analyzeFilterText = "All Analyze Files (*.aze)|*.aze";

Json fileDialog(const std::string& mode, const std::string& initialPath, const Json& answer) {
    return {{"event", "fileDialog"},      {"mode", mode},   {"filter", analyzeFilterText},
            {"initialPath", initialPath}, {"fileName", ""}, {"answer", answer}};
}

Json savePrompt(const std::string& answer) {
    return {{"event", "message"}, {"text", "Do you want to save changes in analyze session?"},
            {"icon", "question"}, {"buttons", "yesNoCancel"},
            {"default", "yes"},   {"title", nullptr},
            {"answer", answer}};
}

Json clickEvents(Bench& bench, const std::string& button) {
    bench.events();
    bench.click(button);
    Json rest = Json::array();
    for (const Json& event : bench.events())
        if (event["event"] != "art") rest.push_back(event);
    return rest;
}

/// An analysis that was left at the opportunity mapping.
std::string savedAnalysis() {
    return lines({"<STEP>",
                  "AO",
                  "</STEP>",
                  "<MODULE>",
                  "MP",
                  "</MODULE>",
                  "<STRENGTH>",
                  rowLine("S4", "[Lee]: ", "Old strength"),
                  "</STRENGTH>",
                  "<WEAKNESS>",
                  "</WEAKNESS>",
                  "<OPPORTUNITY>",
                  rowLine("O2", "", "Old opportunity"),
                  "</OPPORTUNITY>",
                  "<THREATS>",
                  "</THREATS>",
                  "<OPPORTUNITYMAPPING>",
                  rowLine("O2", "", "Old opportunity"),
                  rowLine("O2-S4", "[Lee]: ", "Old strength"),
                  "</OPPORTUNITYMAPPING>",
                  "<THREATMAPPING>",
                  "</THREATMAPPING>"});
}

class AnalyzeEnd : public testing::Test {
protected:
    AnalyzeEnd() {
        bench.next(6);
        bench.form().editAFlag = true;
    }
    AnalysisBench bench;
};

TEST_F(AnalyzeEnd, StaysOnTheThreatMappingWhenTheSaveDialogIsCancelled) {
    bench.form().undoRecords[0] = "a record";
    const Json seen = clickEvents(bench, "ANext");
    EXPECT_EQ(seen, Json::array({stopped(), fileDialog("save", "docs/My SWOT", nullptr)}));
    EXPECT_EQ(bench.stepsShown(), Texts{"fraAnalyzeThreat"});
    EXPECT_TRUE(bench.isShown("fraAnalyze"));
    EXPECT_TRUE(bench.form().editAFlag);
    EXPECT_EQ(bench.undoRecords(), Texts{"a record"});
}

TEST_F(AnalyzeEnd, LeavesACleanSessionCleanWhenTheSaveDialogIsCancelled) {
    bench.form().editAFlag = false;
    bench.click("ANext");
    EXPECT_FALSE(bench.form().editAFlag);
}

TEST_F(AnalyzeEnd, StaysWhenTheFileIsNotToBeOverwritten) {
    bench.disk.files["docs/team.aze"] = "former";
    bench.answerFile("docs/team.aze");
    bench.answerMessage("no");
    bench.click("ANext");
    EXPECT_EQ(bench.messages(), Texts{"Do you want to overwrite the file?"});
    EXPECT_EQ(bench.disk.files["docs/team.aze"], "former");
    EXPECT_EQ(bench.stepsShown(), Texts{"fraAnalyzeThreat"});
}

TEST_F(AnalyzeEnd, SavesTellsSoAndLeavesTheModule) {
    bench.disk.files["app/analyze.tmp"] = "left over";
    bench.form().undoRecords[0] = "a record";
    bench.answerFile("docs/team.aze");
    const Json seen = clickEvents(bench, "ANext");
    EXPECT_EQ(seen, Json::array({stopped(), fileDialog("save", "docs/My SWOT", "docs/team.aze"),
                                 setting("LastSavedPathAZE", "docs/team.aze"),
                                 information("Your analyze session completed.")}));
    EXPECT_TRUE(bench.disk.files.contains("docs/team.aze"));
    EXPECT_FALSE(bench.disk.files.contains("app/analyze.tmp"));
    EXPECT_FALSE(bench.isShown("fraAnalyze"));
    EXPECT_FALSE(bench.form().editAFlag);
    EXPECT_EQ(bench.undoRecords(), Texts{});
}

class AnalyzeQuit : public testing::TestWithParam<int> {
protected:
    AnalyzeQuit() {
        bench.next(GetParam());
        steps = bench.stepsShown();
        bench.form().editAFlag = true;
    }
    AnalysisBench bench;
    Texts steps;
};
INSTANTIATE_TEST_SUITE_P(AfterPresses, AnalyzeQuit, testing::Values(0, 1, 4, 6));

TEST_P(AnalyzeQuit, KeepsTheStepAndTheSilenceWhenCancelled) {
    const bool undo = bench.isShown("cmdUndo");
    bench.answerMessage("cancel");
    EXPECT_EQ(clickEvents(bench, "AQuit"), Json::array({stopped(), savePrompt("cancel")}));
    EXPECT_EQ(bench.stepsShown(), steps);
    EXPECT_TRUE(bench.isShown("fraAnalyze"));
    EXPECT_EQ(bench.isShown("cmdUndo"), undo);
    EXPECT_TRUE(bench.form().editAFlag);
}

TEST_P(AnalyzeQuit, HidesTheModuleWithUndoAndRedoAndKeepsListsAndPanels) {
    const ShownRows rows = bench.rows("lvAStrength");
    bench.answerMessage("no");
    bench.click("AQuit");
    EXPECT_FALSE(bench.isShown("fraAnalyze"));
    EXPECT_FALSE(bench.isShown("cmdUndo"));
    EXPECT_FALSE(bench.isShown("cmdRedo"));
    EXPECT_EQ(bench.stepsShown(), steps);
    EXPECT_EQ(bench.rows("lvAStrength"), rows);
    EXPECT_EQ(bench.form().lstFiles.items().size(), 2u);
}

class OpenAnalyzeFile : public testing::Test {
protected:
    OpenAnalyzeFile() { bench.disk.files["docs/old.aze"] = savedAnalysis(); }
    void open() {
        bench.answerFile("docs/old.aze");
        bench.click("OAFile");
    }
    AnalysisBench bench;
};

TEST_F(OpenAnalyzeFile, LandsOnTheStrengthsWithBackHidden) {
    open();
    EXPECT_EQ(bench.stepsShown(), Texts{"fraASSummary"});
    EXPECT_FALSE(bench.isShown("picABack"));
}

TEST_F(OpenAnalyzeFile, ShowsBackFromTheNextNextOn) {
    open();
    bench.next(1);
    EXPECT_EQ(bench.stepsShown(), Texts{"fraAWeakness"});
    EXPECT_TRUE(bench.isShown("picABack"));
}

TEST_F(OpenAnalyzeFile, RemembersThePathAndBringsTheWholeAnalysisBack) {
    const Json seen = [&] {
        bench.answerFile("docs/old.aze");
        return clickEvents(bench, "OAFile");
    }();
    EXPECT_EQ(seen, Json::array({fileDialog("open", "docs/My SWOT", "docs/old.aze"),
                                 setting("LastSavedPathAZE", "docs/old.aze")}));
    EXPECT_EQ(bench.form().lastPathAZE, "docs/old.aze");
    EXPECT_EQ(bench.rows("lvAStrength"), (ShownRows{{"S4", "Old strength"}}));
    EXPECT_EQ(bench.rows("lvOpportunity"),
              (ShownRows{{"O2", "Old opportunity"}, {"O2-S4", "Old strength"}}));
    EXPECT_FALSE(bench.form().editAFlag);
}

TEST_F(OpenAnalyzeFile, LeavesTheFormerScreenShownBesideTheStrengths) {
    bench.next(4);
    open();
    EXPECT_EQ(bench.stepsShown(), (Texts{"fraASSummary", "fraAThreats"}));
}

TEST_F(OpenAnalyzeFile, LetsNextGoByTheFirstOfTwoScreens) {
    bench.next(4);
    open();
    bench.next(1);
    EXPECT_EQ(bench.stepsShown(), (Texts{"fraAWeakness", "fraAThreats"}));
}

TEST_F(OpenAnalyzeFile, LetsBackGoByTheLastOfTwoScreens) {
    bench.next(4);
    open();
    bench.click("ABack");
    EXPECT_EQ(bench.stepsShown(), (Texts{"fraASSummary", "fraAOpportunity"}));
}

TEST_F(OpenAnalyzeFile, LeavesUndoAndRedoAsTheyWere) {
    bench.next(5);
    open();
    EXPECT_FALSE(bench.isShown("cmdUndo"));
    EXPECT_FALSE(bench.isShown("cmdRedo"));
}

TEST_F(OpenAnalyzeFile, KeepsTheSessionUnsavedAfterNoAndACancelledDialog) {
    bench.next(1);
    bench.form().editAFlag = true;
    bench.disk.files["app/analyze.tmp"] = "left over";
    bench.answerMessage("no");
    EXPECT_EQ(clickEvents(bench, "OAFile"),
              Json::array({savePrompt("no"), fileDialog("open", "docs/My SWOT", nullptr)}));
    EXPECT_TRUE(bench.form().editAFlag);
    EXPECT_EQ(bench.rows("lvAStrength").size(), 3u);
    EXPECT_FALSE(bench.disk.files.contains("app/analyze.tmp"));
}

TEST_F(OpenAnalyzeFile, ChangesNothingWhenThePromptIsCancelled) {
    bench.next(1);
    bench.form().editAFlag = true;
    bench.answerMessage("cancel");
    EXPECT_EQ(clickEvents(bench, "OAFile"), Json::array({savePrompt("cancel")}));
    EXPECT_EQ(bench.rows("lvAStrength").size(), 3u);
}

TEST_F(OpenAnalyzeFile, GivesTheFlagBackWithoutAWordWhenReadingFails) {
    bench.next(2);
    bench.form().editAFlag = true;
    bench.disk.unreadable["docs/old.aze"] = ErrorNumber::PermissionDenied;
    bench.answerMessage("no");
    bench.answerFile("docs/old.aze");
    bench.click("OAFile");
    EXPECT_EQ(bench.messages().size(), 1u);
    EXPECT_TRUE(bench.form().editAFlag);
    EXPECT_EQ(bench.stepsShown(), Texts{"fraAWeakness"});
}

TEST_F(OpenAnalyzeFile, IsReplacedByTheListedFilesOnNextFromTheSourceFiles) {
    open();
    bench.next(1);
    bench.click("ABack");
    bench.click("ABack");
    bench.next(1);
    EXPECT_EQ(bench.texts("lvAStrength"), (Texts{"Ann S1", "Ann S2", "Bo S1"}));
}

TEST(AnalyzeNextFailing, TellsTheErrorAndStaysWithBackHidden) {
    AnalysisBench bench;
    bench.disk.unreadable["docs/bo.bsm"] = ErrorNumber::PermissionDenied;
    EXPECT_EQ(clickEvents(bench, "ANext"),
              Json::array({stopped(), refusal("[70] Permission denied")}));
    EXPECT_EQ(bench.stepsShown(), Texts{});
    EXPECT_FALSE(bench.isShown("picABack"));
    EXPECT_EQ(bench.texts("lvAStrength"), (Texts{"Ann S1", "Ann S2"}));
}

}  // namespace
}  // namespace orvanta::test
