#include <fcntl.h>
#include <sys/stat.h>

#include <ctime>

#include "posix_disk.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

/// What programs that were killed while they wrote have left in a folder.
class LeftoversOnPosix : public PosixDisk {
protected:
    static constexpr std::time_t day = 86'400;

    void age(const std::string& name, std::time_t seconds) const {
        const timespec time{std::time(nullptr) - seconds, 0};
        const timespec times[]{time, time};
        ::utimensat(AT_FDCWD, (folder / name).c_str(), times, AT_SYMLINK_NOFOLLOW);
    }
    void leave(const std::string& name, std::time_t seconds = day + 60) const {
        folder.write(name, "half a fi");
        age(name, seconds);
    }
};

TEST_F(LeftoversOnPosix, GoFromTheFolderOfTheFileThatALinkLeadsTo) {
    fs::create_directory(folder / "inner");
    fs::create_symlink("inner/file", folder / "link");
    leave("inner/.orvanta-aZ09xy");
    disk.replace(folder / "link", "new");
    EXPECT_FALSE(fs::exists(folder / "inner/.orvanta-aZ09xy"));
}

TEST_F(LeftoversOnPosix, ArePlainFilesAlone) {
    fs::create_directory(folder / ".orvanta-folder");
    fs::create_symlink("nowhere", folder / ".orvanta-symlin");
    ASSERT_EQ(::mkfifo((folder / ".orvanta-waiter").c_str(), 0666), 0);
    const Names names = folder.names();
    for (const std::string& name : names) age(name, day + 60);
    FileDisk::removeLeftovers(folder.path());
    EXPECT_EQ(folder.names(), names);
}

// As an ordinary user the test meets no file of somebody else.
TEST_F(LeftoversOnPosix, AreThisUsersOwn) {
    leave(".orvanta-aZ09xy");
    EXPECT_EQ(errorAsOrdinaryUser([&] { FileDisk::removeLeftovers(folder.path()); }), noError);
    EXPECT_EQ(folder.names(), ::geteuid() == 0 ? Names{".orvanta-aZ09xy"} : Names{});
}

}  // namespace
}  // namespace orvanta::test
