// Draws a picture as a square icon, and makes the folder that it goes into.
//   orvanta_draw_icon PICTURE.svg PIXELS ICON.png

#include <QDir>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdio>

namespace {

int fail(const char* what, const QString& path) {
    std::fprintf(stderr, "%s: %s\n", qPrintable(path), what);
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 4) return fail("usage: orvanta_draw_icon PICTURE.svg PIXELS ICON.png", argv[0]);
    const QString picture = argv[1], icon = argv[3];
    const int pixels = QString(argv[2]).toInt();
    QSvgRenderer renderer(picture);
    if (!renderer.isValid() || pixels <= 0) return fail("can't be drawn", picture);
    QImage image(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    QDir().mkpath(QFileInfo(icon).path());
    return image.save(icon) ? 0 : fail("can't be written", icon);
}
