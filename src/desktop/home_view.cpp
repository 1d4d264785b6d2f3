#include "desktop/home_view.h"

#include <QPainter>

#include "desktop/art.h"
#include "desktop/theme.h"

namespace orvanta::desktop {

HomeView::HomeView(Panel& place, ControlArea& area) : QWidget(&area) { area.hold(place, *this); }

void HomeView::paintEvent(QPaintEvent*) {
    constexpr int markSize = 160, lineGap = 36;
    QPainter painter(this);
    painter.fillRect(rect(), theme::paper);
    QRect mark(0, 0, markSize, markSize);
    mark.moveCenter(rect().center() - QPoint(0, lineGap));
    drawPicture(painter, mark, QStringLiteral("logo"));
    QFont name = font();
    name.setPointSizeF(22);
    name.setLetterSpacing(QFont::AbsoluteSpacing, 6);
    painter.setFont(name);
    painter.setPen(theme::deepBlue);
    painter.drawText(QRect(0, mark.bottom() + lineGap, width(), 44), Qt::AlignHCenter | Qt::AlignTop,
                     QStringLiteral("ORVANTA"));
}

}  // namespace orvanta::desktop
