#include "presentation/edit_dialog.h"

#include "core/design_grid.h"
#include "core/display_scaling.h"
#include "core/kind_controls.h"
#include "core/messages.h"
#include "core/text.h"

namespace orvanta {

namespace {

void storeIn(StatementList& list, bool& flag, const std::string& text) {
    list.setText(list.selected(), text);  // as typed, blanks at its ends included
    flag = true;                          // also when the text is the same
}

/// A code that names no list stores nothing.
void store(FrmMain& form, std::string_view code, const std::string& text) {
    if (code.size() != 2) return;
    for (const KindControls& controls : kindControls) {
        if (code[1] != letterOf(controls.kind)) continue;
        if (code[0] == 'B') storeIn(form.*controls.brainstormList, form.editFlag, text);
        if (code[0] == 'A') storeIn(form.*controls.analyzeList, form.editAFlag, text);
    }
}

/// The caption lies in the middle of the picture.
void placeButton(SkinnedButton& button, double left, const Bounds& caption,
                 const std::string& text) {
    button.image.setBounds(grid(left, 104, 88, 32));
    button.image.setArt(Art::SmallNormal);
    button.label.setBounds(caption);
    button.label.setCaption(text);
    button.label.setFontSize({9.75});
    button.label.setBold(true);
}

}  // namespace

FrmEdit::FrmEdit() {
    Label1.setBounds({{240}, {360}, {1455}, {210}});
    Label1.setBold(true);
    txtEdit.setBounds({{240}, {720}, {7095}, {375}});
    txtEdit.setAccessibleName(Label1.caption());
    placeButton(btnCancel, 140, {{2400}, {1680}, {735}, {240}}, "Cancel");
    placeButton(btnOk, 278, {{4680}, {1680}, {300}, {240}}, "OK");
}

void shrinkForLargeFonts(FrmEdit& form, double twipsPerPixel) {
    const double delta = layoutDelta(twipsPerPixel);
    if (delta == 0) return;
    form.width = reduced(form.width, delta);  // the height stays, unlike the report dialog's
    for (Control* control : form.controls.all()) {
        reduceBounds(*control, delta);
        lowerFont<Label>(*control, 2);
    }
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
