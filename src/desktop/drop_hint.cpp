#include "desktop/drop_hint.h"

#include <QPainter>
#include <algorithm>

#include "desktop/statement_row_painter.h"
#include "desktop/theme.h"

namespace orvanta::desktop {

namespace {

constexpr int margin = 10, gap = 3, widest = 280;

}  // namespace

DropHint::DropHint(QWidget& window) : QWidget(&window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);  // the drag goes on to what lies below
    hide();
}

void DropHint::showAt(const QPoint& pointer, int cardHeight, const QString& caption) {
    m_caption = caption;
    const QFontMetrics metrics = fontMetrics();
    resize(std::min(widest, metrics.horizontalAdvance(caption) + 2 * margin + 1),
           metrics.height() + margin);
    const QRect window = parentWidget()->rect();
    QPoint place = pointer - dragHotSpot + QPoint(0, cardHeight + gap);
    if (place.y() + height() > window.bottom()) place.setY(pointer.y() - height() - gap);
    place.setX(std::min(place.x(), window.right() - width()));
    move(place);
    raise();
    show();
    update();
}

void DropHint::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme::deepBlue);
    painter.drawRoundedRect(rect(), 6, 6);
    painter.setPen(theme::paper);
    const QRect room = rect().adjusted(margin, 0, -margin, 0);
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(m_caption, Qt::ElideRight, room.width()));
}

}  // namespace orvanta::desktop
