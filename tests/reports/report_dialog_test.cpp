#include "reports/report_dialog.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"
#include "report_bench.h"
#include "reports/document_writer.h"

namespace orvanta::test {

namespace {

/// Stands in front of the program's own word processor, or of none, and looks round at the
/// moment that a report begins.
class Onlooker : public WordProcessors {
public:
    explicit Onlooker(std::function<void()> look, WordProcessors* behind = nullptr)
        : m_look(std::move(look)), m_behind(behind) {}

    WordObjectPtr createApplication() override {
        m_look();
        if (!m_behind) throw Failure(ErrorNumber::CannotCreateObject);
        return m_behind->createApplication();
    }

private:
    std::function<void()> m_look;
    WordProcessors* m_behind;
};

Texts visibleControls(FrmReportType& form) {
    Texts names;
    for (const Control* control : form.controls.all())
        if (control->isVisible()) names.push_back(control->name());
    return names;
}

const Texts inputControls{"Label1",    "cboFormat", "Label2",      "txtEdit",
                          "cmdBrowse", "OKButton",  "CancelButton"};

/// The dialog with the analysis named in it and RTF chosen.
class DialogBench : public ReportBench {
public:
    DialogBench() {
        report.txtEdit.setText("docs/team.aze");
        onRepaint = [this](FrmReportType& form) { painted.push_back(visibleControls(form)); };
    }

    /// Presses OK and chooses the document's name.
    void accept(WordProcessors& wordProcessors) {
        use(wordProcessors);
        answerFile("docs/team.rtf");
        acceptReport(reporter(), report);
    }
    void accept() { accept(writer); }

    FrmReportType report;
    DocumentWriter writer{disk};
    std::vector<Texts> painted;  // the controls that each repaint showed
};

Json opened(const std::string& target) { return {{"event", "open"}, {"target", target}}; }

Json saveDialog(const std::string& initialPath, const std::string& answer) {
    return {
        {"event", "fileDialog"},      {"mode", "save"}, {"filter", "All RTF Files (*.rtf)|*.rtf"},
        {"initialPath", initialPath}, {"fileName", ""}, {"answer", answer}};
}

Json overwriteQuestion(const std::string& answer) {
    Json question = yesNoQuestion("Do you want to overwrite the file?", answer);
    question["default"] = "no";
    return question;
}

}  // namespace

TEST(ReportDialog, OffersRtfFirstAndShowsItsControls) {
    DialogBench bench;
    EXPECT_EQ(bench.report.cboFormat.selectedIndex(), 1);
    EXPECT_EQ(visibleControls(bench.report), inputControls);
    EXPECT_TRUE(bench.report.enabled);
}

TEST(ReportDialog, ShowsTheWaitTextAloneWhileADocumentIsMade) {
    DialogBench bench;
    Texts visible;
    bool enabled = true, buttonEnabled = true;
    Onlooker onlooker(
        [&] {
            visible = visibleControls(bench.report);
            enabled = bench.report.enabled;
            buttonEnabled = bench.report.OKButton.isEnabled();
        },
        &bench.writer);
    bench.accept(onlooker);
    EXPECT_EQ(visible, (Texts{"lblGenerating"}));
    EXPECT_FALSE(enabled || buttonEnabled);
}

TEST(ReportDialog, HasPaintedTheWaitTextAndPutOnTheWaitCursorBeforeADocumentIsBegun) {
    DialogBench bench;
    std::vector<Texts> painted;
    std::vector<bool> cursor;
    Onlooker onlooker(
        [&] {
            painted = bench.painted;
            cursor = bench.waitCursor;
        },
        &bench.writer);
    bench.accept(onlooker);
    EXPECT_EQ(painted, (std::vector<Texts>{{"lblGenerating"}}));
    EXPECT_EQ(cursor, (std::vector{true}));
    EXPECT_EQ(bench.waitCursor, (std::vector{true, false}));
}

TEST(ReportDialog, ClosesBehindADocumentAndOpensIt) {
    DialogBench bench;
    bench.accept();
    EXPECT_FALSE(bench.report.open);
    EXPECT_TRUE(bench.report.OKButton.isEnabled());
    const Json happened = bench.happened();
    EXPECT_EQ(happened,
              Json::array({saveDialog("", "docs/team.rtf"),
                           setting("LastSavedPathRTF", "docs/team.rtf"), opened("docs/team.rtf")}));
}

TEST(ReportDialog, AsksBeforeADocumentReplacesAFile) {
    DialogBench bench;
    bench.disk.files["docs/team.rtf"] = "old";
    bench.answerMessage("yes");
    bench.accept();
    EXPECT_EQ(bench.happened(),
              Json::array({saveDialog("", "docs/team.rtf"), overwriteQuestion("yes"),
                           setting("LastSavedPathRTF", "docs/team.rtf"), opened("docs/team.rtf")}));
    EXPECT_TRUE(bench.disk.files["docs/team.rtf"].starts_with("{\\rtf1"));
}

TEST(ReportDialog, StaysAsItWasWhenAFileIsNotToBeReplaced) {
    DialogBench bench;
    bench.disk.files["docs/team.rtf"] = "old";
    bench.answerMessage("no");
    bench.accept();
    EXPECT_EQ(bench.happened(),
              Json::array({saveDialog("", "docs/team.rtf"), overwriteQuestion("no")}));
    EXPECT_EQ(bench.disk.files["docs/team.rtf"], "old");
    EXPECT_EQ(bench.reporter().frmMain.lastPathRTF, "");
    EXPECT_TRUE(bench.report.open && bench.report.enabled);
    EXPECT_EQ(visibleControls(bench.report), inputControls);
}

TEST(ReportDialog, OpensTheOldFileWhereThereIsNoWordProcessor) {
    DialogBench bench;
    bench.disk.files["docs/team.rtf"] = "old";
    bench.answerMessage("yes");
    Onlooker none([] {});
    bench.accept(none);
    EXPECT_EQ(bench.happened().back(), opened("docs/team.rtf"));
    EXPECT_EQ(bench.disk.files["docs/team.rtf"], "old");
}

TEST(ReportDialog, ClosesInSilenceWhereNoDocumentCameAbout) {
    DialogBench bench;
    bench.disk.unwritable.insert({"docs/team.rtf", ErrorNumber::PermissionDenied});
    bench.accept();
    EXPECT_FALSE(bench.report.open);
    EXPECT_EQ(bench.happened(), Json::array({saveDialog("", "docs/team.rtf"),
                                             setting("LastSavedPathRTF", "docs/team.rtf")}));
}

TEST(ReportDialog, TellsOfAMissingAnalysisBeforeItAsksForATarget) {
    DialogBench bench;
    bench.report.txtEdit.setText("docs/gone.aze");
    bench.accept();
    EXPECT_EQ(bench.happened(), Json::array({refusal("File does not exists.")}));
    EXPECT_TRUE(bench.report.open);
}

TEST(ReportDialog, AnAnalysisThatGoesWhileTheTargetIsChosenIsToldAndOpensNothing) {
    DialogBench bench;
    bench.onRepaint = [&](FrmReportType&) { bench.disk.files.erase("docs/team.aze"); };
    bench.accept();
    EXPECT_EQ(bench.happened(), Json::array({saveDialog("", "docs/team.rtf"),
                                             setting("LastSavedPathRTF", "docs/team.rtf"),
                                             refusal("File does not exists.")}));
    EXPECT_FALSE(bench.report.open);
    EXPECT_TRUE(bench.waitCursor.empty());
}

TEST(ReportDialog, BeginsAtTheLastDocumentOfThisRun) {
    DialogBench bench;
    bench.accept();
    bench.happened();
    bench.report.open = true;
    bench.answerMessage("yes");
    bench.accept();
    EXPECT_EQ(bench.happened().front(), saveDialog("docs/team.rtf", "docs/team.rtf"));
}

}  // namespace orvanta::test
