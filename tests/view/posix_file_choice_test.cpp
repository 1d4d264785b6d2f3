#include <sys/stat.h>

#include "file_choices.h"
#include "ordinary_user.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

/// With links, a pipe, and what the person has no right to.
class ChoiceUnderRights : public Choice {
protected:
    ChoiceUnderRights() {
        for (const char* name : {"here/closed", "locked"}) fs::create_directory(all / name);
        makeFile("here/mine.bsm", 0444);
        makeFile("here/hidden.bsm", 0000);
        makeFile("locked/old.bsm", 0666);
        fs::create_symlink("Team", all / "here/link");
        fs::create_symlink("Team/new.bsm", all / "here/ahead.bsm");
        fs::create_symlink("own.tmp", all / "here/alias.bsm");
        fs::create_symlink("nowhere/new.bsm", all / "here/astray.bsm");
        fs::create_symlink("round.bsm", all / "here/round.bsm");
        ::mkfifo((all / "here/pipe.bsm").c_str(), 0666);
        for (const char* name : {"here", "here/Team", "home", "home/anna"}) allow(name, 0777);
        allow("here/closed", 0000);
        allow("locked", 0555);
    }
    ~ChoiceUnderRights() override {
        allow("here/closed", 0777);
        allow("locked", 0777);
    }

    void makeFile(const std::string& name, mode_t mode) const {
        all.write(name, "x");
        allow(name, mode);
    }
    void allow(const std::string& name, mode_t mode) const { ::chmod((all / name).c_str(), mode); }

    /// What somebody is told whom permissions bind.
    std::string choiceOfOrdinaryUser(FileDialogMode mode, const std::string& typed) const {
        const TemporaryFolder told;
        asOrdinaryUser([&] {
            told.write("choice", choice(mode, typed));
            return 0;
        });
        return told.read("choice");
    }
};

TEST_P(ChoiceUnderRights, IsWhatThePersonMeant) {
    EXPECT_EQ(choiceOfOrdinaryUser(GetParam().mode, GetParam().typed), GetParam().choice);
}

INSTANTIATE_TEST_SUITE_P(OfAFolder, ChoiceUnderRights,
                         testing::Values(Typed{"IntoAFolderBehindALinkEntersIt", save, "link",
                                               "enter $/here/link"},
                                         Typed{"AboveTheTopStaysThere", open, "/..", "enter /"},
                                         Typed{"FromAClosedFolderIsRefused", open, "closed",
                                               "You may not look into this folder: $/here/closed"}),
                         called);

INSTANTIATE_TEST_SUITE_P(
    OfAFileToSaveTo, ChoiceUnderRights,
    testing::Values(Typed{"BehindALinkThatLeadsOnTakesIt", save, "ahead", "take $/here/ahead.bsm"},
                    Typed{"BehindALinkIntoNothingIsRefused", save, "astray",
                          "This folder does not exist: $/here/nowhere"},
                    Typed{"BehindALinkInACircleIsRefused", save, "round",
                          "This name can't be used: $/here/round"},
                    Typed{"InALockedFolderIsRefused", save, "$/locked/new",
                          "You may not save files in this folder: $/locked"},
                    Typed{"OverAFileInALockedFolderTakesIt", save, "$/locked/old",
                          "take $/locked/old.bsm"},
                    Typed{"InAClosedFolderIsRefused", save, "closed/new",
                          "You may not look into this folder: $/here/closed"},
                    Typed{"BehindALinkToANameOfTheProgramsOwnIsRefused", save, "alias",
                          "The program keeps files of its own under this name: $/here/alias.bsm"},
                    Typed{"OverAReadOnlyFileIsRefused", save, "mine",
                          "You may not change this file: $/here/mine.bsm"},
                    Typed{"IntoAPipeIsRefused", save, "pipe",
                          "No file can be saved under this name: $/here/pipe.bsm"}),
    called);

INSTANTIATE_TEST_SUITE_P(OfAFileToOpen, ChoiceUnderRights,
                         testing::Values(Typed{"AnUnreadableFileIsRefused", open, "hidden",
                                               "You may not read this file: $/here/hidden.bsm"},
                                         Typed{"APipeIsRefused", open, "pipe.bsm",
                                               "This file can't be read: $/here/pipe.bsm"},
                                         Typed{"InAClosedFolderIsRefused", open, "closed/dana",
                                               "You may not look into this folder: $/here/closed"}),
                         called);

}  // namespace
}  // namespace orvanta::test
