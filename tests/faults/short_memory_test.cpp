#include <array>

#include "memory_limit.h"
#include "played_program.h"
#include "questions/bank_reader.h"
#include "real_disk.h"
#include "reports/report_source.h"
#include "reports/word_processor.h"
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

/// One of the ways in which the program writes a file, and the last that a person is told where
/// there is too little memory; empty for nothing.
struct ShortWriter {
    std::string name, told;
};
std::ostream& operator<<(std::ostream& out, const ShortWriter& writer) {
    return out << writer.name;
}

const std::vector<ShortWriter> shortWriters{
    {"BrainstormSession", "Your brainstorming session completed."},
    {"Analysis", "Your analyze session completed."},
    {"CopyOfTheBrainstormSession", ""},
    {"CopyOfTheAnalysis", ""},
    {"MergedFile", "[75] Path/File access error"},
    {"WebPage", ""},
    {"Document", "Do you want to overwrite the file?"},
};

constexpr std::size_t enoughForAMessage = 40'000;

/// The program with sessions and files of many rows, about to write one of them.
class LongWork : public PlayedProgram {
public:
    LongWork(const TemporaryFolder& folder, const Texts& before) : PlayedProgram(folder.path()) {
        for (const char* copy : {"app/brainstorm.tmp", "app/analyze.tmp"})
            std::filesystem::remove(folder / copy);  // another one's, which would come back
        EXPECT_EQ(play(before), "");
        FrmMain& form = program().frmMain;
        for (int i = 100; i < 2100; ++i)
            for (StatementList* list : {&form.lvBStrength, &form.lvAStrength})
                list->add({.key = "K" + std::to_string(i), .text = "Own fleet and crew"});
        if (form.lstFiles.items().empty()) form.lstFiles.add(folder / "sources/dana.bsm");
        messages.clear();
    }
    std::string playWith(std::size_t bytes, const Texts& lines) {
        const MemoryLimit memory(bytes);
        return play(lines);
    }
    int rows() {
        const FrmMain& form = program().frmMain;
        return form.lvBStrength.count() + form.lvAStrength.count();
    }
};

class ShortMemoryToWrite : public ShortMemory, public testing::WithParamInterface<ShortWriter> {
protected:
    ShortMemoryToWrite() {
        writeLong("sources/dana.bsm", {"<STRENGTH>"}, "Own fleet");
        Texts mapped{"<OPPORTUNITYMAPPING>", "O1<!-SWOT-!><!-SWOT-!>Export"};
        for (int i = 0; i < 200; ++i)
            mapped.push_back("O1-S" + std::to_string(i) + "<!-SWOT-!><!-SWOT-!>Own fleet");
        folder.write("sources/team.aze", lines(mapped));
    }
    std::string written() const { return folder.read(writer.folder + "/" + writer.file); }
    /// What is written where there is memory enough.
    std::string whole() const {
        LongWork work(folder, writer.before);
        EXPECT_EQ(work.play(writer.write), "");
        return written();
    }
    /// A report is written as far as it got.
    static bool isWholeByItself(const std::string& report) {
        return report.starts_with("<table") || (report.starts_with("{") && report.ends_with("}"));
    }

    const Writer& writer = writerOf(GetParam().name);
};

TEST_P(ShortMemoryToWrite, LeavesTheFormerFileAndTheSessionAndTheProgramGoesOn) {
    const std::string expected = whole();
    int failures = 0;
    for (std::size_t limit = enoughForAMessage;; limit += limit / 2) {
        LongWork work(folder, writer.before);
        folder.write(writer.folder + "/" + writer.file, "former");
        const int rows = work.rows();
        ASSERT_EQ(work.playWith(limit, writer.write), "") << "with " << limit << " bytes";
        ASSERT_EQ(work.rows(), rows);
        ASSERT_EQ(work.play({R"({"do":"state"})"}), "");
        if (written() == expected) break;
        ASSERT_TRUE(written() == "former" || isWholeByItself(written()))
            << "with " << limit << " bytes: " << written().substr(0, 1000);
        ASSERT_EQ(work.messages.empty() ? "" : work.messages.back(), GetParam().told);
        ++failures;
    }
    EXPECT_GT(failures, 0);
}

INSTANTIATE_TEST_SUITE_P(The, ShortMemoryToWrite, testing::ValuesIn(shortWriters),
                         [](const auto& made) { return made.param.name; });

/// Those that stay on screen when they have written.
class ShortMemoryForAWhile : public ShortMemoryToWrite {};

TEST_P(ShortMemoryForAWhile, LetsTheSameStepWriteAllOfItThen) {
    const std::string expected = whole();
    LongWork work(folder, writer.before);
    folder.write(writer.folder + "/" + writer.file, "former");
    ASSERT_EQ(work.playWith(enoughForAMessage, writer.write), "");
    ASSERT_FALSE(written() == expected);
    ASSERT_EQ(work.play(writer.write), "");
    EXPECT_TRUE(written() == expected) << written().substr(0, 1000);
}

INSTANTIATE_TEST_SUITE_P(The, ShortMemoryForAWhile,
                         testing::ValuesIn(shortWriters.begin() + 2, shortWriters.end()),
                         [](const auto& made) { return made.param.name; });

TEST_F(ShortMemory, IsToldOnceOfACopyThatIsNotThere) {
    for (const char* copy : {"CopyOfTheBrainstormSession", "CopyOfTheAnalysis"}) {
        const Writer& writer = writerOf(copy);
        LongWork work(folder, writer.before);
        for (int tick = 0; tick < 2; ++tick)
            ASSERT_EQ(work.playWith(enoughForAMessage, writer.write), "");
        EXPECT_EQ(work.messages, Texts{"Warning! Could not create autosave file. "
                                       "Auto Save feature is disabled."});
        EXPECT_FALSE(std::filesystem::exists(folder / (writer.folder + "/" + writer.file)));
    }
}

TEST_F(ShortMemory, EndsAConsolidationWithAMessageOnTheSourceFiles) {
    writeLong("sources/dana.bsm", {"<STRENGTH>"}, "Own fleet");
    const Texts next{R"({"do":"click","button":"ANext"})"};
    int failures = 0;
    for (std::size_t limit = 2048;; limit += limit / 2) {
        PlayedProgram played(folder.path());
        FrmMain& form = played.program().frmMain;
        ASSERT_EQ(played.play({R"({"do":"start"})", R"({"do":"click","button":"Analyze"})"}), "");
        form.lstFiles.add(folder / "sources/dana.bsm");
        {
            const RequestLimit memory(limit);
            ASSERT_EQ(played.play(next), "") << "with " << limit << " bytes at once";
        }
        if (form.fraASSummary.isVisible()) break;
        EXPECT_EQ(played.messages, Texts{"[75] Path/File access error"});
        EXPECT_EQ(form.lstFiles.items().size(), 1u);
        ASSERT_EQ(played.play(next), "");
        for (const StatementList* list :
             {&form.lvAStrength, &form.lvStrengthOp, &form.lvStrengthTh})
            EXPECT_EQ(list->count(), 2000) << list->name();
        EXPECT_TRUE(form.fraASSummary.isVisible());
        ++failures;
    }
    EXPECT_GT(failures, 3);
}

/// Notes whether a row that was announced came.
struct Announced : StatementListObserver {
    int open = 0;
    void rowAboutToBeInserted(int) override { ++open; }
    void rowInserted(int) override { --open; }
};

TEST_F(ShortMemory, LeavesNothingOfAValueForTheWordProcessorThatItHasNoRoomFor) {
    const WordArguments arguments{std::string(100, 't')};
    alignas(WordValue) std::array<std::byte, sizeof(WordValue)> place;
    for (const unsigned char former : {0x00, 0x01, 0x7F, 0xA5, 0xFF}) {
        place.fill(std::byte{former});
        const MemoryLimit memory(0);
        EXPECT_THROW(new (place.data()) WordValue(arguments.front()), std::bad_alloc);
    }
}

TEST_F(ShortMemory, LeavesAListWithoutTheRowThatItHasNoRoomFor) {
    PlayedProgram played(folder.path());
    StatementList& list = played.program().frmMain.lvBStrength;
    Announced announced;
    list.watch(announced);
    int failures = 0;
    for (int i = 1; i <= 300; ++i) {
        const Row row{
            .key = "a key that is too long to stand in its row, number " + std::to_string(i),
            .text = "text"};
        const auto add = [&](Row added) { list.insert(1, std::move(added)); };
        for (std::size_t limit = 0; list.count() < i; limit += 16) {
            Row copy = row;
            try {
                const MemoryLimit memory(limit);
                add(std::move(copy));
            } catch (const std::bad_alloc&) {
                ++failures;
                ASSERT_EQ(list.count(), i - 1);
                ASSERT_EQ(list.positionOf(row.key), 0);
            }
            ASSERT_EQ(announced.open, 0);
        }
        ASSERT_EQ(list.positionOf(row.key), 1);
    }
    EXPECT_GT(failures, 300);
}

}  // namespace
}  // namespace orvanta::test
