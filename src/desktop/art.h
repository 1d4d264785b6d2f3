#pragma once

#include <QIcon>
#include <QPixmap>
#include <QSize>
#include <QString>

#include "view/control.h"

class QPainter;
class QRect;
class QWidget;

namespace orvanta::desktop {

/// A picture of the program by its name, such as "logo", drawn sharp at this size in logical
/// pixels on a screen of this pixel ratio.
QPixmap picture(const QString& name, QSize size, qreal pixelRatio);

/// Draws a picture over a rectangle, stretched to fill it.
void drawPicture(QPainter& painter, const QRect& target, const QString& name);

/// The picture as an icon of that name; pale where it is shown disabled.
QIcon pictureIcon(const QString& name);

/// The file behind the art of a button; empty for none.
QString artName(Art art);

/// The picture of a row by its number, 1 to 4; a null icon for any other.
const QIcon& rowIcon(int image);
/// The same drawn for 12 pixels.
const QIcon& smallRowIcon(int image);

}  // namespace orvanta::desktop
