#include "desktop/conversions.h"

#include <QGuiApplication>
#include <QScreen>
#include <cmath>

#include "view/path_text.h"
#include "view/windows1252.h"

namespace orvanta::desktop {

QString fromCp1252(std::string_view text) { return QString::fromStdString(utf8From1252(text)); }

std::string toCp1252(const QString& text) { return windows1252From(text.toStdString()); }

bool fitsCp1252(const QString& text) { return fromCp1252(toCp1252(text)) == text; }

QString fromPath(std::string_view path) { return QString::fromStdString(nativeFromPath(path)); }

std::string toPath(const QString& name) { return pathFromNative(name.toStdString()); }

QString shownCaption(std::string_view caption) {
    return fromCp1252(caption).replace(QLatin1String("&&"), QLatin1String("&")).trimmed();
}

QString shownToolTip(const QString& toolTip) {
    if (toolTip.isEmpty()) return {};
    return QStringLiteral("<p style=\"white-space:pre-wrap\">%1</p>").arg(toolTip.toHtmlEscaped());
}

int PixelGrid::pixels(Twips length) const { return static_cast<int>(std::lround(exact(length))); }

QFont PixelGrid::font(Points size, bool bold) const {
    constexpr double twipsPerPoint = 20, pointsPerInch = 72;
    const double pixelHeight = exact({size.value * twipsPerPoint});
    QFont font = QGuiApplication::font();
    font.setPointSizeF(pixelHeight * pointsPerInch /
                       QGuiApplication::primaryScreen()->logicalDotsPerInchY());
    font.setBold(bold);
    return font;
}

}  // namespace orvanta::desktop
