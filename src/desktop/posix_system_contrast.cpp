#include "desktop/system_contrast.h"
#include "desktop/theme.h"

namespace orvanta::desktop {

bool systemAsksForContrast(const QPalette& desktop) { return asksForContrast(desktop); }

}  // namespace orvanta::desktop
