#include "desktop/enlargement.h"

#include <QFont>
#include <QGuiApplication>
#include <cmath>

namespace orvanta::desktop {

double enlargement() { return QGuiApplication::font().pointSizeF() / designLetters; }

int enlarged(int length) { return static_cast<int>(std::lround(length * enlargement())); }

QSize enlarged(QSize size) { return size * enlargement(); }

}  // namespace orvanta::desktop
