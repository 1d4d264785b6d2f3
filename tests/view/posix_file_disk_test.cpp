#include "posix_disk.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

TEST_F(PosixDisk, TellsWhatALinkLeadsTo) {
    folder.write("file", "");
    fs::create_symlink("file", folder / "to-file");
    fs::create_symlink(folder.path(), folder / "to-folder");
    fs::create_symlink("nowhere", folder / "to-nothing");
    EXPECT_EQ(disk.kindOf(folder / "to-file"), PathKind::File);
    EXPECT_EQ(disk.kindOf(folder / "to-folder"), PathKind::Folder);
    EXPECT_EQ(disk.kindOf(folder / "to-nothing"), PathKind::Missing);
}

TEST_F(PosixDisk, DoesNotWaitForWhatNeverEnds) {
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0666), 0);
    EXPECT_EQ(errorOfReading(folder / "pipe"), pathFileAccess);
    EXPECT_EQ(errorOfReading("/dev/zero"), pathFileAccess);
    EXPECT_EQ(errorOfReplacing(folder / "pipe"), pathFileAccess);
    EXPECT_EQ(folder.names(), Names{"pipe"});
}

TEST_F(PosixDisk, TellsThatADeviceIsFull) { EXPECT_EQ(errorOfReplacing("/dev/full"), diskFull); }

TEST_F(PosixDisk, LeavesADeviceADevice) {
    EXPECT_EQ(errorOfReplacing("/dev/null"), noError);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(PosixDisk, WritesToWhatIsOpenAlready) {
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    disk.replace("/proc/self/fd/" + std::to_string(ends[1]), "new");
    char taken[8];
    EXPECT_EQ(::read(ends[0], taken, sizeof taken), 3);
    ::close(ends[0]);
    ::close(ends[1]);
}

TEST_F(PosixDisk, ReplacesAFileAtOnceForWhoeverReadsIt) {
    folder.write("file", "former");
    std::ifstream reader(folder / "file");
    disk.replace(folder / "file", "new");
    std::string seen;
    reader >> seen;
    EXPECT_EQ(seen, "former");
}

TEST_F(PosixDisk, DoesNotReadAFileThatNoMemoryHolds) {
    folder.write("file", "former");
    fs::resize_file(folder / "file", 200'000'000'000);
    EXPECT_EQ(errorOfReading(folder / "file"), pathFileAccess);
}

class LinkOnDisk : public PosixDisk {
protected:
    LinkOnDisk() { fs::create_directory(folder / "inner"); }

    /// A link in the inner folder that names this, and what follows of replacing through it.
    int replaceThroughLinkTo(const std::string& named) {
        fs::create_symlink(named, folder / "inner/link");
        const int error = errorOfReplacing(folder / "inner/link");
        EXPECT_TRUE(fs::is_symlink(folder / "inner/link"));
        EXPECT_EQ(fs::read_symlink(folder / "inner/link"), named);
        return error;
    }
};

TEST_F(LinkOnDisk, StaysOneWhileItsFileIsReplaced) {
    folder.write("file", "former");
    EXPECT_EQ(replaceThroughLinkTo("../file"), noError);
    EXPECT_EQ(folder.read("file"), "new");
}

TEST_F(LinkOnDisk, StaysOneWhileItsMissingFileIsMade) {
    EXPECT_EQ(replaceThroughLinkTo("../file"), noError);
    EXPECT_EQ(folder.read("file"), "new");
}

TEST_F(LinkOnDisk, MayNameItsMissingFileByAWholePath) {
    EXPECT_EQ(replaceThroughLinkTo(folder / "file"), noError);
    EXPECT_EQ(folder.read("file"), "new");
}

TEST_F(LinkOnDisk, MayLeadToItsMissingFileThroughAnotherLink) {
    fs::create_symlink("file", folder / "second");
    EXPECT_EQ(replaceThroughLinkTo("../second"), noError);
    EXPECT_TRUE(fs::is_symlink(folder / "second"));
    EXPECT_EQ(folder.read("file"), "new");
}

TEST_F(LinkOnDisk, ToAMissingFolderIsAPathNotFound) {
    EXPECT_EQ(replaceThroughLinkTo("../missing/file"), pathNotFound);
}

TEST_F(LinkOnDisk, ToAFolderCanNotBeReplaced) {
    EXPECT_EQ(replaceThroughLinkTo(".."), pathFileAccess);
}

TEST_F(LinkOnDisk, ThatLeadsInACircleCanNotBeReplaced) {
    fs::create_symlink("inner/link", folder / "second");
    EXPECT_EQ(replaceThroughLinkTo("../second"), pathFileAccess);
    EXPECT_EQ(errorOfReading(folder / "second"), pathFileAccess);
    EXPECT_TRUE(fs::is_symlink(folder / "second"));
}

TEST_F(LinkOnDisk, IsDeletedWithoutItsFile) {
    folder.write("file", "bytes");
    fs::create_symlink("file", folder / "link");
    disk.remove(folder / "link");
    EXPECT_EQ(folder.names(), (Names{"file", "inner"}));
}

TEST_F(PosixDisk, SaysWhatPermissionsForbid) {
    folder.write("secret", "former");
    ::chmod((folder / "secret").c_str(), 0);
    folder.write("fixed", "former");
    ::chmod((folder / "fixed").c_str(), 0444);
    EXPECT_EQ(errorAsOrdinaryUser([&] { disk.read(folder / "secret"); }), permissionDenied);
    EXPECT_EQ(errorAsOrdinaryUser([&] { disk.replace(folder / "secret", "new"); }),
              permissionDenied);
    EXPECT_EQ(errorAsOrdinaryUser([&] { disk.replace(folder / "fixed", "new"); }),
              permissionDenied);
    EXPECT_EQ(folder.read("fixed"), "former");
    EXPECT_EQ(folder.names(), (Names{"fixed", "secret"}));
}

TEST_F(PosixDisk, DoesNotTakeAFolderThatItMayNotLookIntoForAMissingOne) {
    fs::create_directory(folder / "closed");
    folder.write("closed/file", "former");
    ::chmod((folder / "closed").c_str(), ::geteuid() == 0 ? 0700 : 0);
    const auto replaceIn = [&](const std::string& name) {
        return errorAsOrdinaryUser([&] { disk.replace(folder / ("closed/" + name), "new"); });
    };
    EXPECT_EQ(replaceIn("file"), permissionDenied);
    EXPECT_EQ(replaceIn("new"), permissionDenied);
    EXPECT_EQ(replaceIn("below/new"), permissionDenied);
    ::chmod((folder / "closed").c_str(), 0700);
}

}  // namespace
}  // namespace orvanta::test
