#include <windows.h>

#include "file_choices.h"
#include "view/native_file.h"
#include "view/windows_names.h"

namespace orvanta::test {
namespace {

/// With what only this system has in a name.
class ChoiceOnWindows : public Choice {
protected:
    ChoiceOnWindows() {
        all.write("here/mine.bsm", "x");
        give("here/mine.bsm", FILE_ATTRIBUTE_READONLY);
    }
    ~ChoiceOnWindows() override { give("here/mine.bsm", FILE_ATTRIBUTE_NORMAL); }

private:
    void give(const std::string& name, DWORD attributes) const {
        SetFileAttributesW(native::wideFrom(all / name).c_str(), attributes);
    }
};

TEST_P(ChoiceOnWindows, IsWhatThePersonMeant) {
    EXPECT_EQ(choice(GetParam().mode, GetParam().typed), GetParam().choice);
}

const std::string ownFile = "The program keeps files of its own under this name: ";

std::string shortNameOf(const std::string& path) {
    std::wstring name(path.size() + 1, L'\0');
    name.resize(GetShortPathNameW(native::wideFrom(path).c_str(), name.data(),
                                  static_cast<DWORD>(name.size())));
    return std::string(native::withoutFolder(native::utf8From(name)));
}

INSTANTIATE_TEST_SUITE_P(OfAFolder, ChoiceOnWindows,
                         testing::Values(Typed{"IntoAFolderWithABackslashEntersIt", save,
                                               R"(Team\)", "enter $/here/Team"},
                                         Typed{"InAFolderAtHomeEntersIt", save, R"(~\anna)",
                                               "enter $/home/anna"}),
                         called);

INSTANTIATE_TEST_SUITE_P(
    OfAFileToSaveTo, ChoiceOnWindows,
    testing::Values(Typed{"OverAFileInOtherLettersTakesIt", save, "TEAM2", "take $/here/TEAM2.bsm"},
                    Typed{"OverAReadOnlyFileIsRefused", save, "mine",
                          "You may not change this file: $/here/mine.bsm"},
                    Typed{"UnderANameOfTheProgramsOwnInOtherLettersIsRefused", save,
                          R"(Team\OWN.tmp)", ownFile + "$/here/Team/OWN.tmp"},
                    Typed{"UnderANameOfTheProgramsOwnWithAPointBehindItIsRefused", save, "own.tmp.",
                          ownFile + "$/here/own.tmp."},
                    Typed{"UnderANameOfAFileInTheMakingInOtherLettersIsRefused", save,
                          ".ORVANTA-abc123", ownFile + "$/here/.ORVANTA-abc123"},
                    Typed{"UnderANameWithAColonIsRefused", save, "team: new",
                          "This name can't be used: $/here/team: new"},
                    Typed{"UnderANameWithASignThatNoNameHasIsRefused", save, "team?",
                          "This name can't be used: $/here/team?"}),
    called);

TEST_F(Choice, UnderTheShortNameOfAFileOfTheProgramsOwnIsRefused) {
    ownName = "copy of a session.tmp";
    all.write("here/" + ownName, "x");
    const std::string shortName = shortNameOf(all / ("here/" + ownName));
    ASSERT_NE(shortName, ownName);
    EXPECT_EQ(choice(save, shortName), ownFile + "$/here/" + shortName);
}

}  // namespace
}  // namespace orvanta::test
