#include "presentation/splash.h"

#include "core/display_scaling.h"

namespace orvanta {

void shrinkForLargeFonts(FrmSplash& form, double twipsPerPixel) {
    const double delta = layoutDelta(twipsPerPixel);
    if (delta == 0) return;
    form.width = reduced(form.width, delta);
    form.height = reduced(form.height, delta == 3 ? 4.95 : 2.95);
}

void showSplash(Program& program) {
    FrmSplash form;
    shrinkForLargeFonts(form, program.platform.screen.twipsPerPixel());
    program.platform.modalForms.run(form);
}

}  // namespace orvanta
