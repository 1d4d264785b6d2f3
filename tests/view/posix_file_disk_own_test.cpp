#include "posix_disk.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

/// A file that the program keeps for itself, and what somebody may put in its place.
class OwnFileAmongLinks : public PosixDisk {
protected:
    int errorOfReadingOwn() {
        return failureOf([&] { disk.readOwn(folder / "own"); });
    }
    int errorOfReplacingOwn() {
        return failureOf([&] { disk.replaceOwn(folder / "own", "new"); });
    }
};

TEST_F(OwnFileAmongLinks, ThatNobodyMayWriteIsReplacedByAProgramThatRescues) {
    fs::create_directory(folder / "scratch");
    folder.write("scratch/own", "former");
    ::chmod((folder / "scratch/own").c_str(), 0444);
    ::chmod((folder / "scratch").c_str(), 0777);
    FileDisk rescuing{RescueStore(folder / "rescue")};
    const std::string own = folder / "scratch/own";
    EXPECT_EQ(errorAsOrdinaryUser([&] { disk.replaceOwn(own, "new"); }), permissionDenied);
    EXPECT_EQ(errorAsOrdinaryUser([&] { rescuing.replaceOwn(own, "new"); }), noError);
    EXPECT_EQ(folder.read("scratch/own"), "new");
}

TEST_F(OwnFileAmongLinks, IsNotReadThroughALink) {
    folder.write("secret", "of somebody");
    fs::create_symlink("secret", folder / "own");
    EXPECT_EQ(errorOfReadingOwn(), pathFileAccess);
}

TEST_F(OwnFileAmongLinks, TakesThePlaceOfALinkAndLeavesWhatThatLedTo) {
    folder.write("precious", "of somebody");
    for (const std::string to : {"precious", "missing", ".", "own"}) {
        fs::remove(folder / "own");
        fs::create_symlink(to, folder / "own");
        EXPECT_EQ(errorOfReplacingOwn(), noError) << to;
        EXPECT_FALSE(fs::is_symlink(folder / "own"));
        EXPECT_EQ(folder.read("own"), "new");
        EXPECT_EQ(folder.names(), (Names{"own", "precious"}));
        EXPECT_EQ(folder.read("precious"), "of somebody");
    }
}

TEST_F(OwnFileAmongLinks, TakesThePlaceOfAPipe) {
    ASSERT_EQ(::mkfifo((folder / "own").c_str(), 0666), 0);
    EXPECT_EQ(errorOfReadingOwn(), pathFileAccess);
    EXPECT_EQ(errorOfReplacingOwn(), noError);
    EXPECT_EQ(folder.read("own"), "new");
}

TEST_F(OwnFileAmongLinks, IsNotWrittenThroughALinkThatItsFolderKeeps) {
    folder.write("precious", "of somebody");
    ::chmod((folder / "precious").c_str(), 0666);
    fs::create_directory(folder / "kept");
    fs::create_symlink("../precious", folder / "kept/own");
    ::chmod((folder / "kept").c_str(), 0555);
    EXPECT_EQ(errorAsOrdinaryUser([&] { disk.replaceOwn(folder / "kept/own", "new"); }),
              permissionDenied);
    EXPECT_EQ(folder.read("precious"), "of somebody");
    ::chmod((folder / "kept").c_str(), 0777);
}

// Somebody may put the link there at any moment.
TEST_F(OwnFileAmongLinks, IsNotOpenedThroughALinkToBeWrittenOver) {
    folder.write("precious", "of somebody");
    fs::create_symlink("precious", folder / "own");
    EXPECT_EQ(failureOf([&] { native::File::toChange(folder / "own"); }), pathFileAccess);
}

}  // namespace
}  // namespace orvanta::test
