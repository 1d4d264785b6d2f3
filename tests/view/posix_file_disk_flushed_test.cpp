#include <gtest/gtest.h>

#include "failing_disk.h"
#include "failure_of.h"
#include "file_calls.h"
#include "ordinary_user.h"
#include "temporary_folder.h"

namespace orvanta::test {
namespace {

using Names = std::vector<std::string>;

Names namesOf(const std::vector<FileCall>& calls) {
    Names names;
    for (const FileCall& call : calls) names.push_back(call.name);
    return names;
}

class FlushedFile : public testing::Test {
protected:
    FlushedFile() { takeFileCalls(); }

    const TemporaryFolder folder;
    const std::string path = std::filesystem::canonical(folder.path()).string() + "/file";
    FileDisk disk;
};

/// What outlives a power cut at any moment: the former file or the new one, whole.
void expectFlushes(const std::vector<FileCall>& calls, const std::string& path, off_t size) {
    ASSERT_EQ(namesOf(calls), (Names{"fsync", "rename", "fsync"}));
    EXPECT_EQ(calls[0].path, calls[1].path);
    EXPECT_EQ(calls[0].size, size);
    EXPECT_EQ(calls[1].target, path);
    EXPECT_EQ(calls[2].path, path.substr(0, path.rfind('/')));
}

TEST_F(FlushedFile, IsWholeOnTheDeviceBeforeItTakesItsNameAndItsFolderIsAfterwards) {
    disk.replace(path, "bytes");
    expectFlushes(takeFileCalls(), path, 5);
}

TEST_F(FlushedFile, TakesTheNameOfAFormerOneInTheSameOrder) {
    folder.write("file", "former bytes");
    disk.replace(path, "bytes");
    expectFlushes(takeFileCalls(), path, 5);
}

TEST_F(FlushedFile, IsFlushedAtItsOwnPlaceWhereALinkNamesIt) {
    std::filesystem::create_directory(folder / "inner");
    std::filesystem::create_symlink("../file", folder / "inner/link");
    disk.replace(folder / "inner/link", "bytes");
    expectFlushes(takeFileCalls(), path, 5);
}

TEST_F(FlushedFile, IsWholeOnTheDeviceInAFolderThatTakesNoNewOne) {
    folder.write("file", "former bytes");
    ::chmod(path.c_str(), 0666);
    ::chmod(folder.path().c_str(), 0555);
    const int flushed = asOrdinaryUser([&] {
        disk.replace(path, "bytes");
        const std::vector<FileCall> calls = takeFileCalls();
        // Once before the former end is cut off and once behind that.
        return namesOf(calls) == Names{"fsync", "fsync"} && calls[1].path == path &&
               calls[1].size == 5;
    });
    ::chmod(folder.path().c_str(), 0777);
    EXPECT_EQ(flushed, 1);
}

}  // namespace
}  // namespace orvanta::test
