#include "desktop/drag_picture.h"

#include <QPainter>
#include <algorithm>

#include "desktop/enlargement.h"
#include "desktop/statement_row_painter.h"
#include "desktop/theme.h"

namespace orvanta::desktop {

namespace {

constexpr int designMargin = 10, gap = 3, widest = 280;
/// Below the pointer, so that the row that takes the drop stays in sight.
constexpr QPoint besidePointer{14, 6};

}  // namespace

DragPicture::DragPicture(QWidget& window) : QWidget(&window) {
    setAttribute(Qt::WA_TransparentForMouseEvents);  // the drag goes on to what lies below
    hide();
}

void DragPicture::carry(const Row& row) {
    if (!m_card.isNull() && m_carried == row.text) return;
    m_carried = row.text;
    m_card = dragCard(row, font(), devicePixelRatioF());
    fit();
}

void DragPicture::promise(const QStringList& lines) {
    if (m_lines == lines) return;
    m_lines = lines;
    fit();
}

void DragPicture::moveTo(const QPoint& pointer) {
    m_pointer = pointer;
    fit();
    if (isHidden()) {
        raise();
        show();
    }
}

/// As large as its words need, and wholly within the window.
void DragPicture::fit() {
    QSize size = m_card.isNull() ? QSize() : m_card.deviceIndependentSize().toSize();
    if (!m_lines.isEmpty()) {
        const QFontMetrics metrics = fontMetrics();
        const int margin = enlarged(designMargin);
        int width = 0;
        for (const QString& line : m_lines)
            width = std::max(width, metrics.horizontalAdvance(line) + 2 * margin + 1);
        size = {std::max(size.width(), std::min(enlarged(widest), width)),
                size.height() + gap + static_cast<int>(m_lines.size()) * metrics.height() + margin};
    }
    const QSize window = parentWidget()->size();
    QPoint place = m_pointer + besidePointer;
    if (place.y() + size.height() > window.height())
        place.setY(m_pointer.y() - size.height() - gap);
    place.setX(std::min(place.x(), window.width() - size.width()));
    setGeometry(QRect(place, size));
    update();
}

void DragPicture::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.drawPixmap(0, 0, m_card);
    if (m_lines.isEmpty()) return;
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(theme::deepBlue);
    const int top = m_card.deviceIndependentSize().toSize().height() + gap;
    painter.drawRoundedRect(rect().adjusted(0, top, 0, 0), 6, 6);
    painter.setPen(theme::paper);
    const int margin = enlarged(designMargin);
    QRect room(margin, top + margin / 2, width() - 2 * margin, fontMetrics().height());
    for (const QString& line : m_lines) {
        painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                         fontMetrics().elidedText(line, Qt::ElideMiddle, room.width()));
        room.translate(0, room.height());
    }
}

}  // namespace orvanta::desktop
