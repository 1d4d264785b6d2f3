#pragma once

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QListView>
#include <QPointer>
#include <memory>

#include "analyze/mapping_counts.h"
#include "app/window_events.h"
#include "desktop/reading_strip.h"
#include "desktop/row_fit.h"
#include "desktop/statement_drag.h"
#include "desktop/statement_list_model.h"

namespace orvanta::desktop {

/// The window's side of a statement list. There is no object for a row, so that lists may be
/// long.
class StatementListView : public QListView {
public:
    StatementListView(Program& program, StatementList& list, QWidget* parent);
    ~StatementListView() override;

    QModelIndex indexAtPosition(int position) const { return m_model.index(position - 1); }
    /// The row under a point of the viewport, from 1; 0 for none.
    int positionAt(const QPoint& point) const { return indexAt(point).row() + 1; }
    /// The row that lights up because it would take the drop, from 1; 0 for none.
    int litRow() const { return m_preview.target == DropTarget::Row ? m_previewRow : 0; }
    /// What is mapped under each row; null for a list to which nothing is mapped.
    const MappingCounts* mappingCounts() const { return m_mappingCounts.get(); }
    int linesPerRow() const { return m_fit->linesPerRow(); }
    /// As in RowFit.
    int linesToRead(int width) const { return m_fit->linesToRead(width); }
    /// On one line; empty if nothing is chosen.
    QString chosenText() const;
    /// Keeps the rows out of so many pixels at the foot of the list.
    void keepFree(int height);
    /// True if the list lights up as a whole.
    bool isLit() const { return m_preview.target == DropTarget::WholeList; }

    /// The wheel, turned while a drag is under way. `angle`: 120 for a notch, above 0 away from the
    /// person.
    void scrollInDrag(int angle);
    /// What a drop from another or the same list does at a point of the viewport; nothing if no
    /// drop is taken there.
    Drop dropAt(const StatementList& from, const QPoint& point);

    void reset() override;

protected:
    void selectionChanged(const QItemSelection& selected,
                          const QItemSelection& deselected) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void moveEvent(QMoveEvent* event) override;
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void startDrag(Qt::DropActions actions) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dragMoveEvent(QDragMoveEvent* event) override;
    void dragLeaveEvent(QDragLeaveEvent* event) override;
    void dropEvent(QDropEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;

private:
    /// What the pressed button is about. A row that the hand takes is dragged as soon as the events
    /// that have come so far are seen: its release may be among them.
    enum class Hand { Free, Takes, CalledOff };

    void carry();
    void land(const QPoint& place);
    void showSelection();
    void reveal();
    void measureRows();
    void layOutRows();
    void paintHint(QPainter& painter);
    void passOver(QDragMoveEvent& event);
    void showDropPreview(const StatementDrag& drag, const QPoint& point);
    void endOfDrag();
    void scrollAtEdge(const QPoint& point);
    void scrollBy(double pixels);

    Program& m_program;
    StatementList& m_list;
    StatementListModel m_model;
    std::unique_ptr<MappingCounts> m_mappingCounts;
    std::unique_ptr<RowFit> m_fit;
    bool m_measuring = false;  // soon: what changes at once is measured once
    int m_rowHeight = 0;
    QPointer<ReadingStrip> m_strip;
    bool m_showing = false;
    int m_rowsCameIn = 0, m_lastCameIn = 0;  // since the last look at the event queue
    int m_wentOut = 0;  // where a row was taken out last, until one is chosen; 0: nowhere
    Hand m_hand = Hand::Free;
    DropPreview m_preview;  // of the drag that is over the list
    int m_previewRow = 0;
    QPointer<const StatementDrag> m_drag;
    QPoint m_draggedTo;
    QBasicTimer m_edgeTimer;
    QElapsedTimer m_atEdge, m_sinceScroll;
    double m_edgeCloseness = 0;  // 1 at an edge, 0 away from both; below 0 at the upper one
    double m_unscrolled = 0;     // the part of a pixel that scrolling still owes
};

/// How fast a drag scrolls that rests near the edge of a list. `closeness`: 0 to 1, at the very
/// edge. `seconds`: since it came there.
double rowsASecondAtEdge(double closeness, double seconds);

/// The statement list at a point of the screen; null for none.
StatementListView* statementListAt(const QPoint& globalPoint);

}  // namespace orvanta::desktop
