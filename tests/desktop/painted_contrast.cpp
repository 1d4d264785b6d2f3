#include "painted_contrast.h"

#include <QHash>
#include <QPixmap>
#include <algorithm>
#include <cmath>

namespace orvanta::test {

namespace {

double linear(double share) {
    return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
}

double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

QHash<QRgb, int> coloursOf(const QImage& picture) {
    QHash<QRgb, int> colours;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) ++colours[picture.pixel(x, y)];
    return colours;
}

}  // namespace

double contrast(const QColor& one, const QColor& other) {
    const auto [darker, lighter] = std::minmax({luminance(one), luminance(other)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor groundOf(const QImage& picture) {
    const QHash<QRgb, int> colours = coloursOf(picture);
    return QColor(std::ranges::max_element(colours).key());
}

double writtenContrast(const QImage& picture) {
    const QHash<QRgb, int> colours = coloursOf(picture);
    const QColor ground = groundOf(picture);
    double most = 1;
    for (auto colour = colours.keyBegin(); colour != colours.keyEnd(); ++colour)
        most = std::max(most, contrast(ground, QColor(*colour)));
    return most;
}

QImage paintedAs(QWidget& widget, const QRect& part) {
    QWidget& window = *widget.window();
    const QRect place(widget.mapTo(&window, part.topLeft()), part.size());
    return window.grab(place).toImage();
}

}  // namespace orvanta::test
