#include "real_disk.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

/// A file that the program keeps for itself, and what somebody may put in its place.
class OwnFile : public RealDisk {
protected:
    int errorOfReadingOwn() {
        return failureOf([&] { disk.readOwn(folder / "own"); });
    }
    int errorOfReplacingOwn() {
        return failureOf([&] { disk.replaceOwn(folder / "own", "new"); });
    }
};

TEST_F(OwnFile, IsReadAndReplacedLikeAnyOther) {
    EXPECT_EQ(errorOfReadingOwn(), fileNotFound);
    EXPECT_EQ(errorOfReplacingOwn(), noError);
    EXPECT_EQ(disk.readOwn(folder / "own"), "new");
    EXPECT_EQ(errorOfReplacingOwn(), noError);
    EXPECT_EQ(folder.names(), Names{"own"});
}

TEST_F(OwnFile, DoesNotTakeThePlaceOfAFolder) {
    fs::create_directory(folder / "own");
    EXPECT_EQ(errorOfReadingOwn(), pathFileAccess);
    EXPECT_EQ(errorOfReplacingOwn(), pathFileAccess);
}

}  // namespace
}  // namespace orvanta::test
