#include "desktop/text_lines.h"

#include <QTextLayout>
#include <QTextOption>

namespace orvanta::desktop {

QStringList linesOf(const QString& paragraph, const QFont& font, int width, int mostLines) {
    QStringList lines;
    QTextLayout layout(paragraph, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    int begin = 0;
    for (QTextLine line; lines.size() + 1 < mostLines && (line = layout.createLine()).isValid();) {
        line.setLineWidth(width);
        if (begin + line.textLength() >= paragraph.length()) break;
        lines << paragraph.mid(begin, line.textLength()).trimmed();
        begin += line.textLength();
    }
    layout.endLayout();
    return lines << paragraph.mid(begin);
}

}  // namespace orvanta::desktop
