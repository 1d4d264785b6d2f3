#include "presentation/edit_dialog.h"

#include "core/design_grid.h"
#include "core/display_scaling.h"
#include "core/messages.h"
#include "core/text.h"

namespace orvanta {

namespace {

struct EditedList {
    std::string_view code;
    StatementList FrmMain::*list;
    bool FrmMain::*flag;
};

constexpr std::array<EditedList, 8> editedLists{{
    {"BS", &FrmMain::lvBStrength, &FrmMain::editFlag},
    {"BW", &FrmMain::lvBWeakness, &FrmMain::editFlag},
    {"BO", &FrmMain::lvBOpportunity, &FrmMain::editFlag},
    {"BT", &FrmMain::lvBThreat, &FrmMain::editFlag},
    {"AS", &FrmMain::lvAStrength, &FrmMain::editAFlag},
    {"AW", &FrmMain::lvAWeakness, &FrmMain::editAFlag},
    {"AO", &FrmMain::lvAOpportunity, &FrmMain::editAFlag},
    {"AT", &FrmMain::lvAThreat, &FrmMain::editAFlag},
}};

void store(FrmMain& form, const std::string& code, const std::string& text) {
    for (const EditedList& edited : editedLists) {
        if (edited.code != code) continue;
        StatementList& list = form.*edited.list;
        list.setText(list.selected(), text);  // as typed, blanks at its ends included
        form.*edited.flag = true;             // also when the text is the same
        return;
    }
}

void placeButton(SkinnedButton& button, double left, const std::string& caption) {
    const Bounds bounds = grid(left, 108, 88, 32);
    button.image.setBounds(bounds);
    button.image.setArt(Art::SmallNormal);
    button.label.setBounds(bounds);
    button.label.setCaption(caption);
    button.label.fontSize = {9.75};
    button.label.bold = true;
}

}  // namespace

FrmEdit::FrmEdit() {
    Label1.setBounds({{240}, {360}, {1455}, {210}});
    Label1.bold = true;
    txtEdit.setBounds({{240}, {720}, {7095}, {375}});
    txtEdit.accessibleName = Label1.caption();
    placeButton(btnCancel, 140, "Cancel");
    placeButton(btnOk, 278, "OK");
}

void showEditDialog(Program& program, const std::string& fromControl, const std::string& text) {
    FrmEdit form;
    shrinkForLargeFonts(form, program.platform.screen.twipsPerPixel());
    form.txtEdit.setText(text);
    form.fromControl = fromControl;
    program.platform.modalForms.run(form);
}

void commitEdit(Program& program, FrmEdit& form) {
    const std::string& text = form.txtEdit.text();
    if (trimBlanks(text).empty()) {
        refuse(program.platform.messages, "Blank answer not allowed.");
        form.txtEdit.giveFocus();
        return;
    }
    store(program.frmMain, form.fromControl, text);
    cancelEdit(form);
}

void cancelEdit(FrmEdit& form) {
    if (!form.open) return;
    form.open = false;
    form.closed();
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
    cancelEdit(form);
}

}  // namespace orvanta
