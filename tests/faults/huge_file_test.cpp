#include "played_program.h"

namespace orvanta::test {
namespace {

namespace fs = std::filesystem;

/// The program where one of the files that it reads has 200 GB, of which the disk holds nothing.
class AHugeFile : public testing::Test {
protected:
    AHugeFile() { layOut(folder); }

    void inPlaceOf(const std::string& name) const {
        folder.write(name, "");
        ASSERT_EQ(::truncate((folder / name).c_str(), 200'000'000'000), 0);
    }

    TemporaryFolder folder{memoryFolder()};
    PlayedProgram played{folder.path()};
};

TEST_F(AHugeFile, DoesNotKeepTheProgramFromStarting) {
    for (const std::string name : {"app/brainstorm.tmp", "app/analyze.tmp",
                                   "app/analyzequestions.txt", "app/gbsquestions.txt"}) {
        inPlaceOf(name);
        PlayedProgram started(folder.path());
        EXPECT_EQ(started.play({start, R"({"do":"state"})"}), "") << name;
        fs::remove(folder / name);
    }
}

TEST_F(AHugeFile, IsToldOfWhereItIsToBeConsolidated) {
    inPlaceOf("sources/dana.bsm");
    EXPECT_EQ(
        played.play({start, R"({"do":"click","button":"Analyze"})",
                     R"({"answer":"fileDialog","path":"$/sources/dana.bsm"})",
                     R"({"do":"click","button":"AFAdd"})", R"({"do":"click","button":"ANext"})"}),
        "");
    EXPECT_EQ(played.messages, Texts{"[75] Path/File access error"});
}

TEST_F(AHugeFile, IsToldOfWhereItIsToBeMerged) {
    inPlaceOf("sources/dana.bsm");
    ASSERT_EQ(played.play({start}), "");
    played.program().frmMain.lstFiles.add(folder / "sources/dana.bsm");
    EXPECT_EQ(played.play(writerOf("MergedFile").write), "");
    EXPECT_EQ(played.messages, Texts{"[75] Path/File access error"});
}

TEST_F(AHugeFile, LeavesAReportWithoutItsRows) {
    inPlaceOf("sources/team.aze");
    for (const char* report : {"WebPage", "Document"}) {
        PlayedProgram reporting(folder.path());
        EXPECT_EQ(reporting.play({start}), "");
        EXPECT_EQ(reporting.play(writerOf(report).write), "") << report;
        EXPECT_TRUE(reporting.disk.written);
    }
}

}  // namespace
}  // namespace orvanta::test
