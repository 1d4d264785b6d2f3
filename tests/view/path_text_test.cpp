#include "view/path_text.h"

#include <gtest/gtest.h>

#include <random>

#include "temporary_folder.h"
#include "view/file_disk.h"
#include "view/windows1252.h"

namespace orvanta::test {
namespace {

class NameOfTheSystem : public testing::TestWithParam<std::string> {};
INSTANTIATE_TEST_SUITE_P(In, NameOfTheSystem,
                         testing::Values("/home/anna/My SWOT/team.bsm", "/home/Zo\u00EB/\u20AC 5",
                                         "/home/\u0391\u03BD\u03BD\u03B1", "/\u65E5\u672C/team.bsm",
                                         "/e\u0301 decomposed", "/\U0001F600", "/?", "/\xFF\xFE",
                                         "/cut short \xE6\x97", "/\u0081", "/\u0081E697A5\u008D",
                                         "/\u008D", ""));

TEST_P(NameOfTheSystem, ComesBackFromItsPath) {
    EXPECT_EQ(nativeFromPath(pathFromNative(GetParam())), GetParam());
}

TEST(PathText, OfRandomBytesLeadsBackToThem) {
    std::mt19937 random(7);
    for (int round = 0; round < 2000; ++round) {
        std::string name(random() % 12, '\0');
        for (char& byte : name)
            byte =
                "\x81\x8D\xC2\xE6\x97\xA5"
                "A0?/"[random() % 10];
        EXPECT_EQ(nativeFromPath(pathFromNative(name)), name);
    }
}

TEST(PathText, WithinTheCodePageIsPlain) {
    EXPECT_EQ(pathFromNative("/home/Zo\u00EB/\u20AC 5"), "/home/Zo\xEB/\x80 5");
    EXPECT_EQ(nativeFromPath("/home/Zo\xEB/\x80 5"), "/home/Zo\u00EB/\u20AC 5");
}

TEST(PathText, TellsNamesApartThatTheCodePageDoesNot) {
    EXPECT_EQ(windows1252From("\u03B1"), windows1252From("\u03B2"));
    EXPECT_NE(pathFromNative("\u03B1"), pathFromNative("\u03B2"));
    EXPECT_NE(pathFromNative("\u03B1"), pathFromNative("?"));
}

TEST(PathText, CanBePutTogetherAndTakenApart) {
    EXPECT_EQ(nativeFromPath(pathFromNative("/\u03B1") + "/System/" + pathFromNative("\u03B2.htm")),
              "/\u03B1/System/\u03B2.htm");
}

TEST(PathText, ThatWasNotMadeOfANameIsReadAsItStands) {
    for (const std::string text : {"\x81", "\x81\x8D",
                                   "\x81"
                                   "E6\x8D\x81",
                                   "\x81"
                                   "E\x8D",
                                   "\x81"
                                   "e6\x8D",
                                   "\x81"
                                   "E6"})
        EXPECT_EQ(nativeFromPath(pathFromNative(nativeFromPath(text))), nativeFromPath(text));
    EXPECT_EQ(nativeFromPath("\x81"
                             "E"),
              "\u0081E");
}

TEST(PathText, LeadsTheDiskToAFileOfAnyName) {
    const TemporaryFolder folder;
    FileDisk disk;
    const std::string inside = pathFromNative(folder / "\u65E5\u672C");
    disk.makeFolder(inside);
    disk.replace(inside + "/team.bsm", "Own fleet");
    EXPECT_EQ(folder.read("\u65E5\u672C/team.bsm"), "Own fleet");
    EXPECT_EQ(disk.read(inside + "/team.bsm"), "Own fleet");
    EXPECT_EQ(disk.kindOf(inside), PathKind::Folder);
    disk.remove(inside + "/team.bsm");
    EXPECT_EQ(disk.kindOf(inside + "/team.bsm"), PathKind::Missing);
}

}  // namespace
}  // namespace orvanta::test
