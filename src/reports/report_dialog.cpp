#include "reports/report_dialog.h"

#include <cassert>

#include "core/constants.h"
#include "core/display_scaling.h"
#include "core/failures.h"
#include "core/files.h"
#include "core/messages.h"
#include "core/remembered_paths.h"
#include "questions/narration.h"
#include "reports/html_report.h"
#include "reports/word_report.h"

namespace orvanta {

namespace {

constexpr int htmlFormat = 0, rtfFormat = 1;

constexpr std::string_view formatToolTip =
    "Choosing RTF should automatically launch MS Word or whatever your default word processor is. "
    "Otherwise choose HTML to view the report in a web browser.";
constexpr std::string_view fileToolTip =
    "Use the Browse button to locate the file you've previously saved in the Analyze Module.";

void showGenerating(FrmReportType& form, bool generating) {
    for (Control* control : form.controls.all())
        control->setVisible((control == &form.lblGenerating) == generating);
}

/// True if a target was chosen and may be written.
bool choosesTarget(Program& program) {
    FrmMain& main = program.frmMain;
    const std::string target = main.cd.askToSave("All RTF Files (*.rtf)|*.rtf", main.lastPathRTF);
    if (fileExists(program, target) && !mayOverwrite(program.platform.messages, std::nullopt))
        return false;
    rememberPath(program, documentPath, target);
    return true;
}

void generate(Program& program, FrmReportType& form) {
    const std::string analyzeFile = form.txtEdit.text();
    if (!fileExists(program, analyzeFile))
        return refuse(program.platform.messages, missingAnalyzeFileMessage);
    assert(form.cboFormat.hasSelection());
    const bool document = form.cboFormat.selectedIndex() != htmlFormat;
    if (document && !choosesTarget(program)) return;
    showGenerating(form, true);
    form.enabled = false;
    form.enabledChanged();
    form.OKButton.setEnabled(false);
    program.platform.modalForms.repaint(form);
    const std::string& target = program.frmMain.cd.fileName;
    if (document)
        generateWordReport(program, analyzeFile, target);
    else
        generateHtmlReport(program, analyzeFile);
    form.OKButton.setEnabled(true);
    form.close();
    if (document && fileExists(program, target)) program.platform.shell.open(target);
}

}  // namespace

FrmReportType::FrmReportType() {
    Label1.setBounds({{360}, {480}, {1410}, {195}});
    cboFormat.setBounds({{2040}, {480}, {1695}, {315}});
    Label2.setBounds({{360}, {1080}, {1200}, {195}});
    txtEdit.setBounds({{360}, {1440}, {5655}, {375}});
    cmdBrowse.setBounds({{6120}, {1440}, {1095}, {375}});
    OKButton.setBounds({{3600}, {2280}, {1215}, {375}});
    CancelButton.setBounds({{2040}, {2280}, {1215}, {375}});
    lblGenerating.setBounds({{1200}, {720}, {5660}, {1520}});
    lblGenerating.setFontSize({12});
    for (Label* label : {&Label1, &Label2, &lblGenerating}) label->setBold(true);
    for (Control* control : std::initializer_list<Control*>{&Label1, &cboFormat, &lblGenerating})
        control->setToolTip(std::string(formatToolTip));
    for (Control* control : std::initializer_list<Control*>{&Label2, &txtEdit, &cmdBrowse})
        control->setToolTip(std::string(fileToolTip));
    cboFormat.setAccessibleName(Label1.caption());
    txtEdit.setAccessibleName(Label2.caption());
    showGenerating(*this, false);
    cboFormat.add("HTML Format");
    cboFormat.add("RTF Format");
    cboFormat.setSelectedIndex(rtfFormat);
}

void shrinkForLargeFonts(FrmReportType& form, double twipsPerPixel) {
    const double delta = layoutDelta(twipsPerPixel);
    if (delta == 0) return;
    form.width = reduced(form.width, delta);
    form.height = reduced(form.height, delta);
    for (Control* control : form.controls.all()) {
        reduceBounds(*control, delta,
                     control->is<ComboBox>() ? HeightRule::Keep : HeightRule::Reduce);
        lowerFont<Label, TextBox, PushButton, ComboBox>(*control, 2);
    }
}

void openReportDialog(Program& program) {
    stopNarration(program);
    FrmReportType form;
    shrinkForLargeFonts(form, program.platform.screen.twipsPerPixel());
    program.platform.modalForms.run(form);
}

void browseForAnalyzeFile(Program& program, FrmReportType& form) {
    FrmMain& main = program.frmMain;
    const BestEffort step;
    std::string path;
    if (!step([&] { path = main.cd.askToOpen(analyzeFilter, main.lastPathAZE); })) return;
    form.txtEdit.setText(path);
    rememberPath(program, analyzePath, path);
}

void acceptReport(Program& program, FrmReportType& form) {
    const BestEffort step;
    step([&] { generate(program, form); });
}

}  // namespace orvanta
