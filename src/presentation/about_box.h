#pragma once

#include "core/session_state.h"
#include "view/modal_form.h"

namespace orvanta {

struct FrmAbout : ModalForm {
    FrmAbout();

    ControlSet controls;
    std::string caption = "About Orvanta";
    Twips width{7800}, height{4650};
    Image Image1{controls, "Image1"};
    Label lblTitle{controls, "lblTitle", "ORVANTA"};
    Label lblR{controls, "lblR", "\x99"};  // the trademark sign
    Label lblVersion{controls, "lblVersion", "Version : 3.13.100"};
    Label Label1{controls, "Label1", "For Support:"};
    Label lblSupport{controls, "lblSupport"};
    Label lblDisclaimer{controls, "lblDisclaimer"};
    PushButton cmdOK{controls, "cmdOK", "OK"};
};

/// Fits the layout to a display with large fonts; any other leaves it as designed.
void shrinkForLargeFonts(FrmAbout& form, double twipsPerPixel);

void openAboutBox(Program& program);
void openSupportPage(Program& program);

}  // namespace orvanta
