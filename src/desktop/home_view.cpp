#include "desktop/home_view.h"

#include <QPainter>

#include "desktop/art.h"
#include "desktop/theme.h"

namespace orvanta::desktop {

HomeView::HomeView(Panel& place, ControlArea& area) : QWidget(&area) { area.hold(place, *this); }

void HomeView::paintEvent(QPaintEvent*) {
    constexpr QSize splash(480, 300);
    constexpr QRect emblem(150, 36, 300, 228);  // mark and name, without the ornament beside them
    QPainter painter(this);
    painter.fillRect(rect(), theme::paper);
    QRect place = emblem;
    place.moveCenter(rect().center());
    painter.setClipRect(place);
    drawPicture(painter, QRect(place.topLeft() - emblem.topLeft(), splash), QStringLiteral("splash"));
}

}  // namespace orvanta::desktop
