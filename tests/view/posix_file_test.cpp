#include <sys/xattr.h>

#include <algorithm>
#include <array>
#include <string_view>

#include "posix_disk.h"

namespace orvanta::test {
namespace {

class RightsOfAReplacedFile : public PosixDisk {
protected:
    RightsOfAReplacedFile() { folder.write("file", "former"); }

    void give(mode_t mode) const { ::chmod((folder / "file").c_str(), mode); }
    /// False where the file system keeps no such thing.
    bool setAttribute(const std::string& file, const char* name, std::string_view value) const {
        return ::setxattr((folder / file).c_str(), name, value.data(), value.size(), 0) == 0;
    }
    std::string attribute(const char* name) const {
        char value[256];
        const auto size = ::getxattr((folder / "file").c_str(), name, value, sizeof value);
        return {value, static_cast<std::size_t>(std::max<ssize_t>(size, 0))};
    }
    int replaceAsOrdinaryUser() {
        return errorAsOrdinaryUser([&] { disk.replace(folder / "file", "new"); });
    }
};

const bool isRoot = ::geteuid() == 0;

/// A group beside the usual one that this user may give away; the usual one if there is none.
gid_t anotherGroup() {
    if (isRoot) return nobody;
    std::array<gid_t, 64> groups;
    const int count = ::getgroups(static_cast<int>(groups.size()), groups.data());
    for (int i = 0; i < count; ++i)
        if (groups[static_cast<std::size_t>(i)] != ::getegid())
            return groups[static_cast<std::size_t>(i)];
    return ::getegid();
}

TEST_F(RightsOfAReplacedFile, AreThoseOfTheFormerOne) {
    for (const mode_t mode : {0600, 0640, 0666, 0755}) {
        give(mode);
        disk.replace(folder / "file", "new");
        EXPECT_EQ(modeOf("file"), mode);
    }
}

TEST_F(RightsOfAReplacedFile, DoNotLetItRunAsItsOwnerOrGroup) {
    for (const mode_t mode : {04755, 02755, 06755}) {
        give(mode);
        disk.replace(folder / "file", "new");
        EXPECT_EQ(modeOf("file"), 0755u);
    }
}

TEST_F(RightsOfAReplacedFile, AreThoseOfItsFormerGroup) {
    give(0660);
    ASSERT_EQ(::chown((folder / "file").c_str(), static_cast<uid_t>(-1), anotherGroup()), 0);
    disk.replace(folder / "file", "new");
    EXPECT_EQ(statusOf("file").st_gid, anotherGroup());
    EXPECT_EQ(modeOf("file"), 0660u);
}

// As an ordinary user the test meets no file of another group.
TEST_F(RightsOfAReplacedFile, PassToNoOtherGroup) {
    give(0666);
    EXPECT_EQ(replaceAsOrdinaryUser(), noError);
    EXPECT_EQ(folder.read("file"), "new");
    EXPECT_EQ(modeOf("file"), isRoot ? 0606u : 0666u);
}

// An ordinary user keeps what is his own in any case.
TEST_F(RightsOfAReplacedFile, StayWithItsOwner) {
    const uid_t owner = isRoot ? nobody : ::geteuid();
    ASSERT_EQ(::chown((folder / "file").c_str(), owner, static_cast<gid_t>(-1)), 0);
    disk.replace(folder / "file", "new");
    EXPECT_EQ(statusOf("file").st_uid, owner);
}

TEST_F(RightsOfAReplacedFile, ComeWithItsAttributes) {
    const bool keeps =
        setAttribute("file", "user.note", "of the team") && setAttribute("file", "user.empty", "");
    disk.replace(folder / "file", "new");
    EXPECT_EQ(attribute("user.note"), keeps ? "of the team" : "");
    EXPECT_EQ(::getxattr((folder / "file").c_str(), "user.empty", nullptr, 0), keeps ? 0 : -1);
}

/// The system's form of an access list: the owner, nobody and the owning group may do what these
/// say; the mask and everybody else come last.
std::string accessList(char owner, char nobodys, char group, char mask) {
    using namespace std::string_view_literals;
    const std::string none("\xff\xff\xff\xff", 4), user("\xfe\xff\0\0", 4);
    const auto entry = [](char tag, char rights, const std::string& id) {
        return std::string{tag, '\0', rights, '\0'} + id;
    };
    return std::string("\2\0\0\0"sv) + entry(0x01, owner, none) + entry(0x02, nobodys, user) +
           entry(0x04, group, none) + entry(0x10, mask, none) + entry(0x20, 0, none);
}

TEST_F(RightsOfAReplacedFile, ComeWithItsAccessList) {
    const std::string list = accessList(6, 6, 4, 6);
    const bool keeps = setAttribute("file", "system.posix_acl_access", list);
    const mode_t mode = modeOf("file");
    disk.replace(folder / "file", "new");
    EXPECT_EQ(attribute("system.posix_acl_access"), keeps ? list : "");
    EXPECT_EQ(modeOf("file"), mode);
}

TEST_F(RightsOfAReplacedFile, AreNotWidenedByItsFolder) {
    give(0660);
    setAttribute("", "system.posix_acl_default", accessList(7, 7, 7, 7));
    disk.replace(folder / "file", "new");
    EXPECT_EQ(attribute("system.posix_acl_access"), "");
    EXPECT_EQ(modeOf("file"), 0660u);
}

TEST_F(PosixDisk, GivesANewFileTheModeThatTheUserWants) {
    const mode_t former = ::umask(027);
    disk.replace(folder / "file", "new");
    ::umask(former);
    EXPECT_EQ(modeOf("file"), 0640u);
}

}  // namespace
}  // namespace orvanta::test
