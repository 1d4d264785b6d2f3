#include <array>

#include "memory_limit.h"
#include "played_program.h"
#include "questions/bank_reader.h"
#include "real_disk.h"
#include "reports/report_source.h"
#include "sessionfiles/analyze_file.h"
#include "sessionfiles/brainstorm_file.h"

namespace orvanta::test {
namespace {

const std::string file = "/analyzequestions.txt";  // the one name that a reader asks for itself

/// One of the ways in which the program reads a file: it begins with a line or two and goes on
/// with the same line.
struct Reader {
    std::string name;
    Texts begin;
    std::string line;
    void (*read)(Program& program, const std::string& folder);
};
std::ostream& operator<<(std::ostream& out, const Reader& reader) { return out << reader.name; }

const std::vector<Reader> readers{
    {"BrainstormFile",
     {"<STRENGTH>"},
     "Own fleet",
     [](Program& program, const std::string& folder) {
         loadBrainstormData(program, folder + file, "BS", false);
     }},
    {"SourceOfAnAnalysis",
     {"<STRENGTH>"},
     "Own fleet",
     [](Program& program, const std::string& folder) {
         loadBrainstormData(program, folder + file, "AZ", false);
     }},
    {"AnalyzeFile",
     {"<OPPORTUNITYMAPPING>"},
     "<!-SWOT-!><!-SWOT-!>Own fleet",
     [](Program& program, const std::string& folder) {
         loadAnalyzeData(program, folder + file, false);
     }},
    {"SourceOfAReport",
     {"<STRENGTH>"},
     "S1<!-SWOT-!><!-SWOT-!>Own fleet",
     [](Program& program, const std::string& folder) {
         ReportLists lists;
         readReportSource(program.platform.disk.read(folder + file), ReportScope::Everything,
                          lists);
     }},
    {"QuestionBank",
     {"<STRENGTH>", "<QUESTION>"},
     "Is it so",
     [](Program& program, const std::string& folder) {
         QuestionBanks banks;
         loadQuestionBank(program.platform.disk, folder + file, banks);
     }},
    {"AnalyzeHeadings",
     {"<QUESTION>"},
     "Is it so",
     [](Program& program, const std::string& folder) {
         std::array<std::string, 7> headings;
         readAnalyzeHeadings(program.platform.disk, folder, headings);
     }},
};

class ShortMemory : public testing::Test {
protected:
    ShortMemory() { layOut(folder); }

    void writeLong(const std::string& name, Texts content, const std::string& line) const {
        content.insert(content.end(), 2000, line);
        folder.write(name, lines(content));
    }

    TemporaryFolder folder{memoryFolder()};
};

class ShortMemoryFor : public ShortMemory, public testing::WithParamInterface<Reader> {};

TEST_P(ShortMemoryFor, EndsItsReadingWithAFailureAndNothingMore) {
    writeLong(file, GetParam().begin, GetParam().line);
    int failures = 0;
    for (std::size_t limit = 1024;; limit += limit / 2) {
        PlayedProgram played(folder.path());
        Program& program = played.program();
        const MemoryLimit memory(limit);
        const int error = failureOf([&] { GetParam().read(program, folder.path()); });
        if (error == noError) break;
        ASSERT_EQ(error, pathFileAccess) << "with " << limit << " bytes";
        ++failures;
    }
    EXPECT_GT(failures, 5);
}

INSTANTIATE_TEST_SUITE_P(The, ShortMemoryFor, testing::ValuesIn(readers),
                         [](const auto& made) { return made.param.name; });

TEST_F(ShortMemory, EndsAMergeWithAMessage) {
    writeLong("sources/dana.bsm", {"<STRENGTH>"}, "Own fleet");
    folder.write("target/merged.bsm", "former");
    const Writer& merge = writerOf("MergedFile");
    PlayedProgram played(folder.path());
    ASSERT_EQ(played.play({R"({"do":"start"})"}), "");
    played.program().frmMain.lstFiles.add(folder / "sources/dana.bsm");
    {
        const MemoryLimit memory(40'000);
        ASSERT_EQ(played.play(merge.write), "");
    }
    ASSERT_EQ(played.messages.back(), "[75] Path/File access error");
    EXPECT_EQ(folder.read("target/merged.bsm"), "former");
    ASSERT_EQ(played.play(merge.write), "");
    EXPECT_EQ(played.messages.back(), "Brainstorm files merged.");
}

}  // namespace
}  // namespace orvanta::test
