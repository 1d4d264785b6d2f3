#include "core/files.h"

#include <gtest/gtest.h>

#include "bench.h"

namespace orvanta::test {
namespace {

TEST(Path, ToNothingIsNeitherFileNorFolder) {
    Bench bench;
    EXPECT_FALSE(fileExists(bench.program(), "app/nothing"));
    EXPECT_FALSE(folderExists(bench.program(), "app/nothing"));
}

TEST(Path, ToAFolderIsNoFile) {
    Bench bench;
    EXPECT_FALSE(fileExists(bench.program(), "app"));
    EXPECT_TRUE(folderExists(bench.program(), "app"));
}

TEST(Path, ToAFileIsNoFolder) {
    Bench bench;
    EXPECT_TRUE(fileExists(bench.program(), "app/gbsquestions.txt"));
    EXPECT_FALSE(folderExists(bench.program(), "app/gbsquestions.txt"));
}

TEST(TemporaryFile, IsDeletedIfItIsThere) {
    Bench bench;
    bench.disk.files["app/brainstorm.tmp"] = "anything";
    deleteIfThere(bench.program(), "app/brainstorm.tmp");
    EXPECT_FALSE(bench.disk.files.contains("app/brainstorm.tmp"));
}

TEST(TemporaryFile, ThatIsNotThereIsPassedOver) {
    Bench bench;
    EXPECT_NO_THROW(deleteIfThere(bench.program(), "app/brainstorm.tmp"));
}

TEST(TemporaryFile, ThatCannotBeDeletedFails) {
    Bench bench;
    bench.disk.files["app/brainstorm.tmp"] = "anything";
    bench.disk.unwritable.insert({"app/brainstorm.tmp", ErrorNumber::PermissionDenied});
    EXPECT_THROW(deleteIfThere(bench.program(), "app/brainstorm.tmp"), Failure);
}

}  // namespace
}  // namespace orvanta::test
