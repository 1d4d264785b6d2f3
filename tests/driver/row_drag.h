#pragma once

#include <QApplication>
#include <QDropEvent>

#include "desktop/statement_list_view.h"

namespace orvanta::driver {

/// One drag of a row, as the views that it passes over see it.
class RowDrag {
public:
    explicit RowDrag(StatementList& from) : m_load(from) {}

    /// True if the list under the pointer would take a drop there.
    bool moveOver(desktop::StatementListView& view, const QPoint& point) {
        QWidget& target = *view.viewport();
        QDragEnterEvent enter(point, Qt::MoveAction, &m_load, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &enter);
        QDragMoveEvent move(point, Qt::MoveAction, &m_load, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(&target, &move);
        return move.isAccepted();
    }

    void leave(desktop::StatementListView& view) {
        QDragLeaveEvent leave;
        QApplication::sendEvent(view.viewport(), &leave);
    }

    void drop(desktop::StatementListView& view, const QPoint& point) {
        QDropEvent drop(point, Qt::MoveAction, &m_load, Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(view.viewport(), &drop);
    }

    void finish(Program& program) { m_load.drop()->finish(program); }

private:
    desktop::StatementDrag m_load;
};

}  // namespace orvanta::driver
