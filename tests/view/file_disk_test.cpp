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

TEST_F(RealDisk, LeavesNothingBesideAReplacedFile) {
    disk.replace(folder / "file", "first");
    disk.replace(folder / "file", "second");
    EXPECT_EQ(folder.names(), Names{"file"});
    EXPECT_EQ(folder.read("file"), "second");
}

TEST_F(RealDisk, ReplacesAFileInTheWorkingFolder) {
    const fs::path former = fs::current_path();
    fs::current_path(folder.path());
    disk.replace("file", "new");
    fs::current_path(former);
    EXPECT_EQ(folder.names(), Names{"file"});
}

class FullDisk : public RealDisk, public testing::WithParamInterface<bool> {
protected:
    /// Replaces a file of "former" on a disk with room for so many bytes.
    int replaceWithRoomFor(std::uintmax_t room, const std::string& bytes) {
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
    for (std::uintmax_t room = 0; room < bytes.size(); ++room) {
        ASSERT_EQ(replaceWithRoomFor(room, bytes), pathFileAccess) << room;
        ASSERT_EQ(folder.names(), names) << room;
        ASSERT_EQ(folder.read("file"), GetParam() ? "former" : "") << room;
    }
    EXPECT_EQ(replaceWithRoomFor(bytes.size(), bytes), noError);
    EXPECT_EQ(folder.read("file"), bytes);
}

class HugeFile : public RealDisk {
protected:
    void makeOf(std::uintmax_t bytes) const {
        folder.write("file", "former");
        fs::resize_file(folder / "file", bytes);
    }
    static constexpr std::uintmax_t most = std::uintmax_t{256} << 20;
};

TEST_F(HugeFile, CanNotBeRead) {
    makeOf(most + 1);
    EXPECT_EQ(errorOfReading(folder / "file"), pathFileAccess);
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
