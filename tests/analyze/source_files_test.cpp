#include "analyze/source_files.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

Json openDialog(const std::string& initialPath, const Json& answer) {
    return {{"event", "fileDialog"},
            {"mode", "open"},
            {"filter", "All Brainstorming Files (*.bsm)|*.bsm"},
            {"initialPath", initialPath},
            {"fileName", ""},
            {"answer", answer}};
}

/// An open Analyze module with nothing listed.
class SourceFiles : public testing::Test {
protected:
    SourceFiles() {
        bench.start();
        bench.openAnalyze();
        bench.events();
    }
    void add(const std::string& path) {
        bench.answerFile(path);
        bench.click("AFAdd");
    }
    void addStrengths(const std::string& path, const std::string& name, const Texts& strengths) {
        bench.addSource(path, name, strengths, {}, {}, {});
    }
    std::string toolTip(const std::string& list, int row) {
        bench.play({{"do", "hover"}, {"list", list}, {"row", row}});
        return bench.list(list).toolTip();
    }
    /// What was said and stored since it was last asked.
    Json told() {
        Json told = Json::array();
        for (const Json& event : bench.events())
            if (event["event"] == "message" || event["event"] == "setting") told.push_back(event);
        return told;
    }
    const Texts& listed() { return bench.form().lstFiles.items(); }
    Bench bench;
};

TEST_F(SourceFiles, AreAddedAtTheEndAndTheLastPathIsRemembered) {
    bench.disk.files["docs/b.bsm"] = bench.disk.files["docs/a.bsm"] = "";
    add("docs/b.bsm");
    bench.events();
    add("docs/a.bsm");
    Json seen = bench.events();
    seen.erase(seen.begin(), seen.begin() + 2);  // the button's art
    EXPECT_EQ(seen, Json::array({openDialog("docs/b.bsm", "docs/a.bsm"),
                                 setting("LastSavedPathBSM", "docs/a.bsm")}));
    EXPECT_EQ(listed(), (Texts{"docs/b.bsm", "docs/a.bsm"}));
    EXPECT_EQ(bench.form().lastPathBSM, "docs/a.bsm");
}

TEST_F(SourceFiles, StayAsTheyAreWhenTheDialogIsCancelled) {
    bench.click("AFAdd");
    EXPECT_EQ(bench.events("message"), Json::array());
    EXPECT_EQ(listed(), Texts{});
}

TEST_F(SourceFiles, IgnoreAChosenFileThatIsNotThere) {
    add("docs/gone.bsm");
    for (const Json& event : bench.events()) {
        EXPECT_NE(event["event"], "message");
        EXPECT_NE(event["event"], "setting");
    }
    EXPECT_EQ(listed(), Texts{});
    EXPECT_EQ(bench.form().lastPathBSM, systemPath("docs/My SWOT"));
}

TEST_F(SourceFiles, RefuseTheSamePathTwiceButRememberIt) {
    bench.disk.files["docs/a.bsm"] = bench.disk.files["docs/b.bsm"] = "";
    add("docs/a.bsm");
    add("docs/b.bsm");
    bench.events();
    add("docs/a.bsm");
    EXPECT_EQ(bench.events("message"), Json::array({refusal("File already added.")}));
    EXPECT_EQ(listed(), (Texts{"docs/a.bsm", "docs/b.bsm"}));
    EXPECT_EQ(bench.form().lastPathBSM, "docs/a.bsm");
}

/// Gives these paths at once, and one by one what it is asked for alone.
class SeveralFiles : public FileDialogs {
public:
    explicit SeveralFiles(Texts paths) : m_paths(std::move(paths)) {}
    std::optional<std::string> choose(const FileDialogRequest& request) override {
        requests.push_back(request);
        return m_paths.at(m_next++);
    }
    std::vector<std::string> chooseSeveral(const FileDialogRequest& request) override {
        requests.push_back(request);
        return m_paths;
    }
    std::vector<FileDialogRequest> requests;

private:
    Texts m_paths;
    std::size_t m_next = 0;
};

TEST_F(SourceFiles, ChosenTogetherAreAddedAsIfEachHadBeenChosenAlone) {
    const Texts chosen{"docs/b.bsm", "docs/gone.bsm", "docs/a.bsm", "docs/b.bsm", "docs/c.bsm"};
    for (const char* path : {"docs/a.bsm", "docs/b.bsm", "docs/c.bsm"}) bench.disk.files[path] = "";
    for (const std::string& path : chosen) add(path);
    bench.play({{"do", "state"}});
    const Json alone = told();
    const FileDialog& cd = bench.form().cd;
    const Texts left{cd.filter, cd.initialPath, cd.fileName};
    const Texts listedAlone = listed();

    SeveralFiles dialogs(chosen);
    const Platform& world = bench.program().platform;
    Platform platform{world.disk,           world.messages,   dialogs,
                      world.settings,       world.shell,      world.player,
                      world.screen,         world.modalForms, world.questionPrinter,
                      world.wordProcessors, world.lifetime,   world.folders};
    Program program(platform, "app", "app");
    addAnalyzeSourceFiles(program);
    EXPECT_EQ(dialogs.requests.size(), 1u);
    EXPECT_EQ(program.frmMain.lstFiles.items(), listedAlone);
    EXPECT_EQ(listedAlone, (Texts{"docs/b.bsm", "docs/a.bsm", "docs/c.bsm"}));
    EXPECT_EQ((Texts{program.frmMain.cd.filter, program.frmMain.cd.initialPath,
                     program.frmMain.cd.fileName}),
              left);
    EXPECT_EQ(program.frmMain.lastPathBSM, "docs/c.bsm");
    bench.play({{"do", "state"}});
    EXPECT_EQ(told(), alone);
}

TEST_F(SourceFiles, TakeAPathInAnotherLetterCaseAsASecondEntryWithItsStatementsTwice) {
    addStrengths("docs/a.bsm", "Ann", {"Brand"});
    addStrengths("docs/A.bsm", "Ann", {"Brand"});
    bench.click("ANext");
    EXPECT_EQ(listed(), (Texts{"docs/a.bsm", "docs/A.bsm"}));
    EXPECT_EQ(bench.rows("lvAStrength"), (ShownRows{{"S1", "Brand"}, {"S2", "Brand"}}));
}

TEST_F(SourceFiles, LoseTheSelectedEntryOnRemove) {
    bench.disk.files["docs/a.bsm"] = bench.disk.files["docs/b.bsm"] = "";
    add("docs/a.bsm");
    add("docs/b.bsm");
    bench.select("lstFiles", 0);
    bench.events();
    bench.click("AFRemove");
    EXPECT_EQ(bench.events("message"), Json::array());
    EXPECT_EQ(listed(), Texts{"docs/b.bsm"});
}

TEST_F(SourceFiles, StayAsTheyAreOnRemoveWithNothingSelected) {
    bench.disk.files["docs/a.bsm"] = "";
    add("docs/a.bsm");
    bench.click("AFRemove");
    EXPECT_EQ(listed(), Texts{"docs/a.bsm"});
    EXPECT_EQ(bench.messages(), Texts{});
}

TEST_F(SourceFiles, GiveTwoRowsWithTheirOwnLabelsForTheSameTextOfTwoPeople) {
    addStrengths("docs/a.bsm", "  Ann ", {"Brand"});
    addStrengths("docs/b.bsm", "Bo", {"Brand"});
    bench.click("ANext");
    EXPECT_EQ(bench.rows("lvAStrength"), (ShownRows{{"S1", "Brand"}, {"S2", "Brand"}}));
    EXPECT_EQ(toolTip("lvAStrength", 1), "[Ann]: Brand");
    EXPECT_EQ(toolTip("lvAStrength", 2), "[Bo]: Brand");
}

TEST_F(SourceFiles, AreReadPastAMissingOneWithoutAWord) {
    addStrengths("docs/a.bsm", "Ann", {"First"});
    addStrengths("docs/b.bsm", "Bo", {"Second"});
    addStrengths("docs/c.bsm", "Cy", {"Third"});
    bench.disk.files.erase("docs/b.bsm");
    bench.click("ANext");
    EXPECT_EQ(bench.messages(), Texts{});
    EXPECT_EQ(bench.rows("lvAStrength"), (ShownRows{{"S1", "First"}, {"S2", "Third"}}));
    EXPECT_EQ(listed().size(), 3u);
    EXPECT_TRUE(bench.form().fraASSummary.isVisible());
}

TEST_F(SourceFiles, WithoutOpportunitiesLeaveTheirListsEmptyAndTheWizardMovesOn) {
    addStrengths("docs/a.bsm", "Ann", {"Brand"});
    bench.click("ANext");
    EXPECT_EQ(bench.rows("lvAOpportunity"), ShownRows{});
    EXPECT_EQ(bench.rows("lvOpportunity"), ShownRows{});
    EXPECT_TRUE(bench.form().fraASSummary.isVisible());
}

TEST_F(SourceFiles, HandOverTheAnalysisThatTheyReplaceIfItWasChanged) {
    struct : FailedSaves {
        Texts replaced;
        void sessionNotWritten(const std::string&, std::string_view) override {}
        void copyNotWritten(const std::string&, std::string_view) override {}
        void analysisReplaced(std::string_view bytes) override { replaced.emplace_back(bytes); }
        void documentNotWritten(const std::string&) override {}
    } told;
    bench.program().platform.failedSaves = &told;
    addStrengths("docs/a.bsm", "Ann", {"Brand"});
    bench.click("ANext");
    bench.click("ABack");
    bench.click("ANext");
    EXPECT_EQ(told.replaced, Texts{});
    bench.enter("txtAStrength", {"Own fleet"});
    bench.click("ABack");
    bench.click("ANext");
    ASSERT_EQ(told.replaced.size(), 1U);
    EXPECT_NE(told.replaced[0].find("Own fleet"), std::string::npos);
    bench.program().platform.failedSaves = nullptr;
}

TEST_F(SourceFiles, ThatAreAllMissingEmptyTheListAndTheSession) {
    addStrengths("docs/a.bsm", "Ann", {"Brand"});
    bench.click("ANext");
    bench.click("ABack");
    bench.disk.files.erase("docs/a.bsm");
    bench.events();
    bench.click("ANext");
    EXPECT_EQ(bench.events("message"),
              Json::array({refusal("Brainstorming files does not exists.")}));
    EXPECT_EQ(listed(), Texts{});
    EXPECT_EQ(bench.rows("lvAStrength"), ShownRows{});
    EXPECT_FALSE(bench.form().fraASSummary.isVisible());
}

TEST_F(SourceFiles, ThatAreNoneRefuseNextAndKeepSessionAndHiddenBack) {
    addStrengths("docs/a.bsm", "Ann", {"Brand"});
    bench.click("ANext");
    bench.form().editAFlag = true;
    bench.click("ABack");
    bench.select("lstFiles", 0);
    bench.click("AFRemove");
    bench.events();
    bench.click("ANext");
    EXPECT_EQ(bench.events("message"),
              Json::array({refusal("No brainstorm files opened for analyze.")}));
    EXPECT_EQ(bench.rows("lvAStrength"), (ShownRows{{"S1", "Brand"}}));
    EXPECT_TRUE(bench.form().editAFlag);
    EXPECT_FALSE(bench.form().picABack.isVisible());
    EXPECT_FALSE(bench.form().fraASSummary.isVisible());
}

TEST_F(SourceFiles, LeaveNameAndModuleOfTheLastOne) {
    bench.disk.files["docs/a.bsm"] = brainstormFile("Ann", "GBS", {}, {}, {}, {});
    bench.disk.files["docs/b.bsm"] = brainstormFile(" Bo ", "MP", {}, {}, {}, {});
    add("docs/a.bsm");
    add("docs/b.bsm");
    bench.click("ANext");
    EXPECT_EQ(bench.form().txtName.text(), " Bo ");
    EXPECT_TRUE(bench.form().optMP.isOn());
}

TEST_F(SourceFiles, AreUnescapedInAllKindsButThreats) {
    bench.addSource("docs/a.bsm", "Ann", {"a &lt; b"}, {"a &lt; b"}, {"a &lt; b"}, {"a &lt; b"});
    bench.click("ANext");
    EXPECT_EQ(bench.texts("lvAStrength"), Texts{"a < b"});
    EXPECT_EQ(bench.texts("lvAWeakness"), Texts{"a < b"});
    EXPECT_EQ(bench.texts("lvAOpportunity"), Texts{"a < b"});
    EXPECT_EQ(bench.texts("lvAThreat"), Texts{"a &lt; b"});
}

TEST_F(SourceFiles, GiveNoLabelToRowsAheadOfTheName) {
    addStrengths("docs/a.bsm", "Ann", {"Named"});
    bench.disk.files["docs/b.bsm"] =
        lines({"<STRENGTH>", "Unnamed", "</STRENGTH>", "<NAME>", "Bo", "</NAME>"});
    add("docs/b.bsm");
    bench.click("ANext");
    EXPECT_EQ(bench.list("lvAStrength").row(2).subItem, "");
}

TEST_F(SourceFiles, ThatAreNoBrainstormFilesBringNothing) {
    bench.disk.files["docs/a.bsm"] = "a shopping list\r\n";
    add("docs/a.bsm");
    bench.click("ANext");
    EXPECT_EQ(bench.rows("lvAStrength"), ShownRows{});
    EXPECT_TRUE(bench.form().fraASSummary.isVisible());
}

class Consolidation : public testing::TestWithParam<ReviewedKind> {
protected:
    const ReviewedKind& kind = GetParam();
    AnalysisBench bench;
};
INSTANTIATE_TEST_SUITE_P(Of, Consolidation, testing::ValuesIn(reviewedKinds()), NameOfParameter());

TEST_P(Consolidation, ListsTheStatementsFileByFileUnderRunningKeys) {
    bench.next(1);
    EXPECT_EQ(bench.rows(kind.list), (ShownRows{{kind.key(1), "Ann " + kind.key(1)},
                                                {kind.key(2), "Ann " + kind.key(2)},
                                                {kind.key(3), "Bo " + kind.key(1)}}));
}

TEST_P(Consolidation, MarksEachRowWithItsPictureAndWhoSaidIt) {
    bench.next(1);
    EXPECT_EQ(bench.row(kind.list, 2).subItem, "[Ann]: ");
    EXPECT_EQ(bench.row(kind.list, 3).subItem, "[Bo]: ");
    EXPECT_EQ(bench.row(kind.list, 3).image, kind.image);
    EXPECT_EQ(bench.row(kind.list, 3).largeImage, kind.image);
}

TEST_P(Consolidation, CopiesEachRowWholeToTheMappingScreens) {
    bench.next(1);
    for (const std::string& copy : kind.companions) {
        EXPECT_EQ(bench.rows(copy), bench.rows(kind.list)) << copy;
        EXPECT_EQ(bench.row(copy, 3).subItem, "[Bo]: ") << copy;
        EXPECT_EQ(bench.row(copy, 3).image, kind.image) << copy;
        EXPECT_EQ(bench.row(copy, 3).indent, 0) << copy;
        EXPECT_FALSE(bench.row(copy, 3).colour) << copy;
    }
}

TEST_P(Consolidation, DropsEveryEditMappingAndKeyOnASecondRun) {
    bench.goTo(kind);
    bench.enter(kind.box, {"Late"});
    bench.next(5 - kind.presses);
    bench.map("lvStrengthOp", 1, "lvOpportunity", 1);
    bench.next(1);
    bench.map("lvWeaknessTh", 1, "lvThreat", 1);
    for (int i = 0; i < 6; ++i) bench.click("ABack");
    bench.next(1);
    const Texts keys{kind.key(1), kind.key(2), kind.key(3)};
    EXPECT_EQ(bench.keys(kind.list), keys);
    for (const std::string& copy : kind.companions) EXPECT_EQ(bench.keys(copy), keys) << copy;
    EXPECT_FALSE(bench.form().editAFlag);
}

TEST_P(Consolidation, GivesFileOrderBackOnASecondRun) {
    bench.goTo(kind);
    bench.drag(kind.list, 1, kind.list, 3);
    for (int i = 0; i < kind.presses; ++i) bench.click("ABack");
    bench.next(1);
    EXPECT_EQ(bench.keys(kind.list), (Texts{kind.key(1), kind.key(2), kind.key(3)}));
}

}  // namespace
}  // namespace orvanta::test
