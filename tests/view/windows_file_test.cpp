#include <windows.h>

#include "real_disk.h"
#include "view/windows_names.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

class WindowsDisk : public RealDisk {
protected:
    WindowsDisk() { folder.write("file", "former"); }
    ~WindowsDisk() override { give("file", FILE_ATTRIBUTE_NORMAL); }

    void give(const std::string& name, DWORD attributes) const {
        SetFileAttributesW(native::longName(folder / name).c_str(), attributes);
    }
    DWORD attributesOf(const std::string& name) const {
        return GetFileAttributesW(native::longName(folder / name).c_str());
    }
};

/// Another program that has the file open and lets others do this with it.
class OpenElsewhere {
public:
    OpenElsewhere(const std::string& name, DWORD share)
        : m_file(CreateFileW(native::longName(name).c_str(), GENERIC_READ, share, nullptr,
                             OPEN_EXISTING, 0, nullptr)) {
        EXPECT_NE(m_file, INVALID_HANDLE_VALUE);
    }
    ~OpenElsewhere() { CloseHandle(m_file); }
    OpenElsewhere(const OpenElsewhere&) = delete;
    OpenElsewhere& operator=(const OpenElsewhere&) = delete;

private:
    HANDLE m_file;
};

TEST_F(WindowsDisk, TakesOnlyAFolderWithoutFurtherAttributesForOne) {
    fs::create_directory(folder / "inner");
    EXPECT_EQ(disk.kindOf(folder / "inner"), PathKind::Folder);
    for (const DWORD further : {FILE_ATTRIBUTE_HIDDEN, FILE_ATTRIBUTE_SYSTEM}) {
        give("inner", further);
        EXPECT_EQ(disk.kindOf(folder / "inner"), PathKind::File) << further;
        EXPECT_EQ(errorOfReplacing(folder / "inner"), pathFileAccess);
        EXPECT_EQ(errorOfReading(folder / "inner"), pathFileAccess);
    }
    give("inner", FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsDisk, RemovesItsOwnOldLeftovers) {
    folder.write(".orvanta-aZ09xy", "half a fi");
    EXPECT_TRUE(native::isOwnPlainFile(folder / ".orvanta-aZ09xy", std::chrono::seconds(-1)));
    EXPECT_FALSE(native::isOwnPlainFile(folder / ".orvanta-aZ09xy", std::chrono::hours(1)));
}

TEST_F(WindowsDisk, KeepsAReadOnlyFile) {
    give("file", FILE_ATTRIBUTE_READONLY);
    EXPECT_EQ(errorOfReplacing(folder / "file"), permissionDenied);
    EXPECT_EQ(failureOf([&] { disk.remove(folder / "file"); }), permissionDenied);
    EXPECT_EQ(folder.read("file"), "former");
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_F(WindowsDisk, ReplacesAReadOnlyFileOfTheProgramsOwnWhereItRescues) {
    give("file", FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(failureOf([&] { disk.replaceOwn(folder / "file", "new"); }), permissionDenied);
    const TemporaryFolder rescue;
    FileDisk rescuing{RescueStore(rescue.path())};
    EXPECT_EQ(failureOf([&] { rescuing.replaceOwn(folder / "file", "new"); }), noError);
    EXPECT_EQ(folder.read("file"), "new");
    EXPECT_TRUE(attributesOf("file") & FILE_ATTRIBUTE_HIDDEN);
    EXPECT_EQ(folder.names(), Names{"file"});
    EXPECT_EQ(rescue.names(), Names{});
}

TEST_F(WindowsDisk, SaysThatAFileIsHeldByAnotherProgram) {
    const OpenElsewhere held(folder / "file", 0);
    EXPECT_EQ(errorOfReading(folder / "file"), permissionDenied);
    EXPECT_EQ(errorOfReplacing(folder / "file"), permissionDenied);
    EXPECT_EQ(failureOf([&] { disk.remove(folder / "file"); }), permissionDenied);
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_F(WindowsDisk, WritesOverAFileThatAnotherProgramLetsNobodyTakeAway) {
    const OpenElsewhere held(folder / "file", FILE_SHARE_READ | FILE_SHARE_WRITE);
    for (const std::string bytes : {"new and longer", "new", ""}) {
        EXPECT_EQ(errorOfReplacing(folder / "file", bytes), noError);
        EXPECT_EQ(folder.read("file"), bytes);
    }
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_F(WindowsDisk, PutsTheFormerBytesInTheRescueFolderBeforeItWritesOver) {
    const OpenElsewhere held(folder / "file", FILE_SHARE_READ | FILE_SHARE_WRITE);
    const TemporaryFolder rescue;
    FileDisk{RescueStore(rescue.path())}.replace(folder / "file", "new");
    ASSERT_EQ(rescue.names().size(), 1u);
    EXPECT_EQ(rescue.read(rescue.names().front()), "former");
    EXPECT_EQ(folder.read("file"), "new");
}

TEST_F(WindowsDisk, KeepsTheAttributesOfAReplacedFile) {
    give("file", FILE_ATTRIBUTE_HIDDEN);
    disk.replace(folder / "file", "new");
    EXPECT_EQ(folder.read("file"), "new");
    EXPECT_TRUE(attributesOf("file") & FILE_ATTRIBUTE_HIDDEN);
}

TEST_F(WindowsDisk, KnowsPathsOfAnyLength) {
    std::string deep = folder.path();
    for (int i = 0; i < 5; ++i) {
        deep += "\\" + std::string(100, 'n');
        disk.makeFolder(deep);
    }
    disk.replace(deep + "\\file", "first");
    disk.replace(deep + "\\file", "second");
    EXPECT_EQ(disk.read(deep + "\\file"), "second");
    EXPECT_EQ(disk.kindOf(deep), PathKind::Folder);
    EXPECT_EQ(native::namesIn(deep), Names{"file"});
    disk.remove(deep + "\\file");
    EXPECT_EQ(disk.kindOf(deep + "\\file"), PathKind::Missing);
}

TEST_F(WindowsDisk, TakesSlashesToo) {
    std::string path = folder / "file";
    std::ranges::replace(path, '\\', '/');
    disk.replace(path, "new");
    EXPECT_EQ(disk.read(path), "new");
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST_F(WindowsDisk, LeavesADeviceADevice) {
    EXPECT_EQ(errorOfReplacing("NUL"), noError);
    EXPECT_EQ(errorOfReading("NUL"), pathFileAccess);
}

TEST_F(WindowsDisk, SaysThatThereIsNoSuchDrive) {
    EXPECT_EQ(errorOfReading(R"(Q:\team.bsm)"), pathNotFound);
    EXPECT_EQ(errorOfReplacing(R"(Q:\team.bsm)"), pathNotFound);
}

TEST_F(WindowsDisk, RefusesANameThatTheSystemDoesNotKnow) {
    EXPECT_EQ(errorOfReplacing(folder / "what?"), pathFileAccess);
    EXPECT_EQ(folder.names(), Names{"file"});
}

TEST(FolderOnWindows, OfAFileAtTheTopOfADriveIsTheDrive) {
    EXPECT_EQ(native::folderOf(R"(C:\team.bsm)"), R"(C:\)");
    EXPECT_EQ(native::folderOf(R"(C:\docs\team.bsm)"), R"(C:\docs)");
    EXPECT_EQ(native::folderOf("C:/docs/team.bsm"), "C:/docs");
}

TEST(FolderOnWindows, OfAFileOfADriveIsWhereTheSystemStandsOnThatDrive) {
    EXPECT_EQ(native::folderOf("C:team.bsm"), "C:.");
    EXPECT_EQ(native::folderOf(R"(C:docs\team.bsm)"), "C:docs");
    EXPECT_EQ(native::folderOf("team.bsm"), ".");
}

TEST_F(WindowsDisk, LooksIntoAFolderWithASeparatorBehindItsName) {
    for (const std::string separator : {"", "\\", "\\\\", "/"})
        EXPECT_EQ(native::namesIn(folder.path() + separator), Names{"file"}) << separator;
}

TEST(LongName, IsTheWholePathInTheFormWithoutALimit) {
    EXPECT_EQ(native::longName(R"(C:\docs\..\team.bsm)"), LR"(\\?\C:\team.bsm)");
    EXPECT_EQ(native::longName("//server/share/team.bsm"), LR"(\\?\UNC\server\share\team.bsm)");
    EXPECT_EQ(native::longName(""), L"");
    for (const std::string name : {R"(C:\team.bsm)", R"(\\server\share\team.bsm)"})
        EXPECT_EQ(native::usualName(native::longName(name)), name);
}

TEST(WindowsName, ComesBackFromTheFormThatTheSystemTakes) {
    for (const std::string name : {"", "team", "Z\u00FCrich \u20AC", "\u65E5\u672C", "\U0001F600"})
        EXPECT_EQ(native::utf8From(native::wideFrom(name)), name);
}

}  // namespace
}  // namespace orvanta::test
