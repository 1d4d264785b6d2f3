#pragma once

#include "core/session_state.h"

namespace orvanta {

/// Rewords one statement. The dialog itself writes the new text into the selected row of the
/// list that fromControl names; who shows it learns the outcome from the row.
struct FrmEdit {
    FrmEdit();

    ControlSet controls;
    std::string caption = "Edit Statement";
    Twips width{7590}, height{2445};
    Label Label1{controls, "Label1", "Edit Statement"};
    TextBox txtEdit{controls, "txtEdit", 255};
    SkinnedButton btnCancel{controls, "Cancel"};
    SkinnedButton btnOk{controls, "Ok"};
    std::string fromControl;  // "BS" to "AT": module and statement kind
    bool open = true;
    Notice closed;
};

/// Fits the layout to a display with large fonts; any other leaves it as designed.
void shrinkForLargeFonts(FrmEdit& form, double twipsPerPixel);

/// Shows the text of the list's selected row for rewording and waits until the dialog has
/// closed.
void showEditDialog(Program& program, const std::string& fromControl, const std::string& text);

/// The OK button and the Enter key: refuses a blank text, else stores it and closes.
void commitEdit(Program& program, FrmEdit& form);

/// The Cancel button and the close box: closes and stores nothing.
void cancelEdit(FrmEdit& form);

// The two buttons are pressed and released like those of the main window.
void pressEditButton(Program& program, SkinnedButton& button);
void releaseEditOk(Program& program, FrmEdit& form);
void releaseEditCancel(Program& program, FrmEdit& form);

}  // namespace orvanta
