#include "core/frm_edit.h"

#include "core/design_grid.h"
#include "core/display_scaling.h"

namespace orvanta {

namespace {

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

void showEditDialog(Program& program, Session session, StatementKind kind,
                    const std::string& text) {
    FrmEdit form;
    shrinkForLargeFonts(form, program.platform.screen.twipsPerPixel());
    form.txtEdit.setText(text);
    form.fromControl = {sessionControls[session].letter, letterOf(kind)};
    program.platform.modalForms.run(form);
}

}  // namespace orvanta
