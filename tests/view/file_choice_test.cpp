#include "view/file_choice.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include "ordinary_user.h"
#include "temporary_folder.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

struct Typed {
    std::string claim;
    FileDialogMode mode;
    std::string typed, choice;  // "$" is the folder that holds all
};
std::ostream& operator<<(std::ostream& out, const Typed& typed) {
    return out << typed.claim << ": " << typed.typed;
}

std::string inWords(const FileChoice& choice) {
    switch (choice.act) {
        case FileChoiceAct::EnterFolder:
            return "enter " + choice.path;
        case FileChoiceAct::TakeFile:
            return "take " + choice.path;
        default:
            return std::string(choice.reason) + ' ' + choice.path;
    }
}

std::string replaced(std::string text, const std::string& from, const std::string& to) {
    for (auto at = text.find(from); at != std::string::npos; at = text.find(from, at + to.size()))
        text.replace(at, from.size(), to);
    return text;
}

/// The dialog shows the folder "here", in which and beside which lies one thing of each sort.
class Choice : public testing::TestWithParam<Typed> {
protected:
    Choice() {
        for (const char* name : {"here", "here/Team", "here/blocked.bsm", "here/closed", "home",
                                 "home/anna", "here/\xCE\xB1\xCE\xB2", "locked"})
            fs::create_directory(all / name);
        for (const char* name : {"here/team2.bsm", "here/plain", "here/both", "here/both.bsm",
                                 "here/v1.2.bsm", "here/mine.bsm", "here/hidden.bsm",
                                 "here/Team/kim.bsm", "locked/old.bsm", "home/lee.bsm"})
            makeFile(name, 0666);
        makeFile("here/mine.bsm", 0444);
        makeFile("here/hidden.bsm", 0000);
        makeFile("here/huge.bsm", 0666);
        fs::resize_file(all / "here/huge.bsm", (std::uintmax_t{256} << 20) + 1);
        fs::create_symlink("Team", all / "here/link");
        fs::create_symlink("Team/new.bsm", all / "here/ahead.bsm");
        fs::create_symlink("own.tmp", all / "here/alias.bsm");
        fs::create_directory(all / "here/Copies");
        allow("here/Copies", 0777);
        fs::create_symlink("nowhere/new.bsm", all / "here/astray.bsm");
        fs::create_symlink("round.bsm", all / "here/round.bsm");
        ::mkfifo((all / "here/pipe.bsm").c_str(), 0666);
        for (const char* name : {"here", "here/Team", "home", "home/anna"}) allow(name, 0777);
        allow("here/closed", 0000);
        allow("locked", 0555);
    }
    ~Choice() override {
        allow("here/closed", 0777);
        allow("locked", 0777);
    }

    void makeFile(const std::string& name, mode_t mode) const {
        all.write(name, "x");
        allow(name, mode);
    }
    void allow(const std::string& name, mode_t mode) const { ::chmod((all / name).c_str(), mode); }

    /// What somebody is told whom permissions bind.
    std::string choice(FileDialogMode mode, const std::string& typed) const {
        const FileDialogPlace place{.mode = mode,
                                    .filter = "All Brainstorming Files (*.bsm)|*.bsm",
                                    .folder = all / "here",
                                    .home = all / "home",
                                    .ownNames = {"own.tmp"},
                                    .ownFolder = all / "here/Copies"};
        const TemporaryFolder told;
        asOrdinaryUser([&] {
            told.write("choice", inWords(choiceOf(place, replaced(typed, "$", all.path()))));
            return 0;
        });
        return replaced(told.read("choice"), all.path(), "$");
    }

    TemporaryFolder all;
};

TEST_P(Choice, IsWhatThePersonMeant) {
    EXPECT_EQ(choice(GetParam().mode, GetParam().typed), GetParam().choice);
}

constexpr auto save = FileDialogMode::Save, open = FileDialogMode::Open;

std::string called(const testing::TestParamInfo<Typed>& info) {
    return (info.param.mode == save ? "Saving" : "Opening") + info.param.claim;
}

const std::string longName(260, 'n');

INSTANTIATE_TEST_SUITE_P(
    OfAFolder, Choice,
    testing::Values(Typed{"IntoATypedFolderEntersIt", save, "Team", "enter $/here/Team"},
                    Typed{"FromATypedFolderEntersIt", open, "Team", "enter $/here/Team"},
                    Typed{"IntoAFolderWithASlashEntersIt", save, "Team/", "enter $/here/Team"},
                    Typed{"IntoAFolderBehindALinkEntersIt", save, "link", "enter $/here/link"},
                    Typed{"TwoPointsGoesUp", save, "..", "enter $"},
                    Typed{"FromTwoPointsGoesUp", open, "..", "enter $"},
                    Typed{"TwoPointsTwiceGoesUpTwice", open, "Team/../../", "enter $"},
                    Typed{"AboveTheTopStaysThere", open, "/..", "enter /"},
                    Typed{"OnePointStays", save, ".", "enter $/here"},
                    Typed{"TildeGoesHome", save, "~", "enter $/home"},
                    Typed{"FromTildeGoesHome", open, "~/", "enter $/home"},
                    Typed{"InAFolderAtHomeEntersIt", save, "~/anna", "enter $/home/anna"},
                    Typed{"ByAWholePathEntersTheFolder", open, "$/home/anna", "enter $/home/anna"},
                    Typed{"FromAGreekFolderEntersIt", open, "\xCE\xB1\xCE\xB2",
                          "enter $/here/\xCE\xB1\xCE\xB2"},
                    Typed{"FromAClosedFolderIsRefused", open, "closed",
                          "You may not look into this folder: $/here/closed"},
                    Typed{"FromAMissingFolderIsRefused", open, "gone/",
                          "This folder does not exist: $/here/gone"},
                    Typed{"IntoAMissingFolderIsRefused", save, "gone/",
                          "This folder does not exist: $/here/gone"},
                    Typed{"AFileWithASlashIsRefused", save, "plain/",
                          "This folder does not exist: $/here/plain"}),
    called);

INSTANTIATE_TEST_SUITE_P(
    OfAFileToSaveTo, Choice,
    testing::Values(
        Typed{"AddsTheEnding", save, "new", "take $/here/new.bsm"},
        Typed{"KeepsAnEnding", save, "new.txt", "take $/here/new.txt"},
        Typed{"AtHomeTakesTheName", save, "~/new", "take $/home/new.bsm"},
        Typed{"InAnotherFolderTakesTheName", save, "Team/new", "take $/here/Team/new.bsm"},
        Typed{"OverAFileTakesIt", save, "team2", "take $/here/team2.bsm"},
        Typed{"BehindALinkThatLeadsOnTakesIt", save, "ahead", "take $/here/ahead.bsm"},
        Typed{"BehindALinkIntoNothingIsRefused", save, "astray",
              "This folder does not exist: $/here/nowhere"},
        Typed{"BehindALinkInACircleIsRefused", save, "round",
              "This name can't be used: $/here/round"},
        Typed{"InAMissingFolderIsRefused", save, "gone/new",
              "This folder does not exist: $/here/gone"},
        Typed{"InAFileIsRefused", save, "plain/new", "This folder does not exist: $/here/plain"},
        Typed{"InALockedFolderIsRefused", save, "$/locked/new",
              "You may not save files in this folder: $/locked"},
        Typed{"OverAFileInALockedFolderTakesIt", save, "$/locked/old", "take $/locked/old.bsm"},
        Typed{"InAClosedFolderIsRefused", save, "closed/new",
              "You may not look into this folder: $/here/closed"},
        Typed{"UnderANameOfTheProgramsOwnIsRefused", save, "Team/own.tmp",
              "The program keeps files of its own under this name: $/here/Team/own.tmp"},
        Typed{"UnderANameOfAFileInTheMakingIsRefused", save, ".orvanta-AbC123",
              "The program keeps files of its own under this name: $/here/.orvanta-AbC123"},
        Typed{"IntoAFolderOfTheProgramsOwnIsRefused", save, "Copies/new",
              "The program keeps only its newest copies in this folder: $/here/Copies"},
        Typed{"BehindALinkToANameOfTheProgramsOwnIsRefused", save, "alias",
              "The program keeps files of its own under this name: $/here/alias.bsm"},
        Typed{"OverAReadOnlyFileIsRefused", save, "mine",
              "You may not change this file: $/here/mine.bsm"},
        Typed{"OverAFolderThatTheEndingNamesIsRefused", save, "blocked",
              "There is a folder of this name: $/here/blocked.bsm"},
        Typed{"IntoAPipeIsRefused", save, "pipe",
              "No file can be saved under this name: $/here/pipe.bsm"},
        Typed{"UnderTooLongANameIsRefused", save, longName,
              "This name can't be used: $/here/" + longName},
        Typed{"UnderANameThatTheEndingMakesTooLongIsRefused", save, std::string(253, 'n'),
              "This name can't be used: $/here/" + std::string(253, 'n')}),
    called);

INSTANTIATE_TEST_SUITE_P(
    OfAFileToOpen, Choice,
    testing::Values(
        Typed{"FindsTheName", open, "team2.bsm", "take $/here/team2.bsm"},
        Typed{"FindsTheNameWithoutItsEnding", open, "team2", "take $/here/team2.bsm"},
        Typed{"FindsANameWithAPointWithoutItsEnding", open, "v1.2", "take $/here/v1.2.bsm"},
        Typed{"FindsANameAtHomeWithoutItsEnding", open, "~/lee", "take $/home/lee.bsm"},
        Typed{"TakesAFileWithoutEndingAsItIs", open, "plain", "take $/here/plain"},
        Typed{"PrefersTheNameAsItStands", open, "both", "take $/here/both"},
        Typed{"AMissingFileIsRefused", open, "gone", "This file does not exist: $/here/gone"},
        Typed{"AMissingFileInAMissingFolderIsRefused", open, "gone/dana",
              "This folder does not exist: $/here/gone"},
        Typed{"WhatIsOnlyAFolderWithTheEndingIsRefused", open, "blocked",
              "This file does not exist: $/here/blocked"},
        Typed{"AnUnreadableFileIsRefused", open, "hidden",
              "You may not read this file: $/here/hidden.bsm"},
        Typed{"TooLargeAFileIsRefused", open, "huge", "This file can't be read: $/here/huge.bsm"},
        Typed{"APipeIsRefused", open, "pipe.bsm", "This file can't be read: $/here/pipe.bsm"},
        Typed{"InAClosedFolderIsRefused", open, "closed/dana",
              "You may not look into this folder: $/here/closed"}),
    called);

TEST(NamesInATypedText, AreThoseInQuotesOrElseTheWholeText) {
    using Names = std::vector<std::string>;
    for (const auto& [typed, names] : std::initializer_list<std::pair<std::string, Names>>{
             {"ann", {"ann"}},
             {"ann bo", {"ann bo"}},
             {"\"ann\"", {"ann"}},
             {" \"ann.bsm\"  \"bo 2.bsm\" ", {"ann.bsm", "bo 2.bsm"}},
             {"\"a\"b\" \"c\"", {"a\"b", "c"}},
             {"\"ann", {"\"ann"}},
             {"an\"n", {"an\"n"}},
             {"\"", {"\""}},
             {"", {""}}})
        EXPECT_EQ(namesIn(typed), names) << typed;
}

}  // namespace
}  // namespace orvanta::test
