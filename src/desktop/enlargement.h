#pragma once

#include <QSize>

namespace orvanta::desktop {

// The window is drawn for letters of 9 points. Where the application's are larger, all of it is,
// by the same factor. The models know nothing of that.

inline constexpr double designLetters = 9;  // points

/// How many times as large as designed the window is. Read from the application's font, which
/// applyTheme sets.
double enlargement();

/// A length or a size of the design, enlarged, in logical pixels.
int enlarged(int length);
QSize enlarged(QSize size);

}  // namespace orvanta::desktop
