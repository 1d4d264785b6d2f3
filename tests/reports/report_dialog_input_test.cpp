#include <gtest/gtest.h>

#include <algorithm>

#include "analysis_bench.h"
#include "lookup.h"
#include "reports/report_dialog.h"
#include "saving_bench.h"

namespace orvanta::test {
namespace {

constexpr int html = 0, rtf = 1;
const std::string analyzeFilter = "All Analyze Files (*.aze)|*.aze";
const std::string rtfFilter = "All RTF Files (*.rtf)|*.rtf";
const std::string page = "app/System/report.htm";

std::string oneOpportunity() {
    return lines({"<OPPORTUNITYMAPPING>", "O1<!-SWOT-!><!-SWOT-!>Alpha", "</OPPORTUNITYMAPPING>"});
}

/// The report dialog as it comes up, on a started program with one saved analysis.
class ReportDialogInput : public testing::Test {
protected:
    ReportDialogInput() {
        bench.start();
        bench.disk.files["docs/team.aze"] = oneOpportunity();
        bench.form().lastPathAZE = "docs/My SWOT";
    }

    Json after(void (*act)(Program&, FrmReportType&)) {
        act(bench.program(), form);
        bench.play({{"do", "state"}});
        return bench.events();
    }
    Json browse() { return after(browseForAnalyzeFile); }
    Json accept(int format, const std::string& analyzeFile = "docs/team.aze") {
        form.cboFormat.setSelectedIndex(format);
        form.txtEdit.setText(analyzeFile);
        return after(acceptReport);
    }

    Texts shown() {
        Texts names;
        for (const Control* control : form.controls.all())
            if (control->isVisible()) names.push_back(control->name());
        return names;
    }
    bool isWaiting() {
        return shown() == Texts{"lblGenerating"} && !form.enabled && !form.OKButton.isEnabled();
    }
    bool takesInput() { return shown().size() == 7 && form.enabled && form.OKButton.isEnabled(); }

    Bench bench;
    FrmReportType form;
};

struct Look {
    const char *name, *text;
    char toolTip;  // A, B or none
    Bounds bounds;
};

const std::string toolTipA =
    "Choosing RTF should automatically launch MS Word or whatever your default word processor is. "
    "Otherwise choose HTML to view the report in a web browser.";
const std::string toolTipB =
    "Use the Browse button to locate the file you've previously saved in the Analyze Module.";

std::string textOf(const Control& control) {
    if (const auto* label = dynamic_cast<const Label*>(&control)) return label->caption();
    if (const auto* button = dynamic_cast<const PushButton*>(&control)) return button->caption();
    if (const auto* box = dynamic_cast<const TextBox*>(&control)) return box->text();
    return {};
}

TEST_F(ReportDialogInput, HasItsControlsWithTheirTextsToolTipsAndPlaces) {
    const std::vector<Look> looks{
        {"Label1", "Report Format", 'A', {{360}, {480}, {1410}, {195}}},
        {"cboFormat", "", 'A', {{2040}, {480}, {1695}, {315}}},
        {"Label2", "Analyze File", 'B', {{360}, {1080}, {1200}, {195}}},
        {"txtEdit", "", 'B', {{360}, {1440}, {5655}, {375}}},
        {"cmdBrowse", "Browse...", 'B', {{6120}, {1440}, {1095}, {375}}},
        {"OKButton", "OK", ' ', {{3600}, {2280}, {1215}, {375}}},
        {"CancelButton", "Cancel", ' ', {{2040}, {2280}, {1215}, {375}}},
        {"lblGenerating",
         "Generating Report.  Your report should come up shortly for review in your word processor "
         "or web browser.",
         'A',
         {{1200}, {720}, {5660}, {1520}}},
    };
    ASSERT_EQ(form.controls.all().size(), looks.size());
    for (const Look& look : looks) {
        const Control* control = driver::controlNamed(form.controls, look.name);
        ASSERT_TRUE(control) << look.name;
        EXPECT_EQ(textOf(*control), look.text);
        EXPECT_EQ(control->toolTip(), look.toolTip == 'A'   ? toolTipA
                                      : look.toolTip == 'B' ? toolTipB
                                                            : "");
        EXPECT_TRUE(control->bounds() == look.bounds) << look.name;
    }
}

TEST_F(ReportDialogInput, HasItsTitleAndSize) {
    EXPECT_EQ(form.caption, "SWOT Report");
    EXPECT_EQ(form.width.value, 7590);
    EXPECT_EQ(form.height.value, 3030);
}

TEST_F(ReportDialogInput, BeginsWithRtfAndAnEmptyFileAndWithoutTheWaitText) {
    EXPECT_EQ(form.cboFormat.items(), (Texts{"HTML Format", "RTF Format"}));
    EXPECT_EQ(form.cboFormat.selectedIndex(), rtf);
    EXPECT_EQ(form.txtEdit.text(), "");
    EXPECT_EQ(shown(), (Texts{"Label1", "cboFormat", "Label2", "txtEdit", "cmdBrowse", "OKButton",
                              "CancelButton"}));
}

TEST_F(ReportDialogInput, BeginsAnewAtEachOpening) {
    const Json steps =
        Json::array({{{"format", html}}, {{"text", "docs/team.aze"}}, {{"press", "ok"}}});
    bench.play({{"answer", "frmReportType"}, {"steps", steps}});
    bench.click("Report");
    EXPECT_EQ(bench.events("open").size(), 1u);
    bench.play({{"answer", "frmReportType"}, {"steps", Json::array({{{"press", "ok"}}})}});
    bench.click("Report");
    EXPECT_EQ(bench.messages(), Texts{"File does not exists."});
}

TEST_F(ReportDialogInput, ShrinksByAFifthOnADisplayWithLargeFonts) {
    shrinkForLargeFonts(form, 12);
    EXPECT_DOUBLE_EQ(form.width.value, 6072);
    EXPECT_DOUBLE_EQ(form.height.value, 2424);
    const Bounds& browse = form.cmdBrowse.bounds();
    EXPECT_DOUBLE_EQ(browse.left.value, 4896);
    EXPECT_DOUBLE_EQ(browse.top.value, 1152);
    EXPECT_DOUBLE_EQ(browse.width.value, 876);
    EXPECT_DOUBLE_EQ(browse.height.value, 300);
    EXPECT_EQ(form.lblGenerating.fontSize().value, 10);
    EXPECT_EQ(form.OKButton.fontSize().value, 7);
}

TEST_F(ReportDialogInput, KeepsTheHeightOfTheDropDownListOnADisplayWithLargeFonts) {
    shrinkForLargeFonts(form, 12);
    EXPECT_DOUBLE_EQ(form.cboFormat.bounds().height.value, 315);
    EXPECT_DOUBLE_EQ(form.cboFormat.bounds().width.value, 1356);
    EXPECT_EQ(form.cboFormat.fontSize().value, 7);
}

TEST_F(ReportDialogInput, KeepsItsSizeOnAnOrdinaryDisplayAndOnOneWithSmallFonts) {
    shrinkForLargeFonts(form, 15);
    shrinkForLargeFonts(form, 20);
    EXPECT_EQ(form.width.value, 7590);
    EXPECT_EQ(form.cmdBrowse.bounds().left.value, 6120);
    EXPECT_EQ(form.lblGenerating.fontSize().value, 12);
}

TEST_F(ReportDialogInput, BrowsesFromTheLastPathAndRemembersTheWholeName) {
    bench.answerFile("docs/team.aze");
    EXPECT_EQ(browse(),
              Json::array({fileDialog("open", analyzeFilter, "docs/My SWOT", "docs/team.aze"),
                           setting("LastSavedPathAZE", "docs/team.aze")}));
    EXPECT_EQ(form.txtEdit.text(), "docs/team.aze");
    EXPECT_EQ(bench.form().lastPathAZE, "docs/team.aze");
}

TEST_F(ReportDialogInput, ChangesNothingWhenBrowsingIsCancelled) {
    form.txtEdit.setText("typed");
    EXPECT_EQ(browse(), Json::array({fileDialog("open", analyzeFilter, "docs/My SWOT", nullptr)}));
    EXPECT_EQ(form.txtEdit.text(), "typed");
    EXPECT_EQ(bench.form().lastPathAZE, "docs/My SWOT");
}

TEST_F(ReportDialogInput, TakesATypedFileWithoutRememberingIt) {
    EXPECT_EQ(accept(html), Json::array({{{"event", "open"}, {"target", page}}}));
    EXPECT_EQ(bench.form().lastPathAZE, "docs/My SWOT");
}

class MissingAnalysis : public ReportDialogInput,
                        public testing::WithParamInterface<std::tuple<int, std::string>> {};
INSTANTIATE_TEST_SUITE_P(OfEitherFormat, MissingAnalysis,
                         testing::Combine(testing::Values(html, rtf),
                                          testing::Values("", "docs/gone.aze", "docs/My SWOT")));

TEST_P(MissingAnalysis, IsToldBeforeAnythingElseAndTheDialogStays) {
    const auto [format, path] = GetParam();
    EXPECT_EQ(accept(format, path), Json::array({refusal("File does not exists.")}));
    EXPECT_TRUE(takesInput());
    EXPECT_TRUE(form.open);
    EXPECT_EQ(form.txtEdit.text(), path);
}

TEST_F(ReportDialogInput, LooksForTheWrittenTargetOnceItHasClosed) {
    form.closed.subscribe([&] { bench.disk.files.erase("docs/team.rtf"); });
    bench.answerFile("docs/team.rtf");
    EXPECT_EQ(accept(rtf), Json::array({fileDialog("save", rtfFilter, "", "docs/team.rtf"),
                                        setting("LastSavedPathRTF", "docs/team.rtf")}));
}

TEST_F(ReportDialogInput, DoesNotReadTheLastTargetBackInTheNextRun) {
    bench.answerFile("docs/team.rtf");
    accept(rtf);
    bench.restart();
    EXPECT_EQ(bench.form().lastPathRTF, "");
    EXPECT_EQ(accept(rtf), Json::array({fileDialog("save", rtfFilter, "", nullptr)}));
}

TEST_F(ReportDialogInput, ReadsTheLastAnalysisBackInTheNextRun) {
    bench.answerFile("docs/team.aze");
    browse();
    bench.restart();
    EXPECT_EQ(bench.form().lastPathAZE, "docs/team.aze");
}

TEST_F(ReportDialogInput, StaysOpenWhenTheTargetIsCancelled) {
    EXPECT_EQ(accept(rtf), Json::array({fileDialog("save", rtfFilter, "", nullptr)}));
    EXPECT_TRUE(takesInput());
    EXPECT_TRUE(form.open);
}

TEST_F(ReportDialogInput, ShowsTheWaitTextAloneWhileAReportIsMade) {
    std::vector<bool> waiting;
    form.OKButton.changed.subscribe([&] { waiting.push_back(isWaiting()); });
    accept(html);
    ASSERT_FALSE(waiting.empty());
    EXPECT_TRUE(std::ranges::find(waiting, true) != waiting.end());
}

TEST_F(ReportDialogInput, SwitchesOkOnAgainBeforeItCloses) {
    bool enabled = false;
    form.closed.subscribe([&] { enabled = form.OKButton.isEnabled(); });
    accept(html);
    EXPECT_TRUE(enabled);
    EXPECT_FALSE(form.open);
}

TEST_F(ReportDialogInput, GoesOnWaitingWithoutAWordWhereTheWebPageCanNotBeWritten) {
    bench.disk.unwritable.emplace(page, ErrorNumber::PermissionDenied);
    EXPECT_EQ(accept(html), Json::array());
    EXPECT_TRUE(isWaiting());
    EXPECT_TRUE(form.open);
}

TEST_F(ReportDialogInput, GoesOnWaitingWithoutAWordWhereTheAnalysisCanNotBeRead) {
    bench.disk.unreadable.emplace("docs/team.aze", ErrorNumber::PermissionDenied);
    EXPECT_EQ(accept(html), Json::array());
    EXPECT_TRUE(isWaiting());
}

TEST_F(ReportDialogInput, GoesOnWaitingWithoutAWordWhereThereAreTooManyGroupsToNumber) {
    Texts file{"<OPPORTUNITYMAPPING>"};
    file.resize(32'769, "O1<!-SWOT-!><!-SWOT-!>Alpha");
    bench.disk.files["docs/team.aze"] = lines(file);
    EXPECT_EQ(accept(html), Json::array());
    EXPECT_TRUE(isWaiting());
    EXPECT_TRUE(form.open);
}

TEST_F(ReportDialogInput, JustClosesOnCancel) {
    form.txtEdit.setText("docs/team.aze");
    form.close();
    bench.play({{"do", "state"}});
    EXPECT_FALSE(form.open);
    EXPECT_EQ(bench.events(), Json::array());
    EXPECT_FALSE(bench.disk.files.contains(page));
}

TEST_F(ReportDialogInput, ReportsTheSavedFileAndNotTheSessionInMemory) {
    bench.openBrainstorm();
    bench.enter("txtStrength", {"Not saved"});
    accept(html);
    EXPECT_NE(bench.disk.files[page].find("Alpha"), std::string::npos);
    EXPECT_EQ(bench.disk.files[page].find("Not saved"), std::string::npos);
}

}  // namespace
}  // namespace orvanta::test
