#include "failing_disk.h"
#include "real_disk.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

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

TEST_F(RealDisk, DoesNotTakeAFolderThatItMayNotLookIntoForAMissingOne) {
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

class HugeFile : public RealDisk {
protected:
    void makeOf(off_t bytes) const {
        folder.write("file", "former");
        EXPECT_EQ(::truncate((folder / "file").c_str(), bytes), 0);
    }
    static constexpr off_t most = off_t{256} << 20;
};

TEST_F(HugeFile, CanNotBeRead) {
    for (const off_t bytes : {most + 1, off_t{200'000'000'000}}) {
        makeOf(bytes);
        EXPECT_EQ(errorOfReading(folder / "file"), pathFileAccess) << bytes;
    }
}

TEST_F(HugeFile, IsReadUpToTheLimit) {
    makeOf(most);
    const std::string bytes = disk.read(folder / "file");
    EXPECT_EQ(bytes.size(), static_cast<std::size_t>(most));
    EXPECT_TRUE(bytes.starts_with("former"));
}

TEST_F(HugeFile, CanBeReplaced) {
    makeOf(most + 1);
    disk.replace(folder / "file", "new");
    EXPECT_EQ(folder.read("file"), "new");
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
