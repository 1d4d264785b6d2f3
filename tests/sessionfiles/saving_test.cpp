#include "sessionfiles/saving.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"
#include "saving_bench.h"

namespace orvanta::test {
namespace {

class SaveByName : public testing::TestWithParam<SavedSession>, protected BegunSession {
protected:
    SaveByName() : BegunSession(GetParam()) {
        bench.disk.files[session.temporaryFile] = "copy";
        lastPath = "docs/My SWOT";
    }

    bool save() { return run(session.save); }

    std::string& lastPath = bench.form().*session.lastPath;
    std::map<std::string, std::string>& files = bench.disk.files;
};
INSTANTIATE_TEST_SUITE_P(Of, SaveByName, testing::ValuesIn(savedSessions()), NameOfParameter{});

TEST_P(SaveByName, AsksForAPlaceWithAnEmptyNameFromTheLastPath) {
    lastPath = "docs/elsewhere";
    bench.form().cd.fileName = "docs/something.else";
    EXPECT_FALSE(save());
    EXPECT_EQ(bench.events(),
              Json::array({fileDialog("save", session.filter, "docs/elsewhere", nullptr)}));
}

TEST_P(SaveByName, StartsTheNextDialogFromTheWholeNameOfTheChosenFile) {
    bench.answerFile("docs/team.x");
    save();
    bench.events();
    save();
    EXPECT_EQ(bench.events(),
              Json::array({fileDialog("save", session.filter, "docs/team.x", nullptr)}));
}

TEST_P(SaveByName, RemembersThePathThenWritesThenTellsThatTheSessionIsDone) {
    bench.answerFile("docs/team.x");
    EXPECT_TRUE(save());
    EXPECT_EQ(bench.events(),
              Json::array({fileDialog("save", session.filter, "docs/My SWOT", "docs/team.x"),
                           setting(session.settingKey, "docs/team.x"),
                           information(session.doneMessage)}));
    EXPECT_EQ(lastPath, "docs/team.x");
}

TEST_P(SaveByName, WritesTheSessionWithoutItsStep) {
    bench.answerFile("docs/team.x");
    save();
    EXPECT_EQ(files["docs/team.x"], session.saved);
}

TEST_P(SaveByName, EndsTheSessionAndTakesItsCopyAway) {
    bench.answerFile("docs/team.x");
    save();
    EXPECT_FALSE(isChanged());
    EXPECT_FALSE(hasCopy());
    EXPECT_EQ(bench.undoRecords(), Texts{});
}

/// A message box behind which the timer of the autosave ticks.
class TickingBox : public MessageBoxes {
public:
    explicit TickingBox(MessageBoxes& behind) : m_behind(behind) {}
    MessageAnswer show(const Message& message) override {
        if (program) tickAutoSave(*program);
        return m_behind.show(message);
    }
    Program* program = nullptr;

private:
    MessageBoxes& m_behind;
};

TEST_P(SaveByName, LeavesNoCopyThatATickMakesBehindTheLastBox) {
    const Platform& world = bench.program().platform;
    TickingBox box(world.messages);
    Platform platform{world.disk,
                      box,
                      world.fileDialogs,
                      world.settings,
                      world.shell,
                      world.player,
                      world.screen,
                      world.modalForms,
                      world.questionPrinter,
                      world.wordProcessors,
                      world.lifetime,
                      world.folders};
    Program program(platform, "app", "app");
    box.program = &program;
    program.frmMain.*session.changed = true;
    program.frmMain.fraBrainstorm.show();
    program.frmMain.fraAnalyze.show();
    bench.answerFile("docs/team.x");
    EXPECT_TRUE(session.save(program));
    EXPECT_FALSE(hasCopy());
}

TEST_P(SaveByName, HidesTheBrainstormPanelAndLeavesTheAnalyzePanelToItsWizard) {
    bench.form().fraBrainstorm.show();
    bench.form().fraAnalyze.show();
    bench.answerFile("docs/team.x");
    save();
    EXPECT_FALSE(bench.form().fraBrainstorm.isVisible());
    EXPECT_TRUE(bench.form().fraAnalyze.isVisible());
}

TEST_P(SaveByName, ChangesNothingWhenTheDialogIsCancelled) {
    const auto former = files;
    const Texts records = bench.undoRecords();
    EXPECT_FALSE(save());
    EXPECT_EQ(files, former);
    EXPECT_TRUE(isChanged());
    EXPECT_EQ(lastPath, "docs/My SWOT");
    EXPECT_EQ(bench.undoRecords(), records);
    EXPECT_TRUE(bench.control(session.panel).isVisible());
}

TEST_P(SaveByName, AsksBeforeAFileIsOverwrittenAndTakesNoForAnAnswer) {
    files["docs/team.x"] = "former";
    const auto former = files;
    bench.answerFile("docs/team.x");
    bench.answerMessage("no");
    EXPECT_FALSE(save());
    EXPECT_EQ(bench.events(),
              Json::array({fileDialog("save", session.filter, "docs/My SWOT", "docs/team.x"),
                           overwriteQuestion("no", "Orvanta")}));
    EXPECT_EQ(files, former);
    EXPECT_EQ(lastPath, "docs/My SWOT");
    EXPECT_TRUE(isChanged());
}

TEST_P(SaveByName, OverwritesAFileOnYes) {
    files["docs/team.x"] = "former";
    bench.answerFile("docs/team.x");
    bench.answerMessage("yes");
    EXPECT_TRUE(save());
    EXPECT_EQ(files["docs/team.x"], session.saved);
}

// A failing write is not told: the session counts as saved. The former file must stand, though.
TEST_P(SaveByName, GoesOnAsIfSavedWhereTheFileCanNotBeWritten) {
    files["docs/team.x"] = "former";
    bench.disk.unwritable.emplace("docs/team.x", ErrorNumber::PermissionDenied);
    bench.answerFile("docs/team.x");
    bench.answerMessage("yes");
    EXPECT_TRUE(save());
    EXPECT_EQ(bench.messages(), (Texts{"Do you want to overwrite the file?", session.doneMessage}));
    EXPECT_EQ(files["docs/team.x"], "former");
    EXPECT_FALSE(isChanged());
    EXPECT_FALSE(hasCopy());
}

TEST_P(SaveByName, IsNotAskedAboutAFolderInThePlaceOfTheFile) {
    bench.answerFile("docs/My SWOT");
    EXPECT_TRUE(save());
    EXPECT_EQ(bench.messages(), Texts{session.doneMessage});
}

TEST_P(SaveByName, PassesOverACopyThatCanNotBeDeleted) {
    bench.disk.unwritable.emplace(session.temporaryFile, ErrorNumber::PermissionDenied);
    bench.answerFile("docs/team.x");
    EXPECT_TRUE(save());
    EXPECT_EQ(bench.messages(), Texts{session.doneMessage});
    EXPECT_FALSE(isChanged());
    EXPECT_TRUE(hasCopy());
}

/// A brainstorm session with unsaved changes, left on the choice of the module, where Open is.
class OpenBrainstormFile : public testing::Test, protected BegunSession {
protected:
    OpenBrainstormFile() : BegunSession(savedSessions().front()) {
        bench.disk.files["docs/lee.bsm"] =
            brainstormFile("Lee Park", "MP", {"Strong brand"}, {"Slow"}, {}, {});
        bench.form().lastPathBSM = "docs/My SWOT";
        bench.click("BBack");
        bench.events();
    }

    /// What happens on Open, without the pictures of the button and the sound.
    Json open() {
        bench.click("BOpen");
        Json rest = Json::array();
        for (const Json& event : bench.events())
            if (event["event"] != "art" && event["event"] != "narration") rest.push_back(event);
        return rest;
    }

    const SavedSession& analysis = savedSessions().back();
    const std::string& filter = session.filter;
};

TEST_F(OpenBrainstormFile, BringsNameModuleAndStatementsAndCountsAsSaved) {
    bench.answerMessage("no");
    bench.answerFile("docs/lee.bsm");
    EXPECT_EQ(open(),
              Json::array({savePrompt(session, "no"),
                           fileDialog("open", filter, "docs/My SWOT", "docs/lee.bsm"),
                           setting("LastSavedPathBSM", "docs/lee.bsm"), focusOn("txtName")}));
    EXPECT_EQ(bench.form().lastPathBSM, "docs/lee.bsm");
    EXPECT_EQ(bench.form().txtName.text(), "Lee Park");
    EXPECT_TRUE(bench.form().optMP.isOn());
    EXPECT_EQ(bench.rows("lvBStrength"), (ShownRows{{"S1", "Strong brand"}}));
    EXPECT_EQ(bench.rows("lvBWeakness"), (ShownRows{{"W1", "Slow"}}));
    EXPECT_FALSE(isChanged());
    EXPECT_EQ(bench.undoRecords(), Texts{});
}

TEST_F(OpenBrainstormFile, KeepsTheQuestionSetOfTheFile) {
    bench.answerMessage("no");
    bench.answerFile("docs/lee.bsm");
    open();
    for (const char* option : {"optGBS", "optHRP", "optMP", "optPSD", "optSBD"})
        EXPECT_FALSE(bench.control(option).isEnabled()) << option;
}

TEST_F(OpenBrainstormFile, LooksForTheNextFileFromTheWholeNameOfTheLast) {
    bench.answerMessage("no");
    bench.answerFile("docs/lee.bsm");
    open();
    EXPECT_EQ(open(), Json::array({fileDialog("open", filter, "docs/lee.bsm", nullptr)}));
}

TEST_F(OpenBrainstormFile, AsksAboutTheBrainstormSessionAndThenAboutTheAnalysis) {
    bench.form().editAFlag = true;
    bench.answerMessage("no");
    bench.answerMessage("no");
    bench.answerFile("docs/lee.bsm");
    open();
    bench.form().editFlag = bench.form().editAFlag = true;
    bench.answerMessage("no");
    EXPECT_EQ(open(), Json::array({savePrompt(session, "no"), savePrompt(analysis, "cancel")}));
}

TEST_F(OpenBrainstormFile, StopsAtTheFirstCancel) {
    bench.form().editAFlag = true;
    EXPECT_EQ(open(), Json::array({savePrompt(session, "cancel")}));
    EXPECT_TRUE(bench.form().editFlag);
    EXPECT_TRUE(bench.form().editAFlag);
}

TEST_F(OpenBrainstormFile, DoesNotGiveTheFirstFlagBackWhenTheSecondQuestionIsCancelled) {
    bench.form().editAFlag = true;
    bench.answerMessage("no");
    open();
    EXPECT_FALSE(bench.form().editFlag);
    EXPECT_TRUE(bench.form().editAFlag);
}

TEST_F(OpenBrainstormFile, GivesBothFlagsBackButNoCopyWhenItsDialogIsCancelled) {
    bench.form().editAFlag = true;
    bench.disk.files["app/brainstorm.tmp"] = bench.disk.files["app/analyze.tmp"] = "copy";
    bench.answerMessage("no");
    bench.answerMessage("no");
    open();
    EXPECT_TRUE(bench.form().editFlag);
    EXPECT_TRUE(bench.form().editAFlag);
    EXPECT_EQ(bench.rows("lvBStrength"), (ShownRows{{"S1", "Own fleet"}}));
    EXPECT_FALSE(bench.disk.files.contains("app/brainstorm.tmp"));
    EXPECT_FALSE(bench.disk.files.contains("app/analyze.tmp"));
}

TEST_F(OpenBrainstormFile, IsCopiedAgainByTheNextTickAfterACancelledDialog) {
    bench.answerMessage("no");
    open();
    bench.play({{"do", "tick"}});
    EXPECT_EQ(bench.disk.files["app/brainstorm.tmp"], "<STEP>\r\n\r\n</STEP>\r\n" + session.saved);
}

TEST_F(OpenBrainstormFile, GivesBothFlagsBackWithoutAWordWhenReadingFails) {
    bench.form().editAFlag = true;
    bench.disk.unreadable.emplace("docs/lee.bsm", ErrorNumber::PermissionDenied);
    bench.answerMessage("no");
    bench.answerMessage("no");
    bench.answerFile("docs/lee.bsm");
    bench.click("BOpen");
    EXPECT_EQ(bench.messages(), (Texts{session.question, analysis.question}));
    EXPECT_TRUE(bench.form().editFlag);
    EXPECT_TRUE(bench.form().editAFlag);
    EXPECT_EQ(bench.rows("lvBStrength"), ShownRows{});
    EXPECT_TRUE(bench.form().optGBS.isEnabled());
    EXPECT_EQ(bench.form().lastPathBSM, "docs/lee.bsm");
}

TEST_F(OpenBrainstormFile, ShowsAnEmptySessionWhereTheChosenFileIsMissing) {
    bench.answerMessage("no");
    bench.answerFile("docs/gone.bsm");
    open();
    EXPECT_EQ(bench.rows("lvBStrength"), ShownRows{});
    EXPECT_EQ(bench.form().txtName.text(), "");
    EXPECT_FALSE(bench.form().optGBS.isEnabled());
    EXPECT_FALSE(bench.form().editFlag);
}

}  // namespace
}  // namespace orvanta::test
