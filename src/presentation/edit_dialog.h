#pragma once

#include "core/frm_edit.h"

namespace orvanta {

/// The OK button and the Enter key: refuses a blank text, else stores it and closes.
void commitEdit(Program& program, FrmEdit& form);

// The two buttons are pressed and released like those of the main window.
void pressEditButton(Program& program, SkinnedButton& button);
void releaseEditOk(Program& program, FrmEdit& form);
void releaseEditCancel(Program& program, FrmEdit& form);

}  // namespace orvanta
