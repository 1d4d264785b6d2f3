#include "desktop/statement_drag.h"

#include <QApplication>
#include <QTimer>
#include <QWheelEvent>
#include <algorithm>
#include <cassert>
#include <iterator>

#include "desktop/statement_list_view.h"
#include "desktop/statement_row_painter.h"

namespace orvanta::desktop {

void Drop::finish(Program& program) const {
    if (list) droppedOn(program, *list, position);
}

StatementDrag::~StatementDrag() { delete m_picture; }

void StatementDrag::show(QWidget& window, const QPoint& point, const DropPreview& preview) const {
    const Row* row = preview.statement ? preview.statement : m_from.selectedRow();
    if (!row) return hide();
    if (!m_picture) m_picture = new DragPicture(window);
    m_picture->carry(*row);
    QStringList lines;
    std::ranges::transform(preview.lines, std::back_inserter(lines), lineOf);
    m_picture->promise(lines);
    m_picture->moveTo(point);
}

void StatementDrag::hide() const {
    if (m_picture) m_picture->hide();
}

void StatementDrag::dropOn(StatementList& list, int position) const {
    assert(position >= 0 && position <= list.count());
    *m_drop = {&list, position};
}

const StatementDrag* statementDragIn(const QDropEvent& event) {
    return dynamic_cast<const StatementDrag*>(event.mimeData());
}

/// Qt's filter takes the wheel away; it is put before ours when the drag's loop begins.
DragWatch::DragWatch() {
    qApp->installEventFilter(this);
    QTimer::singleShot(0, this, [this] { qApp->installEventFilter(this); });
}

std::optional<QPoint> DragWatch::letGoAt() {
    // A button let go before the loop began is told only behind it.
    QCoreApplication::sendPostedEvents(nullptr, QEvent::MouseButtonRelease);
    return m_letGoAt;
}

bool DragWatch::eventFilter(QObject*, QEvent* event) {
    // Qt puts off the release that ends a drag and posts it. One behind an Escape comes straight.
    if (event->type() == QEvent::MouseButtonRelease && !event->spontaneous())
        m_letGoAt = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
    if (event->type() != QEvent::Wheel) return false;
    const auto& wheel = *static_cast<QWheelEvent*>(event);
    if (StatementListView* list = statementListAt(wheel.globalPosition().toPoint()))
        list->scrollInDrag(wheel.angleDelta().y());
    return true;
}

}  // namespace orvanta::desktop
