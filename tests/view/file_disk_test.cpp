#include "view/file_disk.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "failing_disk.h"
#include "failure_of.h"
#include "ordinary_user.h"
#include "temporary_folder.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;
using Names = std::vector<std::string>;

constexpr int fileNotFound = 53, diskFull = 61, permissionDenied = 70, pathFileAccess = 75,
              pathNotFound = 76, noError = 0;

class RealDisk : public testing::Test {
protected:
    int errorOfReading(const std::string& path) {
        return failureOf([&] { disk.read(path); });
    }
    int errorOfReplacing(const std::string& path, const std::string& bytes = "new") {
        return failureOf([&] { disk.replace(path, bytes); });
    }

    /// The same, done by somebody whom permissions bind.
    template <class Act>
    static int errorAsOrdinaryUser(Act act) {
        return asOrdinaryUser([&] { return failureOf(act); });
    }

    mode_t modeOf(const std::string& name) const {
        struct stat status {};
        ::stat((folder / name).c_str(), &status);
        return status.st_mode & 07777;
    }

    TemporaryFolder folder;
    FileDisk disk;
};

TEST_F(RealDisk, TellsFilesFoldersAndMissingPathsApart) {
    folder.write("file", "");
    EXPECT_EQ(disk.kindOf(folder / "file"), PathKind::File);
    EXPECT_EQ(disk.kindOf(folder.path()), PathKind::Folder);
    EXPECT_EQ(disk.kindOf(folder / "missing"), PathKind::Missing);
    EXPECT_EQ(disk.kindOf(folder / "file/below"), PathKind::Missing);
    EXPECT_EQ(disk.kindOf(""), PathKind::Missing);
}

TEST_F(RealDisk, TellsWhatALinkLeadsTo) {
    folder.write("file", "");
    fs::create_symlink("file", folder / "to-file");
    fs::create_symlink(folder.path(), folder / "to-folder");
    fs::create_symlink("nowhere", folder / "to-nothing");
    EXPECT_EQ(disk.kindOf(folder / "to-file"), PathKind::File);
    EXPECT_EQ(disk.kindOf(folder / "to-folder"), PathKind::Folder);
    EXPECT_EQ(disk.kindOf(folder / "to-nothing"), PathKind::Missing);
}

TEST_F(RealDisk, GivesBackEveryByteThatItWasGiven) {
    std::string bytes;
    for (int i = 0; i < 100'000; ++i) bytes.push_back(static_cast<char>(i * 7 % 256));
    for (const std::string& written : {std::string(), std::string("a\r\nb\0c", 6), bytes}) {
        disk.replace(folder / "file", written);
        EXPECT_TRUE(disk.read(folder / "file") == written) << written.size() << " bytes";
    }
}

TEST_F(RealDisk, NamesFilesInUtf8) {
    disk.replace(folder / "Z\xFCrich \x80", "bytes");
    EXPECT_EQ(folder.names(), Names{"Zürich €"});
    EXPECT_EQ(disk.read(folder / "Z\xFCrich \x80"), "bytes");
    disk.makeFolder(folder / "\xC4");
    EXPECT_EQ(disk.kindOf(folder / "\xC4"), PathKind::Folder);
    disk.remove(folder / "Z\xFCrich \x80");
    EXPECT_EQ(folder.names(), Names{"Ä"});
}

TEST_F(RealDisk, TellsWhyAFileCanNotBeRead) {
    folder.write("file", "");
    EXPECT_EQ(errorOfReading(folder / "missing"), fileNotFound);
    EXPECT_EQ(errorOfReading(folder / "missing/file"), pathNotFound);
    EXPECT_EQ(errorOfReading(folder / "file/file"), pathNotFound);
    EXPECT_EQ(errorOfReading(folder.path()), pathFileAccess);
    EXPECT_EQ(errorOfReading(folder / std::string(300, 'n')), pathFileAccess);
}

TEST_F(RealDisk, DoesNotWaitForWhatNeverEnds) {
    ASSERT_EQ(::mkfifo((folder / "pipe").c_str(), 0666), 0);
    EXPECT_EQ(errorOfReading(folder / "pipe"), pathFileAccess);
    EXPECT_EQ(errorOfReading("/dev/zero"), pathFileAccess);
    EXPECT_EQ(errorOfReplacing(folder / "pipe"), pathFileAccess);
    EXPECT_EQ(folder.names(), Names{"pipe"});
}

TEST_F(RealDisk, TellsWhyAFileCanNotBeReplaced) {
    folder.write("file", "former");
    EXPECT_EQ(errorOfReplacing(folder / "missing/file"), pathNotFound);
    EXPECT_EQ(errorOfReplacing(folder / "file/file"), pathNotFound);
    EXPECT_EQ(errorOfReplacing(folder.path()), pathFileAccess);
    EXPECT_EQ(errorOfReplacing(folder / std::string(300, 'n')), pathFileAccess);
    EXPECT_EQ(errorOfReplacing(""), pathFileAccess);
    EXPECT_EQ(folder.names(), Names{"file"});
    EXPECT_EQ(folder.read("file"), "former");
}

TEST_F(RealDisk, TellsThatADeviceIsFull) { EXPECT_EQ(errorOfReplacing("/dev/full"), diskFull); }

TEST_F(RealDisk, LeavesADeviceADevice) {
    EXPECT_EQ(errorOfReplacing("/dev/null"), noError);
    EXPECT_TRUE(fs::is_character_file("/dev/null"));
}

TEST_F(RealDisk, WritesToWhatIsOpenAlready) {
    int ends[2];
    ASSERT_EQ(::pipe(ends), 0);
    disk.replace("/proc/self/fd/" + std::to_string(ends[1]), "new");
    char taken[8];
    EXPECT_EQ(::read(ends[0], taken, sizeof taken), 3);
    ::close(ends[0]);
    ::close(ends[1]);
}

TEST_F(RealDisk, LeavesNothingBesideAReplacedFile) {
    disk.replace(folder / "file", "first");
    disk.replace(folder / "file", "second");
    EXPECT_EQ(folder.names(), Names{"file"});
    EXPECT_EQ(folder.read("file"), "second");
}

TEST_F(RealDisk, ReplacesAFileAtOnceForWhoeverReadsIt) {
    folder.write("file", "former");
    std::ifstream reader(folder / "file");
    disk.replace(folder / "file", "new");
    std::string seen;
    reader >> seen;
    EXPECT_EQ(seen, "former");
}

TEST_F(RealDisk, ReplacesAFileInTheWorkingFolder) {
    const fs::path former = fs::current_path();
    fs::current_path(folder.path());
    disk.replace("file", "new");
    fs::current_path(former);
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_F(RealDisk, KeepsTheModeOfAFile) {
    for (const mode_t mode : {0600, 0640, 0666, 0755}) {
        folder.write("file", "former");
        ::chmod((folder / "file").c_str(), mode);
        disk.replace(folder / "file", "new");
        EXPECT_EQ(modeOf("file"), mode);
    }
}

TEST_F(RealDisk, GivesANewFileTheModeThatTheUserWants) {
    const mode_t former = ::umask(027);
    disk.replace(folder / "file", "new");
    ::umask(former);
    EXPECT_EQ(modeOf("file"), 0640u);
}

class LinkOnDisk : public RealDisk {
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

class FullDisk : public RealDisk, public testing::WithParamInterface<bool> {
protected:
    /// Replaces a file of "former" on a disk with room for so many bytes.
    int replaceWithRoomFor(rlim_t room, const std::string& bytes) {
        const FileSizeLimit limit(room);
        return errorOfReplacing(folder / "file", bytes);
    }
};
INSTANTIATE_TEST_SUITE_P(Over, FullDisk, testing::Bool(),
                         [](const auto& param) { return param.param ? "AFormerFile" : "Nothing"; });

TEST_P(FullDisk, KeepsWhatWasThereWhereverTheWriteBreaksOff) {
    const std::string bytes(200, 'n');
    if (GetParam()) folder.write("file", "former");
    const Names names = folder.names();
    for (rlim_t room = 0; room < bytes.size(); ++room) {
        ASSERT_EQ(replaceWithRoomFor(room, bytes), pathFileAccess) << room;
        ASSERT_EQ(folder.names(), names) << room;
        ASSERT_EQ(folder.read("file"), GetParam() ? "former" : "") << room;
    }
    EXPECT_EQ(replaceWithRoomFor(bytes.size(), bytes), noError);
    EXPECT_EQ(folder.read("file"), bytes);
}

TEST_F(RealDisk, SaysWhatPermissionsForbid) {
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

class LockedFolder : public RealDisk {
protected:
    LockedFolder() {
        fs::create_directory(folder / "locked");
        folder.write("locked/file", "former");
        ::chmod((folder / "locked/file").c_str(), 0666);
        ::chmod((folder / "locked").c_str(), 0555);
    }
    ~LockedFolder() override { ::chmod((folder / "locked").c_str(), 0777); }
};

TEST_F(LockedFolder, TakesNoNewFileAndNoFolderAndKeepsItsFiles) {
    EXPECT_EQ(errorAsOrdinaryUser([&] { disk.replace(folder / "locked/new", "new"); }),
              permissionDenied);
    EXPECT_EQ(errorAsOrdinaryUser([&] { disk.makeFolder(folder / "locked/new"); }),
              permissionDenied);
    EXPECT_EQ(errorAsOrdinaryUser([&] { disk.remove(folder / "locked/file"); }), permissionDenied);
    EXPECT_EQ(folder.read("locked/file"), "former");
}

TEST_F(LockedFolder, LetsAFileThatMayBeWrittenBeReplaced) {
    EXPECT_EQ(errorAsOrdinaryUser([&] { disk.replace(folder / "locked/file", "new"); }), noError);
    EXPECT_EQ(folder.read("locked/file"), "new");
}

TEST_F(LockedFolder, KeepsAFileWholeWhereverTheWriteBreaksOff) {
    for (const std::string bytes : {"new and longer", "new"})
        for (rlim_t room = 0; room < bytes.size(); ++room) {
            ASSERT_EQ(errorAsOrdinaryUser([&] {
                          const FileSizeLimit limit(room);
                          disk.replace(folder / "locked/file", bytes);
                      }),
                      pathFileAccess)
                << room;
            ASSERT_EQ(folder.read("locked/file"), "former") << room;
        }
}

TEST_F(LockedFolder, LeavesNoRestOfALongerFile) {
    EXPECT_EQ(errorAsOrdinaryUser([&] { disk.replace(folder / "locked/file", "n"); }), noError);
    EXPECT_EQ(folder.read("locked/file"), "n");
}

TEST_F(RealDisk, TellsWhyAFolderCanNotBeMade) {
    folder.write("file", "");
    EXPECT_EQ(failureOf([&] { disk.makeFolder(folder / "made"); }), noError);
    EXPECT_TRUE(fs::is_directory(folder / "made"));
    EXPECT_EQ(failureOf([&] { disk.makeFolder(folder / "made"); }), pathFileAccess);
    EXPECT_EQ(failureOf([&] { disk.makeFolder(folder / "file"); }), pathFileAccess);
    EXPECT_EQ(failureOf([&] { disk.makeFolder(folder / "missing/made"); }), pathNotFound);
    EXPECT_EQ(failureOf([&] { disk.makeFolder(folder / "file/made"); }), pathNotFound);
}

TEST_F(RealDisk, TellsWhyAFileCanNotBeDeleted) {
    folder.write("file", "");
    EXPECT_EQ(failureOf([&] { disk.remove(folder / "file/below"); }), pathNotFound);
    EXPECT_EQ(failureOf([&] { disk.remove(folder / "file"); }), noError);
    EXPECT_EQ(failureOf([&] { disk.remove(folder / "file"); }), fileNotFound);
    EXPECT_EQ(failureOf([&] { disk.remove(folder / "missing/file"); }), pathNotFound);
    EXPECT_EQ(failureOf([&] { disk.remove(folder.path()); }), pathFileAccess);
}

}  // namespace
}  // namespace orvanta::test
