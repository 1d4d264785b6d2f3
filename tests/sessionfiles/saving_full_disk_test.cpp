#include <gtest/gtest.h>

#include <cstdint>
#include <limits>

#include "analysis_bench.h"
#include "failing_disk.h"
#include "reports/report_dialog.h"
#include "saving_bench.h"
#include "sessionfiles/analyze_file.h"
#include "sessionfiles/brainstorm_file.h"
#include "sessionfiles/merging.h"
#include "sessionfiles/saving.h"
#include "temporary_folder.h"

namespace orvanta::test {
namespace {

class SaveOnAFullDisk;

/// One of the ways in which the program writes a file.
struct Save {
    std::string name;
    std::string target;  // in the folder of the test
    enum { NamedSession, SessionCopy, NamedDocument, WebPage } sort;
    void (*perform)(SaveOnAFullDisk& test);
};

std::ostream& operator<<(std::ostream& out, const Save& save) { return out << save.name; }

/// What the program told of saves that failed.
struct ToldFailures : FailedSaves {
    std::vector<std::string> paths, bytes;  // no bytes come with a document

    void sessionNotWritten(const std::string& path, std::string_view session) override {
        paths.push_back(path);
        bytes.emplace_back(session);
    }
    void copyNotWritten(const std::string& path, std::string_view session) override {
        sessionNotWritten(path, session);
    }
    void analysisReplaced(std::string_view) override {}
    void documentNotWritten(const std::string& path) override { paths.push_back(path); }
};

/// A program with two sessions on the real disk, which refuses files beyond a size.
class SaveOnAFullDisk : public testing::TestWithParam<Save> {
public:
    Program& onDisk() { return program; }
    std::string path(const std::string& name) const { return folder / name; }
    void answerFile(const std::string& name) { bench.answerFile(path(name)); }
    void confirm() { bench.answerMessage("yes"); }

    void makeReport(int format) {
        FrmReportType form;
        form.cboFormat.setSelectedIndex(format);
        form.txtEdit.setText(path("team.aze"));
        acceptReport(program, form);
    }

protected:
    SaveOnAFullDisk() {
        bench.start();
        std::filesystem::create_directory(path("System"));
        folder.write("dana.bsm", brainstormFile("Dana", "MP", {"Own fleet"}, {"Slow"}, {}, {}));
        folder.write("team.aze", lines({"<MODULE>", "MP", "</MODULE>", "<STRENGTH>",
                                        "S1<!-SWOT-!>[Dana]: <!-SWOT-!>Own fleet", "</STRENGTH>"}));
        loadBrainstormData(program, path("dana.bsm"), "BS", false);
        loadAnalyzeData(program, path("team.aze"), false);
        program.frmMain.lstFiles.add(path("dana.bsm"));
        others = folder.names();
    }

    /// Performs the save with room for so many bytes in any file.
    void performWithRoomFor(std::uintmax_t room) {
        disk.room = room;
        GetParam().perform(*this);
        disk.room = std::numeric_limits<std::uintmax_t>::max();
    }
    std::string saved() const { return folder.read(GetParam().target); }

    Bench bench;
    TemporaryFolder folder;
    FailingDisk disk;
    DocumentWriter wordProcessors{disk};
    ToldFailures told;
    Platform& rest = bench.program().platform;
    Platform platform{disk,           rest.messages,   rest.fileDialogs,
                      rest.settings,  rest.shell,      rest.player,
                      rest.screen,    rest.modalForms, rest.questionPrinter,
                      wordProcessors, rest.lifetime,   rest.folders,
                      &told};
    Program program{platform, folder.path(), folder.path()};
    std::vector<std::string> others;  // what lies there before any save
};

void saveByName(SaveOnAFullDisk& test, bool (*dialog)(Program&), const std::string& target) {
    test.answerFile(target);
    test.confirm();
    dialog(test.onDisk());
}

void copyAtTick(SaveOnAFullDisk& test, bool FrmMain::*changed, Panel FrmMain::*panel) {
    FrmMain& form = test.onDisk().frmMain;
    form.editFlag = form.editAFlag = false;
    form.*changed = true;
    (form.*panel).show();
    tickAutoSave(test.onDisk());
}

const std::vector<Save> saves{
    {"BrainstormSession", "saved.bsm", Save::NamedSession,
     [](SaveOnAFullDisk& test) { saveByName(test, saveBrainstormDialog, "saved.bsm"); }},
    {"Analysis", "saved.aze", Save::NamedSession,
     [](SaveOnAFullDisk& test) { saveByName(test, saveAnalyzeDialog, "saved.aze"); }},
    {"CopyOfTheBrainstormSession", "brainstorm.tmp", Save::SessionCopy,
     [](SaveOnAFullDisk& test) { copyAtTick(test, &FrmMain::editFlag, &FrmMain::fraBrainstorm); }},
    {"CopyOfTheAnalysis", "analyze.tmp", Save::SessionCopy,
     [](SaveOnAFullDisk& test) { copyAtTick(test, &FrmMain::editAFlag, &FrmMain::fraAnalyze); }},
    {"MergedFile", "merged.bsm", Save::NamedSession,
     [](SaveOnAFullDisk& test) {
         test.answerFile("merged.bsm");
         test.confirm();
         mergeBrainstormFiles(test.onDisk());
     }},
    {"WebPage", "System/report.htm", Save::WebPage,
     [](SaveOnAFullDisk& test) { test.makeReport(0); }},
    {"Document", "team.rtf", Save::NamedDocument,
     [](SaveOnAFullDisk& test) {
         test.answerFile("team.rtf");
         test.confirm();
         test.makeReport(1);
     }},
};
INSTANTIATE_TEST_SUITE_P(Of, SaveOnAFullDisk, testing::ValuesIn(saves), NameOfParameter{});

TEST_P(SaveOnAFullDisk, LeavesTheFormerFileByteForByteUntilTheNewOneIsThereWhole) {
    performWithRoomFor(std::numeric_limits<std::uintmax_t>::max());
    const std::string whole = saved();
    ASSERT_FALSE(whole.empty());
    folder.write(GetParam().target, "former");
    const auto names = folder.names();
    for (std::uintmax_t room = 0; room < whole.size(); ++room) {
        performWithRoomFor(room);
        ASSERT_EQ(saved(), "former") << "with room for " << room << " bytes";
        ASSERT_EQ(folder.names(), names);
    }
    performWithRoomFor(whole.size());
    EXPECT_EQ(saved(), whole);
}

TEST_P(SaveOnAFullDisk, LeavesNoPieceOfAFileWhereThereWasNone) {
    performWithRoomFor(10);
    EXPECT_EQ(folder.names(), others);
    EXPECT_FALSE(std::filesystem::exists(path(GetParam().target)));
}

TEST_P(SaveOnAFullDisk, TellsOfAFileThatWasNotWrittenAndHandsOverItsSession) {
    performWithRoomFor(std::numeric_limits<std::uintmax_t>::max());
    EXPECT_TRUE(told.paths.empty());
    const std::string whole = saved();
    performWithRoomFor(10);
    const auto sort = GetParam().sort;
    EXPECT_EQ(told.paths, sort == Save::WebPage ? Texts{} : Texts{path(GetParam().target)});
    const bool isSession = sort == Save::NamedSession || sort == Save::SessionCopy;
    EXPECT_EQ(told.bytes, isSession ? Texts{whole} : Texts{});
}

}  // namespace
}  // namespace orvanta::test
