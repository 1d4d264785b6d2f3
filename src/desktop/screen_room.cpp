#include "desktop/screen_room.h"

#include <QApplication>
#include <QScreen>
#include <QStyle>

namespace orvanta::desktop {

QSize roomForWindow() {
    // A window has no frame to measure before it shows; the style knows a usual one.
    const QStyle& style = *QApplication::style();
    const int title = style.pixelMetric(QStyle::PM_TitleBarHeight);
    const int side = style.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    const QSize frame(2 * side, title + side);
    return QGuiApplication::primaryScreen()->availableSize() - frame;
}

}  // namespace orvanta::desktop
