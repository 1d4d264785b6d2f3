#pragma once

#include <QPalette>

namespace orvanta::desktop {

/// True where the person asks for high contrast: on Windows by the system's switch for it, as its
/// usual colours come close to those of such a desktop; elsewhere by the colours of the desktop.
bool systemAsksForContrast(const QPalette& desktop);

}  // namespace orvanta::desktop
