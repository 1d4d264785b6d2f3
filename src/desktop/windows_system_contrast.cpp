#include <windows.h>

#include "desktop/system_contrast.h"

namespace orvanta::desktop {

bool systemAsksForContrast(const QPalette&) {
    HIGHCONTRASTW contrast{};
    contrast.cbSize = sizeof contrast;
    return SystemParametersInfoW(SPI_GETHIGHCONTRAST, sizeof contrast, &contrast, 0) &&
           (contrast.dwFlags & HCF_HIGHCONTRASTON);
}

}  // namespace orvanta::desktop
