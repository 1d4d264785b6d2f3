#include "failing_disk.h"
#include "posix_disk.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

/// A folder, not this user's, with a file that everybody may write to. A locked one takes no new
/// file; a sticky one takes files, but lets nobody replace those of others.
class KeptFolder : public PosixDisk, public testing::WithParamInterface<mode_t> {
protected:
    KeptFolder() {
        fs::create_directory(folder / "kept");
        writeFormer("former");
    }
    ~KeptFolder() override { ::chmod((folder / "kept").c_str(), 0777); }

    void writeFormer(const std::string& bytes) const {
        ::chmod((folder / "kept").c_str(), 0755);
        folder.write("kept/file", bytes);
        ::chmod((folder / "kept/file").c_str(), 0666);
        ::chmod((folder / "kept").c_str(), GetParam());
    }
    int errorOfReplacing(const std::string& bytes) {
        return errorAsOrdinaryUser([&] { disk.replace(folder / "kept/file", bytes); });
    }
    Names namesInKept() const {
        Names names;
        for (const auto& entry : fs::directory_iterator(folder / "kept"))
            names.push_back(entry.path().filename());
        return names;
    }
};

constexpr mode_t locked = 0555, sticky = 01777;
std::string nameOf(const testing::TestParamInfo<mode_t>& info) {
    return info.param == locked ? "Locked" : "Sticky";
}
INSTANTIATE_TEST_SUITE_P(Is, KeptFolder, testing::Values(locked, sticky), nameOf);

TEST_P(KeptFolder, LetsAFileThatMayBeWrittenBeReplaced) {
    for (const std::string bytes : {"new and longer", "new", "", "from nothing"}) {
        EXPECT_EQ(errorOfReplacing(bytes), noError);
        EXPECT_EQ(folder.read("kept/file"), bytes);
        EXPECT_EQ(namesInKept(), Names{"file"});
    }
}

TEST_P(KeptFolder, KeepsAFileWholeWhereverTheWriteBreaksOff) {
    for (const std::string bytes : {"new and longer", "new"})
        for (std::uintmax_t room = 0; room < bytes.size(); ++room) {
            const FileSizeLimit limit(room);
            ASSERT_EQ(errorOfReplacing(bytes), pathFileAccess) << room;
            ASSERT_EQ(folder.read("kept/file"), "former") << room;
            ASSERT_EQ(namesInKept(), Names{"file"});
        }
}

TEST_P(KeptFolder, KeepsALongFileWholeWhereverTheWriteBreaksOff) {
    std::string former;
    for (int i = 0; former.size() < 108'000; ++i) former += std::to_string(i);
    writeFormer(former);
    for (const std::size_t room : {1, 4096, 65536, 107'999, 108'001, 110'000}) {
        const FileSizeLimit limit(room);
        ASSERT_EQ(errorOfReplacing(std::string(120'000, 'n')), pathFileAccess) << room;
        ASSERT_TRUE(folder.read("kept/file") == former) << room;
    }
}

class LockedFolder : public KeptFolder {
protected:
    int errorOfReplacingWith(FileDisk& rescuing, const std::string& bytes) {
        return errorAsOrdinaryUser([&] { rescuing.replace(folder / "kept/file", bytes); });
    }
    Names copies() const {
        Names copies;
        for (const auto& entry : fs::directory_iterator(folder / "rescue"))
            copies.push_back(folder.read("rescue/" + entry.path().filename().string()));
        std::ranges::sort(copies);
        return copies;
    }
};
INSTANTIATE_TEST_SUITE_P(Is, LockedFolder, testing::Values(locked), nameOf);

TEST_P(LockedFolder, TakesNoNewFileAndNoFolderAndKeepsItsFiles) {
    EXPECT_EQ(errorAsOrdinaryUser([&] { disk.replace(folder / "kept/new", "new"); }),
              permissionDenied);
    EXPECT_EQ(errorAsOrdinaryUser([&] { disk.makeFolder(folder / "kept/new"); }), permissionDenied);
    EXPECT_EQ(errorAsOrdinaryUser([&] { disk.remove(folder / "kept/file"); }), permissionDenied);
    EXPECT_EQ(folder.read("kept/file"), "former");
}

TEST_P(LockedFolder, PutsTheFormerBytesInTheRescueFolderFirst) {
    FileDisk rescuing{RescueStore(folder / "rescue")};
    EXPECT_EQ(errorOfReplacingWith(rescuing, "new"), noError);
    EXPECT_EQ(errorOfReplacingWith(rescuing, "newer"), noError);
    EXPECT_EQ(folder.read("kept/file"), "newer");
    EXPECT_EQ(copies(), (Names{"former", "new"}));
}

TEST_P(LockedFolder, DoesNotTouchAFileWhoseFormerBytesCanNotBeRescued) {
    FileDisk rescuing{RescueStore(folder / "kept/rescue")};
    EXPECT_EQ(errorOfReplacingWith(rescuing, "new"), permissionDenied);
    EXPECT_EQ(folder.read("kept/file"), "former");
}

TEST_P(LockedFolder, DoesNotTouchAFileThatIsTooLargeToBePutBack) {
    constexpr off_t bytes = (off_t{256} << 20) + 1;
    ASSERT_EQ(::truncate((folder / "kept/file").c_str(), bytes), 0);
    EXPECT_EQ(errorOfReplacing("new"), pathFileAccess);
    EXPECT_EQ(statusOf("kept/file").st_size, bytes);
}

TEST_F(PosixDisk, RescuesNothingWhereAFileIsReplacedAsAWhole) {
    folder.write("file", "former");
    FileDisk rescuing{RescueStore(folder / "rescue")};
    rescuing.replace(folder / "file", "new");
    EXPECT_EQ(folder.names(), Names{"file"});
}

}  // namespace
}  // namespace orvanta::test
