#pragma once

#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <memory>
#include <optional>

#include "app/window_events.h"
#include "desktop/drag_picture.h"

namespace orvanta::desktop {

/// Where a dragged row was dropped.
struct Drop {
    StatementList* list = nullptr;  // null as long as it is not dropped
    int position = 0;

    /// Tells the program of the drop, if there was one. Called when the drag is over, since what
    /// follows may open a box.
    void finish(Program& program) const;
};

/// What a dragged row carries: the list that it comes from, the picture at the pointer and, once
/// dropped, where that was.
class StatementDrag : public QMimeData {
public:
    explicit StatementDrag(StatementList& from) : m_from(from) {}
    ~StatementDrag() override;

    StatementList& from() const { return m_from; }
    /// Shows at a point of the window what a drop would do there. Without an acting row in the
    /// preview the picture is that of the row that was taken.
    void show(QWidget& window, const QPoint& point, const DropPreview& preview) const;
    void hide() const;

    void dropOn(StatementList& list, int position) const;
    /// Outlives the drag, which the toolkit may delete while it still runs.
    std::shared_ptr<const Drop> drop() const { return m_drop; }

private:
    StatementList& m_from;
    mutable QPointer<DragPicture> m_picture;
    std::shared_ptr<Drop> m_drop = std::make_shared<Drop>();
};

/// The drag of a statement; null for whatever else may be dragged here.
const StatementDrag* statementDragIn(const QDropEvent& event);

/// Watches the pointer while a drag keeps all its events to itself.
class DragWatch : public QObject {
public:
    DragWatch();

    /// Where the button was let go, on the screen; none if the drag was called off.
    std::optional<QPoint> letGoAt();

protected:
    bool eventFilter(QObject* receiver, QEvent* event) override;

private:
    std::optional<QPoint> m_letGoAt;
};

}  // namespace orvanta::desktop
