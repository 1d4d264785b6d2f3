#pragma once

#include <QImage>
#include <QWidget>

namespace orvanta::test {

/// The colour that fills most of a picture: the ground behind its text.
QColor groundOf(const QImage& picture);

/// The contrast of what is written in a picture: its ground against the colour that stands out
/// most. Smooth edges make it no higher than it is.
double writtenContrast(const QImage& picture);

/// What a widget looks like within its window, with what lies behind and above it.
QImage paintedAs(QWidget& widget, const QRect& part);
inline QImage paintedAs(QWidget& widget) { return paintedAs(widget, widget.rect()); }

}  // namespace orvanta::test
