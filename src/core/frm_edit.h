#pragma once

#include "core/session.h"
#include "core/session_state.h"
#include "view/modal_form.h"

namespace orvanta {

/// Rewords one statement, of either session. The dialog itself writes the new text into the
/// selected row of the list that fromControl names; who shows it learns the outcome from the row.
struct FrmEdit : ModalForm {
    FrmEdit();

    ControlSet controls;
    std::string caption = "Edit Statement";
    Twips width{7590}, height{2445};
    Label Label1{controls, "Label1", "Edit Statement"};
    TextBox txtEdit{controls, "txtEdit", 255};
    SkinnedButton btnCancel{controls, "Cancel"};
    SkinnedButton btnOk{controls, "Ok"};
    std::string fromControl;  // "BS" to "AT": session and statement kind
};

/// Fits the layout to a display with large fonts; any other leaves it as designed.
void shrinkForLargeFonts(FrmEdit& form, double twipsPerPixel);

/// Shows a text of a list for rewording and waits until the dialog has closed.
void showEditDialog(Program& program, Session session, StatementKind kind, const std::string& text);

}  // namespace orvanta
