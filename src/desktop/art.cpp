#include "desktop/art.h"

#include <QFile>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <array>
#include <cassert>
#include <utility>

namespace orvanta::desktop {

namespace {

QString fileOf(const QString& name) {
    QString file = QStringLiteral(":/art/%1.svg").arg(name);
    assert(QFile::exists(file));
    return file;
}

double opacityOf(QIcon::Mode mode) {
    constexpr double disabled = 0.35;
    return mode == QIcon::Disabled ? disabled : 1;
}

QPixmap faded(const QPixmap& full) {
    QPixmap pale(full.size());
    pale.fill(Qt::transparent);
    QPainter painter(&pale);
    painter.setOpacity(opacityOf(QIcon::Disabled));
    painter.drawPixmap(0, 0, full);
    return pale;
}

/// Draws a picture at each size that is asked for. The toolkit's own engine for such files is a
/// plugin, and where that is missing an icon is empty and nothing says so.
class PictureEngine : public QIconEngine {
public:
    explicit PictureEngine(QString name) : m_name(std::move(name)) {}

    void paint(QPainter* painter, const QRect& place, QIcon::Mode mode, QIcon::State) override {
        const double former = painter->opacity();
        painter->setOpacity(former * opacityOf(mode));
        drawPicture(*painter, place, m_name);
        painter->setOpacity(former);
    }
    QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
        const QPixmap full = picture(m_name, size, 1);
        return mode == QIcon::Disabled ? faded(full) : full;
    }
    QString iconName() override { return m_name; }
    QIconEngine* clone() const override { return new PictureEngine(m_name); }

private:
    QString m_name;
};

QImage drawn(const QString& name, QSize size) {
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    QSvgRenderer(fileOf(name)).render(&painter, QRectF(image.rect()));
    return image;
}

using RowIcons = std::array<QIcon, 5>;

RowIcons rowIcons(const QString& ending) {
    return {QIcon(), pictureIcon(QStringLiteral("row_strength") + ending),
            pictureIcon(QStringLiteral("row_weakness") + ending),
            pictureIcon(QStringLiteral("row_opportunity") + ending),
            pictureIcon(QStringLiteral("row_threat") + ending)};
}

const QIcon& iconIn(const RowIcons& icons, int image) {
    const auto number = static_cast<std::size_t>(image);
    return icons[number < icons.size() ? number : 0];
}

}  // namespace

QPixmap picture(const QString& name, QSize size, qreal pixelRatio) {
    const QSize deviceSize = size * pixelRatio;
    const QString key =
        QStringLiteral("%1 %2x%3").arg(name).arg(deviceSize.width()).arg(deviceSize.height());
    QPixmap made;
    if (deviceSize.isEmpty() || QPixmapCache::find(key, &made)) return made;
    made = QPixmap::fromImage(drawn(name, deviceSize));
    made.setDevicePixelRatio(pixelRatio);
    QPixmapCache::insert(key, made);
    return made;
}

void drawPicture(QPainter& painter, const QRect& target, const QString& name) {
    painter.drawPixmap(target.topLeft(),
                       picture(name, target.size(), painter.device()->devicePixelRatioF()));
}

QIcon pictureIcon(const QString& name) { return QIcon(new PictureEngine(name)); }

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
    static const RowIcons icons = rowIcons(QString());
    return iconIn(icons, image);
}

const QIcon& smallRowIcon(int image) {
    static const RowIcons icons = rowIcons(QStringLiteral("_small"));
    return iconIn(icons, image);
}

}  // namespace orvanta::desktop
