#include "desktop/art.h"

#include <QFile>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <array>
#include <cassert>

namespace orvanta::desktop {

namespace {

QString fileOf(const QString& name) {
    const QString file = QStringLiteral(":/art/%1.svg").arg(name);
    assert(QFile::exists(file));
    return file;
}

}  // namespace

QPixmap picture(const QString& name, QSize size, qreal pixelRatio) {
    const QSize deviceSize = size * pixelRatio;
    const QString key =
        QStringLiteral("%1 %2x%3").arg(name).arg(deviceSize.width()).arg(deviceSize.height());
    QPixmap drawn;
    if (QPixmapCache::find(key, &drawn)) return drawn;
    QImageReader reader(fileOf(name));
    reader.setScaledSize(deviceSize);
    drawn = QPixmap::fromImage(reader.read());
    drawn.setDevicePixelRatio(pixelRatio);
    QPixmapCache::insert(key, drawn);
    return drawn;
}

void drawPicture(QPainter& painter, const QRect& target, const QString& name) {
    painter.drawPixmap(target.topLeft(),
                       picture(name, target.size(), painter.device()->devicePixelRatioF()));
}

QIcon pictureIcon(const QString& name) { return QIcon(fileOf(name)); }

QString artName(Art art) {
    switch (art) {
        case Art::None:
            return {};
        case Art::SmallNormal:
            return QStringLiteral("button_small_normal");
        case Art::SmallDown:
            return QStringLiteral("button_small_down");
        case Art::LargeNormal:
            return QStringLiteral("button_large_normal");
        case Art::LargeDown:
            return QStringLiteral("button_large_down");
    }
    assert(false);
    return {};
}

const QIcon& rowIcon(int image) {
    static const std::array<QIcon, 5> icons{QIcon(), pictureIcon(QStringLiteral("row_strength")),
                                            pictureIcon(QStringLiteral("row_weakness")),
                                            pictureIcon(QStringLiteral("row_opportunity")),
                                            pictureIcon(QStringLiteral("row_threat"))};
    const auto number = static_cast<std::size_t>(image);
    return icons[number < icons.size() ? number : 0];
}

}  // namespace orvanta::desktop
