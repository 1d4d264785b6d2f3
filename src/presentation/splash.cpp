#include "presentation/splash.h"

#include "core/display_scaling.h"

namespace orvanta {

void showSplash(Program& program) {
    FrmSplash form;
    shrinkForLargeFonts(form, program.platform.screen.twipsPerPixel());
    program.platform.modalForms.run(form);
}

}  // namespace orvanta
