#include "presentation/edit_dialog.h"

#include "core/kind_controls.h"
#include "core/messages.h"
#include "core/text.h"

namespace orvanta {

namespace {

/// A code that names no list stores nothing.
void store(FrmMain& form, std::string_view code, const std::string& text) {
    for (const Session session : allOf<Session>)
        for (const StatementKind kind : statementKinds) {
            const SessionControls& controls = sessionControls[session];
            if (code != std::string{controls.letter, letterOf(kind)}) continue;
            StatementList& list = listOf(form, session, kind);
            list.setText(list.selected(), text);  // as typed, blanks at its ends included
            form.*controls.editFlag = true;       // also when the text is the same
        }
}

}  // namespace

void commitEdit(Program& program, FrmEdit& form) {
    const std::string& text = form.txtEdit.text();
    if (trimBlanks(text).empty()) {
        refuse(program.platform.messages, "Blank answer not allowed.");
        form.txtEdit.giveFocus();
        return;
    }
    store(program.frmMain, form.fromControl, text);
    form.close();
}

void pressEditButton(Program& program, SkinnedButton& button) {
    button.image.setArt(program.frmMain.imgBtnSDown.art());
}

void releaseEditOk(Program& program, FrmEdit& form) {
    form.btnOk.image.setArt(program.frmMain.imgBtnSNormal.art());
    commitEdit(program, form);
}

void releaseEditCancel(Program& program, FrmEdit& form) {
    form.btnCancel.image.setArt(program.frmMain.imgBtnSNormal.art());
    form.close();
}

}  // namespace orvanta
