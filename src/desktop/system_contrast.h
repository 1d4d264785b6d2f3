#pragma once

namespace orvanta::desktop {

/// True where the system has a switch of its own for high contrast, and it is on. Elsewhere the
/// colours of the desktop tell.
bool systemAsksForContrast();

}  // namespace orvanta::desktop
