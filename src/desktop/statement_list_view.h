#pragma once

#include <QBasicTimer>
#include <QListView>
#include <QMimeData>
#include <QPointer>
#include <memory>

#include "analyze/mapping_counts.h"
#include "app/window_events.h"
#include "desktop/drop_hint.h"
#include "desktop/statement_list_model.h"

namespace orvanta::desktop {

/// What a dragged row carries: the list that it comes from and, once dropped, where that was.
class StatementDrag : public QMimeData {
public:
    explicit StatementDrag(StatementList& from) : m_from(from) {}

    StatementList& from() const { return m_from; }
    void dropOn(StatementList& list, int position) const;
    /// Tells the program of the drop, if there was one. Called when the drag is over, since
    /// what follows may open a box.
    void finish(Program& program) const;

private:
    StatementList& m_from;
    mutable StatementList* m_target = nullptr;
    mutable int m_position = 0;
};

/// The window's side of a statement list. There is no object for a row, so that lists may be
/// long.
class StatementListView : public QListView {
public:
    StatementListView(Program& program, StatementList& list, QWidget* parent);

    QModelIndex indexAtPosition(int position) const { return m_model.index(position - 1); }
    /// The row under a point of the viewport, from 1; 0 for none.
    int positionAt(const QPoint& point) const { return indexAt(point).row() + 1; }
    /// The row that lights up because it would take the drop, from 1; 0 for none.
    int litRow() const { return m_preview.target == DropTarget::Row ? m_previewRow : 0; }
    /// What is mapped under each row; null for a list to which nothing is mapped.
    const MappingCounts* mappingCounts() const { return m_mappingCounts.get(); }
    /// True if the list lights up as a whole.
    bool isLit() const { return m_preview.target == DropTarget::WholeList; }

protected:
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    void showSelection();
    void reveal();
    void passOver(QDragMoveEvent& event);
    void showDropPreview(const StatementList& from, const QPoint& point);
    void endOfDrag();
    void scrollAtEdge(const QPoint& point);

    Program& m_program;
    StatementList& m_list;
    StatementListModel m_model;
    std::unique_ptr<MappingCounts> m_mappingCounts;
    bool m_showing = false;
    int m_rowsCameIn = 0, m_lastCameIn = 0;  // since the last look at the event queue
    DropPreview m_preview;                   // of the drag that is over the list
    int m_previewRow = 0;
    QPointer<DropHint> m_hint;  // there while a drop would do something
    const StatementList* m_draggedFrom = nullptr;
    QPoint m_draggedTo;
    QBasicTimer m_edgeTimer;
    int m_edgeStep = 0;
};

}  // namespace orvanta::desktop
