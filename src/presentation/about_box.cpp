#include "presentation/about_box.h"

#include "core/design_grid.h"
#include "core/display_scaling.h"
#include "core/web_host.h"
#include "questions/narration.h"

namespace orvanta {

FrmAbout::FrmAbout() {
    Image1.setBounds(grid(0, 0, 180, 310));
    Image1.setAccessibleName(caption);
    lblTitle.setBounds(grid(204, 24, 130, 32));
    lblTitle.setFontSize({18});
    lblTitle.setBold(true);
    lblR.setBounds(grid(335, 24, 24, 16));
    lblVersion.setBounds(grid(204, 64, 290, 20));
    Label1.setBounds(grid(204, 100, 290, 20));
    Label1.setBold(true);
    lblSupport.setBounds(grid(204, 122, 290, 20));
    lblSupport.setCaption(webAddress(supportPage));
    lblDisclaimer.setBounds(grid(204, 156, 292, 90));
    lblDisclaimer.setFontSize({8});
    lblDisclaimer.setCaption(
        "This program is free software under the MIT licence and comes with no warranty of any "
        "kind. What it shows are the statements of the people who entered them; decisions that "
        "are taken on them remain yours.");
    cmdOK.setBounds(grid(412, 262, 84, 30));
}

void shrinkForLargeFonts(FrmAbout& form, double twipsPerPixel) {
    const double delta = layoutDelta(twipsPerPixel);
    if (delta == 0) return;
    form.width = reduced(form.width, delta);
    form.height = reduced(form.height, delta == 3 ? 2.5 : 2);
    for (Control* control : form.controls.all()) {
        reduceBounds(*control, delta);
        lowerFont<Label, PushButton>(*control, 2);
    }
    const Bounds& title = form.lblTitle.bounds();
    Bounds sign = form.lblR.bounds();
    sign.left = title.left + title.width + Twips{20};
    form.lblR.setBounds(sign);
}

void openAboutBox(Program& program) {
    stopNarration(program);
    FrmAbout form;
    shrinkForLargeFonts(form, program.platform.screen.twipsPerPixel());
    program.platform.modalForms.run(form);
}

void openSupportPage(Program& program) { program.platform.shell.open(webAddress(supportPage)); }

}  // namespace orvanta
