#include <gtest/gtest.h>

#include "analysis_bench.h"
#include "saving_bench.h"
#include "sessionfiles/saving.h"

namespace orvanta::test {
namespace {

class SavePrompt : public testing::TestWithParam<SavedSession>, protected BegunSession {
protected:
    SavePrompt() : BegunSession(GetParam()) { bench.disk.files[session.temporaryFile] = "copy"; }

    /// True if the caller may go on.
    bool prompt() { return run(session.prompt); }
};
INSTANTIATE_TEST_SUITE_P(Of, SavePrompt, testing::ValuesIn(savedSessions()), NameOfParameter{});

TEST_P(SavePrompt, AsksNothingAboutASessionWithoutChangesButTakesItsCopyAway) {
    bench.form().*session.changed = false;
    EXPECT_TRUE(prompt());
    EXPECT_EQ(bench.events(), Json::array());
    EXPECT_FALSE(hasCopy());
}

TEST_P(SavePrompt, LeavesTheOtherSessionAlone) {
    const SavedSession& other = savedSessions()[session.name == "Brainstorm" ? 1 : 0];
    bench.form().*session.changed = false;
    bench.form().*other.changed = true;
    bench.disk.files[other.temporaryFile] = "copy";
    EXPECT_TRUE(prompt());
    EXPECT_TRUE(bench.form().*other.changed);
    EXPECT_TRUE(bench.disk.files.contains(other.temporaryFile));
}

TEST_P(SavePrompt, AsksInABoxWithoutATitleOfItsOwn) {
    prompt();
    EXPECT_EQ(bench.events(), Json::array({savePrompt(session, "cancel")}));
}

TEST_P(SavePrompt, StopsTheCallerOnCancelAndChangesNothing) {
    const Texts records = bench.undoRecords();
    bench.answerMessage("cancel");
    EXPECT_FALSE(prompt());
    EXPECT_TRUE(isChanged());
    EXPECT_TRUE(hasCopy());
    EXPECT_EQ(bench.undoRecords(), records);
}

TEST_P(SavePrompt, GoesOnWithoutASaveOnNo) {
    const Texts records = bench.undoRecords();
    bench.answerMessage("no");
    EXPECT_TRUE(prompt());
    EXPECT_EQ(bench.events(), Json::array({savePrompt(session, "no")}));
    EXPECT_FALSE(isChanged());
    EXPECT_FALSE(hasCopy());
    EXPECT_EQ(bench.undoRecords(), records);
}

TEST_P(SavePrompt, GivenUpASessionIsUnsavedAndCopiedAgainWhereTheProgramGoesOn) {
    const auto before = unsavedSessions(bench.form());
    bench.answerMessage("no");
    prompt();
    stayWithSessions(bench.program(), before);
    EXPECT_TRUE(isChanged());
    EXPECT_EQ(bench.disk.files[session.temporaryFile], session.copy());
}

TEST_P(SavePrompt, LeavesASessionWithoutChangesWithoutThemWhereTheProgramGoesOn) {
    bench.form().*session.changed = false;
    stayWithSessions(bench.program(), unsavedSessions(bench.form()));
    EXPECT_FALSE(isChanged());
}

TEST_P(SavePrompt, SavesOnYesAndGoesOn) {
    bench.answerMessage("yes");
    bench.answerFile("docs/team.x");
    EXPECT_TRUE(prompt());
    EXPECT_EQ(bench.messages(), (Texts{session.question, session.doneMessage}));
    EXPECT_EQ(bench.disk.files["docs/team.x"], session.saved);
    EXPECT_FALSE(isChanged());
    EXPECT_FALSE(hasCopy());
}

TEST_P(SavePrompt, StopsTheCallerWhenTheSaveDialogOfAYesIsCancelled) {
    bench.answerMessage("yes");
    EXPECT_FALSE(prompt());
    EXPECT_TRUE(isChanged());
    EXPECT_TRUE(hasCopy());
}

TEST_P(SavePrompt, StopsTheCallerWhenTheSaveOfAYesMayNotOverwrite) {
    bench.disk.files["docs/team.x"] = "former";
    bench.answerMessage("yes");
    bench.answerFile("docs/team.x");
    bench.answerMessage("no");
    EXPECT_FALSE(prompt());
    EXPECT_EQ(bench.disk.files["docs/team.x"], "former");
    EXPECT_TRUE(isChanged());
    EXPECT_TRUE(hasCopy());
}

TEST_P(SavePrompt, PassesOverACopyThatCanNotBeDeleted) {
    bench.disk.unwritable.emplace(session.temporaryFile, ErrorNumber::PermissionDenied);
    bench.answerMessage("no");
    EXPECT_TRUE(prompt());
    EXPECT_EQ(bench.messages(), Texts{session.question});
    EXPECT_FALSE(isChanged());
}

/// Something that a person does and that may lose unsaved work.
struct Asker {
    std::string name;
    std::string opener;  // the button that leads to it; empty where it is always there
    Json line;
    std::vector<std::size_t> asksAbout;  // indices of the sessions, in order
};

std::ostream& operator<<(std::ostream& out, const Asker& asker) { return out << asker.name; }

Json pressing(const std::string& button) { return {{"do", "click"}, {"button", button}}; }

class Leaving : public testing::TestWithParam<Asker> {
protected:
    Leaving() {
        bench.start();
        if (!GetParam().opener.empty()) bench.click(GetParam().opener);
        bench.form().editFlag = bench.form().editAFlag = true;
    }

    /// The questions about unsaved changes that come up.
    Texts leave(const Texts& answers) {
        for (const std::string& answer : answers) bench.answerMessage(answer);
        bench.events();
        bench.play(GetParam().line);
        return bench.messages();
    }

    /// All the questions that this asks when none is cancelled.
    Texts questions() const {
        Texts result;
        for (const std::size_t index : GetParam().asksAbout)
            result.push_back(savedSessions()[index].question);
        return result;
    }

    Bench bench;
};

INSTANTIATE_TEST_SUITE_P(
    By, Leaving,
    testing::Values(Asker{"OpeningBrainstorm", "", pressing("Brainstorm"), {0, 1}},
                    Asker{"OpeningAnalyze", "", pressing("Analyze"), {0, 1}},
                    Asker{"OpeningAFile", "Brainstorm", pressing("BOpen"), {0, 1}},
                    Asker{"Quitting", "", pressing("Quit"), {0, 1}},
                    Asker{"ClosingTheWindow", "", {{"do", "close"}}, {0, 1}},
                    Asker{"QuittingBrainstorm", "Brainstorm", pressing("BQuit"), {0}},
                    Asker{"QuittingAnalyze", "Analyze", pressing("AQuit"), {1}}),
    NameOfParameter{});

TEST_P(Leaving, AsksAboutEachSessionInOrder) { EXPECT_EQ(leave({"no", "no"}), questions()); }

TEST_P(Leaving, AsksNoFurtherAfterACancel) {
    EXPECT_EQ(leave({"cancel", "no"}), Texts{questions().front()});
    EXPECT_TRUE(bench.form().editFlag);
    EXPECT_TRUE(bench.form().editAFlag);
}

TEST(StayWithSessions, LeavesASavedBrainstormSaved) {
    BegunSession begun(savedSessions().front());
    const auto before = unsavedSessions(begun.bench.form());
    begun.bench.answerMessage("yes");
    begun.bench.answerFile("docs/team.bsm");
    ASSERT_TRUE(begun.run(begun.session.prompt));
    stayWithSessions(begun.bench.program(), before);
    EXPECT_FALSE(begun.isChanged());
    EXPECT_FALSE(begun.hasCopy());
}

TEST_P(Leaving, AsksNothingWhereNothingChanged) {
    bench.form().editFlag = bench.form().editAFlag = false;
    EXPECT_EQ(leave({}), Texts{});
}

TEST_P(Leaving, TakesTheCopiesAwayOfWhatItAsksAbout) {
    for (const SavedSession& session : savedSessions())
        bench.disk.files[session.temporaryFile] = "copy";
    leave({"no", "no"});
    std::size_t left = 0;
    for (const SavedSession& session : savedSessions())
        left += bench.disk.files.count(session.temporaryFile);
    EXPECT_EQ(left, savedSessions().size() - GetParam().asksAbout.size());
}

TEST_P(Leaving, StaysWhereItIsWhenASaveMayNotOverwrite) {
    bench.disk.files["docs/team.x"] = "former";
    const auto panelsShown = [&] {
        return std::vector{bench.form().fraBrainstorm.isVisible(),
                           bench.form().fraAnalyze.isVisible()};
    };
    const auto before = panelsShown();
    bench.answerFile("docs/team.x");
    leave({"yes", "no"});
    EXPECT_EQ(panelsShown(), before);
    EXPECT_TRUE(bench.form().*savedSessions()[GetParam().asksAbout.front()].changed);
    EXPECT_EQ(bench.disk.files["docs/team.x"], "former");
}

}  // namespace
}  // namespace orvanta::test
