#include "desktop/scratch_folder.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "temporary_folder.h"

namespace orvanta::desktop::test {

namespace {

class ScratchFolder : public testing::Test {
protected:
    std::optional<std::string> found() { return scratchFolder(beside.path(), own, locks); }

    orvanta::test::TemporaryFolder beside, home;
    const std::string own = home.path() + "/Orvanta/Orvanta";
    ScratchLocks locks;
};

}  // namespace

TEST_F(ScratchFolder, IsTheProgramsOwn) { EXPECT_EQ(found(), beside.path()); }

TEST_F(ScratchFolder, IsTheUsersWhereAnEndedSessionWaitsThereAlone) {
    std::filesystem::create_directories(own);
    for (const char* name : {"brainstorm.tmp", "analyze.tmp"}) {
        home.write(std::string("Orvanta/Orvanta/") + name, "a session");
        EXPECT_EQ(found(), own) << name;
        beside.write(name, "a session");
        EXPECT_EQ(found(), beside.path()) << name;
        std::filesystem::remove(beside.path() + '/' + name);
        std::filesystem::remove(own + '/' + name);
    }
    EXPECT_EQ(found(), beside.path());
}

TEST_F(ScratchFolder, IsTheUsersWhereThePackageSaysSo) {
    beside.write("system-wide", "");
    beside.write("brainstorm.tmp", "a session");
    EXPECT_EQ(found(), own);
    EXPECT_TRUE(std::filesystem::is_directory(own));
}

TEST_F(ScratchFolder, IsNoneWhereAProgramIsRunning) {
    ScratchLocks running;
    EXPECT_EQ(scratchFolder(beside.path(), own, running), beside.path());
    beside.write("orvanta.lock", "1");  // nobody who could be raised
    EXPECT_EQ(found(), own);
    ScratchLocks third;
    home.write("Orvanta/Orvanta/orvanta.lock", "1");
    EXPECT_EQ(scratchFolder(beside.path(), own, third), std::nullopt);
}

TEST_F(ScratchFolder, OfTheUserKeepsTheNextStartFromTheProgramsOwn) {
    std::filesystem::create_directories(own);
    home.write("Orvanta/Orvanta/brainstorm.tmp", "a session");
    ASSERT_EQ(found(), own);
    InstanceLock next;
    EXPECT_NE(next.take(beside.path()), InstanceLock::Holder::ThisProgram);
}

}  // namespace orvanta::desktop::test
