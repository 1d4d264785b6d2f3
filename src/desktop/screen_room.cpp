#include "desktop/screen_room.h"

#include <QApplication>
#include <QScreen>
#include <QStyle>
#include <algorithm>

#include "desktop/enlargement.h"

namespace orvanta::desktop {

namespace {

constexpr QSize designLeastWindow{768, 448};

/// A window has no frame to measure before it shows; the style knows a usual one, of usual letters.
QSize designFrame() {
    const QStyle& style = *QApplication::style();
    const int title = style.pixelMetric(QStyle::PM_TitleBarHeight);
    const int side = style.pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    return {2 * side, title + side};
}

}  // namespace

QSize leastWindow() {
    const QSizeF exact = QSizeF(designLeastWindow) * enlargement();
    // Rounded down, so that it fits what the enlargement was made for.
    return {static_cast<int>(exact.width()), static_cast<int>(exact.height())};
}

QSize roomForWindow() {
    return QGuiApplication::primaryScreen()->availableSize() - enlarged(designFrame());
}

double largestEnlargement(QSize freeArea) {
    const QSizeF room = freeArea, design = designLeastWindow + designFrame();
    return std::clamp(std::min(room.width() / design.width(), room.height() / design.height()), 1.0,
                      2.0);
}

}  // namespace orvanta::desktop
