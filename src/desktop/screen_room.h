#pragma once

#include <QSize>

namespace orvanta::desktop {

/// The smallest main window in which every control can be used, in logical pixels.
inline constexpr QSize leastWindow{768, 448};

/// What a screen's free area leaves to a window inside its frame, in logical pixels.
QSize roomForWindow();

}  // namespace orvanta::desktop
