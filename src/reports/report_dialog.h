#pragma once

#include "core/session_state.h"
#include "view/modal_form.h"

namespace orvanta {

/// Turns a saved analyze file into a report.
struct FrmReportType : ModalForm {
    FrmReportType();

    ControlSet controls;
    std::string caption = "SWOT Report";
    Twips width{7590}, height{3030};
    Label Label1{controls, "Label1", "Report Format"};
    ComboBox cboFormat{controls, "cboFormat"};
    Label Label2{controls, "Label2", "Analyze File"};
    TextBox txtEdit{controls, "txtEdit"};
    PushButton cmdBrowse{controls, "cmdBrowse", "Browse..."};
    PushButton OKButton{controls, "OKButton", "OK"};
    PushButton CancelButton{controls, "CancelButton", "Cancel"};
    Label lblGenerating{controls, "lblGenerating",
                        "Generating Report.  Your report should come up shortly for review in "
                        "your word processor or web browser."};
    bool enabled = true;
    Notice enabledChanged;
};

/// Fits the layout to a display with large fonts; any other leaves it as designed.
void shrinkForLargeFonts(FrmReportType& form, double twipsPerPixel);

/// The Reports button: stops the narration, shows the dialog and waits until it has closed.
void openReportDialog(Program& program);

// What a person does in the dialog.
void browseForAnalyzeFile(Program& program, FrmReportType& form);
/// Makes the report and closes. Refusals leave the dialog as it was; any other failure leaves
/// it in its waiting state.
void acceptReport(Program& program, FrmReportType& form);

}  // namespace orvanta
