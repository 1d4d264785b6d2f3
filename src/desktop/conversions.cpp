#include "desktop/conversions.h"

#include <QGuiApplication>
#include <QScreen>
#include <QToolTip>
#include <cmath>

#include "desktop/enlargement.h"
#include "desktop/text_lines.h"
#include "view/path_text.h"
#include "view/windows1252.h"

namespace orvanta::desktop {

namespace {

/// In as few lines as can be, and these as even as the words allow.
QString brokenEvenly(const QString& paragraph) {
    const int widest = enlarged(360);
    const auto count = linesOf(paragraph, QToolTip::font(), widest).size();
    int tooNarrow = 0, wideEnough = widest;
    while (count > 1 && wideEnough - tooNarrow > 1) {
        const int width = (tooNarrow + wideEnough) / 2;
        (linesOf(paragraph, QToolTip::font(), width).size() > count ? tooNarrow : wideEnough) =
            width;
    }
    return linesOf(paragraph, QToolTip::font(), wideEnough).join(u'\n');
}

}  // namespace

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
    QStringList paragraphs = toolTip.split(u'\n');
    for (QString& paragraph : paragraphs) paragraph = brokenEvenly(paragraph);
    return QStringLiteral("<p style=\"white-space:pre; margin:0\">%1</p>")
        .arg(paragraphs.join(u'\n').toHtmlEscaped());
}

double PixelGrid::exact(Twips length) const {
    return length.value / m_screen.twipsPerPixel() * enlargement();
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
