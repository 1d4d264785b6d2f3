#include "desktop/system_contrast.h"

namespace orvanta::desktop {

bool systemAsksForContrast() { return false; }

}  // namespace orvanta::desktop
