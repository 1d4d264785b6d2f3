#include "view/file_dialog.h"

#include <gtest/gtest.h>

#include <deque>

#include "failure_of.h"

namespace orvanta::test {
namespace {

/// Answers each call with the next of these paths; none cancels.
class PreparedDialogs : public FileDialogs {
public:
    std::optional<std::string> choose(const FileDialogRequest& request) override {
        requests.push_back(request);
        auto path = answers.front();
        answers.pop_front();
        return path;
    }
    std::deque<std::optional<std::string>> answers;
    std::vector<FileDialogRequest> requests;
};

const std::string brainstormFiles = "All Brainstorming Files (*.bsm)|*.bsm";

class FileDialogTest : public testing::Test {
protected:
    FileDialogTest() {
        dialog.filter = brainstormFiles;
        dialog.initialPath = "docs";
        dialog.fileName = "before";
    }
    std::string open() { return dialog.askToOpen("All Analyze Files (*.aze)|*.aze", "work"); }
    PreparedDialogs dialogs;
    FileDialog dialog{dialogs};
};

TEST_F(FileDialogTest, StartsFromWhatItIsGivenAndAnEmptyName) {
    dialogs.answers = {"docs/a.bsm"};
    open();
    ASSERT_EQ(dialogs.requests.size(), 1u);
    EXPECT_EQ(dialogs.requests[0].mode, FileDialogMode::Open);
    EXPECT_EQ(dialogs.requests[0].filter, "All Analyze Files (*.aze)|*.aze");
    EXPECT_EQ(dialogs.requests[0].initialPath, "work");
    EXPECT_EQ(dialogs.requests[0].fileName, "");
}

TEST_F(FileDialogTest, StartsFromTheLastUseWhereItIsGivenNothing) {
    dialogs.answers = {"docs/a.bsm"};
    dialog.askToSave();
    ASSERT_EQ(dialogs.requests.size(), 1u);
    EXPECT_EQ(dialogs.requests[0].filter, brainstormFiles);
    EXPECT_EQ(dialogs.requests[0].initialPath, "docs");
    EXPECT_EQ(dialogs.requests[0].fileName, "");
}

TEST_F(FileDialogTest, PutsTheChosenPathInTheFileNameAndKeepsTheRest) {
    dialogs.answers = {"docs/a.bsm"};
    EXPECT_EQ(dialog.askToSave(), "docs/a.bsm");
    EXPECT_EQ(dialog.fileName, "docs/a.bsm");
    EXPECT_EQ(dialog.filter, brainstormFiles);
    EXPECT_EQ(dialog.initialPath, "docs");
}

TEST_F(FileDialogTest, FailsOnCancelAndHoldsNoFileName) {
    dialogs.answers = {std::nullopt, std::nullopt};
    EXPECT_EQ(failureOf([&] { open(); }), 32755);
    EXPECT_EQ(failureOf([&] { dialog.askToSave(); }), 32755);
    EXPECT_EQ(dialog.fileName, "");
}

TEST_F(FileDialogTest, TakesAPathToOpenAsItIs) {
    dialogs.answers = {"docs/team"};
    EXPECT_EQ(open(), "docs/team");
}

TEST_F(FileDialogTest, AddsTheEndingToAPathToSave) {
    dialogs.answers = {"docs/team"};
    dialog.askToSave();
    EXPECT_EQ(dialogs.requests[0].mode, FileDialogMode::Save);
    EXPECT_EQ(dialog.fileName, "docs/team.bsm");
}

struct Ending {
    std::string chosen, filter, saved;
};
std::ostream& operator<<(std::ostream& out, const Ending& ending) { return out << ending.chosen; }

class FilterEnding : public testing::TestWithParam<Ending> {};
INSTANTIATE_TEST_SUITE_P(
    Of, FilterEnding,
    testing::Values(Ending{"team", brainstormFiles, "team.bsm"},
                    Ending{"docs/team", "All Analyze Files (*.aze)|*.aze", "docs/team.aze"},
                    Ending{"docs/team.bsm", brainstormFiles, "docs/team.bsm"},
                    Ending{"docs/team.txt", brainstormFiles, "docs/team.txt"},
                    Ending{"docs/team.", brainstormFiles, "docs/team."},
                    Ending{"docs/v1.0/team", brainstormFiles, "docs/v1.0/team.bsm"},
                    Ending{"docs/", brainstormFiles, "docs/"}, Ending{"", brainstormFiles, ""},
                    Ending{"docs/team", "", "docs/team"}));

TEST_P(FilterEnding, GoesBehindANameWithoutAPointAlone) {
    EXPECT_EQ(withFilterEnding(GetParam().chosen, GetParam().filter), GetParam().saved);
}

}  // namespace
}  // namespace orvanta::test
