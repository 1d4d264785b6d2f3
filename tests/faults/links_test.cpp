#include "played_program.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

/// The program where somebody has put a link in the place of a file that it keeps for itself.
class ALinkInPlaceOfAnOwnFile : public testing::Test {
protected:
    ALinkInPlaceOfAnOwnFile() { layOut(folder); }

    void writeOver(const std::string& writerName, const std::string& to) {
        const Writer& writer = writerOf(writerName);
        PlayedProgram played(folder.path());
        ASSERT_EQ(played.play(writer.before), "");
        folder.write("precious", "of somebody");
        const std::string own = folder / (writer.folder + "/" + writer.file);
        fs::create_symlink(folder / to, own);
        ASSERT_EQ(played.play(writer.write), "");
        EXPECT_FALSE(fs::is_symlink(own));
        EXPECT_EQ(folder.read(writer.folder + "/" + writer.file), played.disk.written);
        EXPECT_EQ(folder.read("precious"), "of somebody");
        EXPECT_FALSE(fs::exists(folder / "missing"));
    }

    TemporaryFolder folder{memoryFolder()};
};

TEST_F(ALinkInPlaceOfAnOwnFile, IsReplacedByACopyOfTheSession) {
    writeOver("CopyOfTheBrainstormSession", "precious");
    fs::remove(folder / "app/brainstorm.tmp");
    writeOver("CopyOfTheAnalysis", "missing");
}

TEST_F(ALinkInPlaceOfAnOwnFile, IsReplacedByTheWebPage) {
    writeOver("WebPage", "precious");
    fs::remove(folder / "app/System/report.htm");
    writeOver("WebPage", "missing");
}

TEST_F(ALinkInPlaceOfAnOwnFile, BringsNoSessionAtTheStart) {
    for (const char* own : {"app/brainstorm.tmp", "app/analyze.tmp"}) {
        fs::create_symlink(folder / "sources/dana.bsm", folder / own);
        PlayedProgram played(folder.path());
        EXPECT_EQ(played.play({start}), "");
        EXPECT_FALSE(played.program().frmMain.editFlag || played.program().frmMain.editAFlag);
        EXPECT_EQ(played.program().frmMain.lvBStrength.count(), 0);
        fs::remove(folder / own);
    }
}

TEST_F(ALinkInPlaceOfAnOwnFile, GoesWithTheSessionAndLeavesItsFile) {
    fs::create_symlink(folder / "sources/dana.bsm", folder / "app/brainstorm.tmp");
    PlayedProgram played(folder.path());
    EXPECT_EQ(played.play({start, R"({"do":"click","button":"Brainstorm"})"}), "");
    EXPECT_FALSE(fs::is_symlink(folder / "app/brainstorm.tmp"));
    EXPECT_TRUE(fs::exists(folder / "sources/dana.bsm"));
}

TEST_F(ALinkInPlaceOfAnOwnFile, IsNoneWhereAPersonNamedTheFile) {
    folder.write("precious", "of the user");
    fs::create_symlink(folder / "precious", folder / "target/saved.bsm");
    PlayedProgram played(folder.path());
    EXPECT_EQ(played.play(writerOf("BrainstormSession").before), "");
    EXPECT_EQ(played.play(writerOf("BrainstormSession").write), "");
    EXPECT_TRUE(fs::is_symlink(folder / "target/saved.bsm"));
    EXPECT_EQ(folder.read("precious"), played.disk.written);
}

}  // namespace
}  // namespace orvanta::test
