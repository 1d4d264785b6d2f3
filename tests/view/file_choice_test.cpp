#include "view/file_choice.h"

#include "file_choices.h"

namespace orvanta::test {
namespace {

TEST_P(Choice, IsWhatThePersonMeant) {
    EXPECT_EQ(choice(GetParam().mode, GetParam().typed), GetParam().choice);
}

const std::string longName(260, 'n');

INSTANTIATE_TEST_SUITE_P(
    OfAFolder, Choice,
    testing::Values(Typed{"IntoATypedFolderEntersIt", save, "Team", "enter $/here/Team"},
                    Typed{"FromATypedFolderEntersIt", open, "Team", "enter $/here/Team"},
                    Typed{"IntoAFolderWithASlashEntersIt", save, "Team/", "enter $/here/Team"},
                    Typed{"TwoPointsGoesUp", save, "..", "enter $"},
                    Typed{"FromTwoPointsGoesUp", open, "..", "enter $"},
                    Typed{"TwoPointsTwiceGoesUpTwice", open, "Team/../../", "enter $"},
                    Typed{"OnePointStays", save, ".", "enter $/here"},
                    Typed{"TildeGoesHome", save, "~", "enter $/home"},
                    Typed{"FromTildeGoesHome", open, "~/", "enter $/home"},
                    Typed{"InAFolderAtHomeEntersIt", save, "~/anna", "enter $/home/anna"},
                    Typed{"ByAWholePathEntersTheFolder", open, "$/home/anna", "enter $/home/anna"},
                    Typed{"FromAGreekFolderEntersIt", open, "\xCE\xB1\xCE\xB2",
                          "enter $/here/\xCE\xB1\xCE\xB2"},
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
        Typed{"InAMissingFolderIsRefused", save, "gone/new",
              "This folder does not exist: $/here/gone"},
        Typed{"InAFileIsRefused", save, "plain/new", "This folder does not exist: $/here/plain"},
        Typed{"UnderANameOfTheProgramsOwnIsRefused", save, "Team/own.tmp",
              "The program keeps files of its own under this name: $/here/Team/own.tmp"},
        Typed{"UnderANameOfAFileInTheMakingIsRefused", save, ".orvanta-AbC123",
              "The program keeps files of its own under this name: $/here/.orvanta-AbC123"},
        Typed{"IntoAFolderOfTheProgramsOwnIsRefused", save, "Copies/new",
              "The program keeps only its newest copies in this folder: $/here/Copies"},
        Typed{"OverAFolderThatTheEndingNamesIsRefused", save, "blocked",
              "There is a folder of this name: $/here/blocked.bsm"},
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
        Typed{"TooLargeAFileIsRefused", open, "huge", "This file can't be read: $/here/huge.bsm"}),
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
