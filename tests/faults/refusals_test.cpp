#include <cerrno>
#include <string_view>

#include "faults.h"
#include "real_disk.h"

namespace orvanta::test {
namespace {

/// A file of "former" in an ordinary folder, replaced by "new" while one call fails.
class AFailingCall : public RealDisk {
protected:
    AFailingCall() { folder.write("file", "former"); }

    /// The error that comes of it if the first call of this name fails with this one.
    int errorWhere(std::string_view call, int fault) {
        orvanta_faults_begin(0, 0);
        disk.replace(folder / "file", "former");
        const int calls = orvanta_faults_end();
        int number = 1;
        while (number <= calls && call != orvanta_faults_name(number)) ++number;
        EXPECT_LE(number, calls) << call << " is not called";
        FileDisk rescuing{RescueStore(folder / "rescue")};
        orvanta_faults_begin(number, fault);
        const int error = failureOf([&] { rescuing.replace(folder / "file", "new"); });
        orvanta_faults_end();
        return error;
    }
    std::string rescued() const {
        for (const auto& entry : std::filesystem::directory_iterator(folder / "rescue"))
            return folder.read("rescue/" + entry.path().filename().string());
        return {};
    }
};

TEST_F(AFailingCall, ThatRefusesToLetTheFileGoHasItWrittenOver) {
    for (const int refusal : {EPERM, EACCES, EBUSY, EXDEV, EROFS}) {
        EXPECT_EQ(errorWhere("rename", refusal), noError) << refusal;
        EXPECT_EQ(folder.read("file"), "new");
        EXPECT_EQ(rescued(), "former");
        std::filesystem::remove_all(folder / "rescue");
    }
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_F(AFailingCall, ThatRefusesANewFileHasTheFileWrittenOver) {
    EXPECT_EQ(errorWhere("mkostemp", EACCES), noError);
    EXPECT_EQ(folder.read("file"), "new");
    EXPECT_EQ(rescued(), "former");
}

// As on a stick whose files all belong to somebody else.
TEST_F(AFailingCall, ThatRefusesRightsLeavesTheFileWithNoneTooMany) {
    for (const int error : {EPERM, EACCES, ENOTSUP}) {
        EXPECT_EQ(errorWhere("fchmod", error), noError) << error;
        EXPECT_EQ(folder.read("file"), "new");
        EXPECT_EQ(std::filesystem::status(folder / "file").permissions(),
                  std::filesystem::perms::owner_read | std::filesystem::perms::owner_write);
    }
}

TEST_F(AFailingCall, IsToldAsWhatItIs) {
    for (const char* call : {"mkostemp", "pwrite", "fchmod", "fsync", "close", "rename"}) {
        EXPECT_EQ(errorWhere(call, ENOSPC), diskFull) << call;
        EXPECT_EQ(errorWhere(call, EDQUOT), diskFull) << call;
        EXPECT_EQ(errorWhere(call, EIO), pathFileAccess) << call;
        EXPECT_EQ(folder.read("file"), "former") << call;
        EXPECT_EQ(folder.names(), Names{"file"});
    }
    EXPECT_EQ(errorWhere("pwrite", EPERM), permissionDenied);
}

TEST_F(AFailingCall, ThatCanNotTellWhatIsThereIsNoSignThatNothingIs) {
    EXPECT_EQ(errorWhere("stat", EIO), pathFileAccess);
    EXPECT_EQ(errorWhere("stat", EACCES), permissionDenied);
    EXPECT_EQ(folder.read("file"), "former");
}

}  // namespace
}  // namespace orvanta::test
