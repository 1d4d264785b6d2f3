#include "painted_contrast.h"

#include <QHash>
#include <QPixmap>
#include <algorithm>

#include "desktop/theme.h"

namespace orvanta::test {

namespace {

QHash<QRgb, int> coloursOf(const QImage& picture) {
    QHash<QRgb, int> colours;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) ++colours[picture.pixel(x, y)];
    return colours;
}

}  // namespace

QColor groundOf(const QImage& picture) {
    const QHash<QRgb, int> colours = coloursOf(picture);
    return QColor(std::ranges::max_element(colours).key());
}

double writtenContrast(const QImage& picture) {
    const QHash<QRgb, int> colours = coloursOf(picture);
    const QColor ground = groundOf(picture);
    double most = 1;
    for (auto colour = colours.keyBegin(); colour != colours.keyEnd(); ++colour)
        most = std::max(most, desktop::contrast(ground, QColor(*colour)));
    return most;
}

QImage paintedAs(QWidget& widget, const QRect& part) {
    QWidget& window = *widget.window();
    const QRect place(widget.mapTo(&window, part.topLeft()), part.size());
    return window.grab(place).toImage();
}

}  // namespace orvanta::test
