#pragma once

#include <QSize>

namespace orvanta::desktop {

/// The smallest main window in which every control can be used, in logical pixels.
QSize leastWindow();

/// What a screen's free area leaves to a window inside its frame, in logical pixels.
QSize roomForWindow();

/// The enlargement at which the smallest main window with its frame just fits a free area of
/// logical pixels, but at least 1 and at most 2.
double largestEnlargement(QSize freeArea);

}  // namespace orvanta::desktop
