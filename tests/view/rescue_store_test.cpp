#include "view/rescue_store.h"

#include <chrono>

#include "real_disk.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;
using namespace std::chrono_literals;

class Rescue : public RealDisk {
protected:
    std::string nameOf(const std::string& path) const {
        return std::string(native::withoutFolder(path));
    }
    Names copies() const { return folder.names("rescue"); }

    RescueStore::Time now = std::chrono::sys_days{2026y / 11 / 21} + 22h + 7min + 8s + 123ms;
    RescueStore store{folder / "rescue", [this] { return now; }};
};

TEST_F(Rescue, KeepsACopyNamedAfterTheTimeAndTheFile) {
    const std::string path = store.keep("/home/dana/team.bsm", "bytes");
    EXPECT_EQ(path, folder / "rescue/2026-11-21 22-07-08.123 team.bsm");
    EXPECT_EQ(folder.read("rescue/" + nameOf(path)), "bytes");
    EXPECT_EQ(copies(), Names{nameOf(path)});
}

TEST_F(Rescue, KeepsAFileUnderASecondNameThatOutlivesTheFirst) {
    folder.write("own.tmp", "bytes");
    const std::string path = store.keepFile(folder / "own.tmp", "team.bsm");
    EXPECT_EQ(path, folder / "rescue/2026-11-21 22-07-08.123 team.bsm");
    EXPECT_EQ(folder.read("own.tmp"), "bytes");
    fs::remove(folder / "own.tmp");
    EXPECT_EQ(folder.read("rescue/" + nameOf(path)), "bytes");
}

TEST_F(Rescue, RenamesAFileWhereItsFolderTakesNoSecondName) {
    folder.write("own.tmp", "bytes");
    folder.write("rescue", "a file in the folder's place");
    EXPECT_EQ(store.keepFile(folder / "own.tmp", "team.bsm"),
              folder / "2026-11-21 22-07-08.123 team.bsm");
    EXPECT_EQ(folder.read("2026-11-21 22-07-08.123 team.bsm"), "bytes");
    EXPECT_FALSE(fs::exists(folder / "own.tmp"));
    EXPECT_NE(failureOf([&] { store.keepFile(folder / "own.tmp", "team.bsm"); }), noError);
}

TEST_F(Rescue, TakesTheTimeFromTheSystem) {
    const auto before = std::chrono::system_clock::now();
    const std::string name = nameOf(RescueStore(folder / "other").keep("team.bsm", "bytes"));
    now = before;
    EXPECT_GE(name, nameOf(store.keep("team.bsm", "bytes")));
    now = std::chrono::system_clock::now();
    EXPECT_LE(name, nameOf(store.keep("team.bsm", "bytes")));
}

TEST_F(Rescue, MakesItsFolderWithParents) {
    const RescueStore deep(folder / "data/of/the program/rescue");
    EXPECT_TRUE(fs::exists(deep.keep("team.bsm", "bytes")));
    EXPECT_TRUE(fs::exists(deep.keep("team.bsm", "bytes")));
}

TEST_F(Rescue, OverwritesNoCopyOfTheSameMoment) {
    Names contents;
    for (const std::string bytes : {"first", "second", "third"})
        contents.push_back(nameOf(store.keep("team.bsm", bytes)));
    EXPECT_EQ(copies(), contents);
    EXPECT_EQ(folder.read("rescue/" + contents[0]), "first");
    EXPECT_EQ(folder.read("rescue/" + contents[2]), "third");
}

TEST_F(Rescue, KeepsTheNewestTwentyCopies) {
    Names written;
    for (int i = 0; i < 23; ++i) {
        now += 1h;
        written.push_back(nameOf(store.keep(i % 2 ? "a.bsm" : "b.aze", "bytes")));
        EXPECT_LE(copies().size(), 20u);
    }
    written.erase(written.begin(), written.begin() + 3);
    EXPECT_EQ(copies(), written);
}

TEST_F(Rescue, KeepsTheCopyJustMadeThoughTheClockWasAhead) {
    now += 24h * 365;
    for (int i = 0; i < 20; ++i) store.keep("old.bsm", "old");
    now -= 24h * 365;
    const std::string copy = nameOf(store.keep("team.bsm", "new"));
    EXPECT_EQ(copies().size(), 20u);
    EXPECT_EQ(folder.read("rescue/" + copy), "new");
}

TEST_F(Rescue, LeavesOtherFilesInItsFolderAlone) {
    fs::create_directories(folder / "rescue");
    const Names others{"2026-11-21 notes.txt", "notes.txt"};
    for (const std::string& name : others) folder.write("rescue/" + name, "of the user");
    for (int i = 0; i < 25; ++i) store.keep("team.bsm", "bytes");
    EXPECT_EQ(copies().size(), 22u);
    for (const std::string& name : others) EXPECT_TRUE(fs::exists(folder / ("rescue/" + name)));
}

TEST_F(Rescue, ShortensALongNameButKeepsItsEnding) {
    std::string name;
    for (int i = 0; i < 125; ++i) name += "ü";
    const std::string copy = nameOf(store.keep(name + ".aze", "bytes"));
    EXPECT_LE(copy.size(), 255u);
    EXPECT_TRUE(copy.ends_with("ü.aze"));
    EXPECT_TRUE(copy.starts_with("2026-11-21 22-07-08.123 ü")) << copy;
}

TEST_F(Rescue, FailsWhereNoCopyCanBeKept) {
    folder.write("rescue", "in the way");
    EXPECT_EQ(failureOf([&] { store.keep("team.bsm", "bytes"); }), pathNotFound);
    EXPECT_EQ(folder.read("rescue"), "in the way");
}

}  // namespace
}  // namespace orvanta::test
