#pragma once

#include <QColor>
#include <QPalette>

class QApplication;

namespace orvanta::desktop {

// The colours of the window. It is light whatever the theme of the desktop, since the row
// colours are made for a light ground. What is painted with the three that are marked takes them
// from its widget's palette, where they give way to ink if the desktop asks for high contrast.

namespace theme {

inline constexpr QColor deepBlue{0x00, 0x33, 0x99};
inline constexpr QColor ink{0x1b, 0x25, 0x3b};
inline constexpr QColor quietInk{0x4f, 0x5b, 0x75};  // QPalette::PlaceholderText
inline constexpr QColor alarm{0xc8, 0x00, 0x00};
inline constexpr QColor paper{0xff, 0xff, 0xff};
inline constexpr QColor sideGround{0xf3, 0xf6, 0xfc};
inline constexpr QColor hairline{0xe4, 0xe9, 0xf3};  // QPalette::Midlight
inline constexpr QColor outline{0x75, 0x85, 0xab};   // QPalette::Mid
inline constexpr QColor selection{0xe3, 0xeb, 0xfb};
inline constexpr QColor dropGround{0xc9, 0xda, 0xff};

}  // namespace theme

/// How far two colours stand apart, from 1 to 21, as WCAG 2 has it.
double contrast(const QColor& one, const QColor& other);

/// Whether these are the colours of a desktop for people who need high contrast.
bool asksForContrast(const QPalette& desktop);

/// Gives the application its fonts, colours and pictures; called once, ahead of any window.
void applyTheme(QApplication& application);

}  // namespace orvanta::desktop
