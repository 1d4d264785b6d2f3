#include "desktop/statement_list_view.h"

#include <QDrag>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <QToolTip>
#include <cassert>
#include <utility>

#include "analyze/mapping.h"
#include "analyze/row_description.h"
#include "desktop/statement_row_painter.h"

namespace orvanta::desktop {

namespace {

/// The drag of a statement; null for whatever else may be dragged here.
const StatementDrag* statementDragIn(const QDropEvent& event) {
    return dynamic_cast<const StatementDrag*>(event.mimeData());
}

}  // namespace

void StatementDrag::dropOn(StatementList& list, int position) const {
    assert(position >= 0 && position <= list.count());
    m_target = &list;
    m_position = position;
}

void StatementDrag::finish(Program& program) const {
    if (m_target) droppedOn(program, *m_target, m_position);
}

StatementListView::StatementListView(Program& program, StatementList& list, QWidget* parent)
    : QListView(parent), m_program(program), m_list(list), m_model(list) {
    if (isMappingList(program.frmMain, list))
        m_mappingCounts = std::make_unique<MappingCounts>(list);
    m_model.describe = [this](int position) {
        return describeRow(m_list, position, m_mappingCounts.get());
    };
    setModel(&m_model);
    setItemDelegate(new StatementRowPainter(list, *this));
    setUniformItemSizes(true);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setDragDropMode(DragDrop);
    setMouseTracking(true);
    m_model.selectionMayDiffer = [this] {
        if (m_mappingCounts) viewport()->update();
        showSelection();
    };
    m_model.rowCameIn = [this](int position) {
        if (m_mappingCounts) viewport()->update();  // the row that it is mapped under tells of it
        m_lastCameIn = position;
        if (m_rowsCameIn++ == 0) QTimer::singleShot(0, this, [this] { reveal(); });
    };
    showSelection();
}

void StatementListView::showSelection() {
    if (m_model.isChanging()) return;
    m_showing = true;
    const QModelIndex index = indexAtPosition(m_list.selected());
    if (index.isValid())
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    else
        selectionModel()->clear();
    m_showing = false;
}

/// Brings a row that a person has just added into view. A list that was filled stays at its top.
void StatementListView::reveal() {
    if (m_rowsCameIn == 1) scrollTo(indexAtPosition(m_lastCameIn));
    m_rowsCameIn = 0;
}

void StatementListView::selectionChanged(const QItemSelection& selected,
                                         const QItemSelection& deselected) {
    QListView::selectionChanged(selected, deselected);
    if (m_showing || m_model.isChanging()) return;
    const QModelIndexList chosen = selectionModel()->selectedIndexes();
    m_list.select(chosen.isEmpty() ? 0 : chosen.front().row() + 1);
}

void StatementListView::mouseMoveEvent(QMouseEvent* event) {
    hoveredOver(m_program, m_list, positionAt(event->position().toPoint()));
    QListView::mouseMoveEvent(event);
}

bool StatementListView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QListView::viewportEvent(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), toolTip(), viewport());
    return true;
}

void StatementListView::startDrag(Qt::DropActions) {
    const Row* row = m_list.selectedRow();
    if (!row) return;
    auto* load = new StatementDrag(m_list);
    auto* drag = new QDrag(this);
    drag->setMimeData(load);
    const QPixmap card = dragCard(*row, font(), devicePixelRatioF());
    drag->setPixmap(card);
    drag->setHotSpot(dragHotSpot);
    drag->exec(Qt::MoveAction);
    load->finish(m_program);
}

void StatementListView::dragEnterEvent(QDragEnterEvent* event) { passOver(*event); }
void StatementListView::dragMoveEvent(QDragMoveEvent* event) { passOver(*event); }

void StatementListView::passOver(QDragMoveEvent& event) {
    const StatementDrag* drag = statementDragIn(event);
    if (!drag) return event.ignore();
    draggedOver(m_program, m_list);
    const QPoint point = event.position().toPoint();
    showDropPreview(drag->from(), point);
    scrollAtEdge(point);
    event.setDropAction(Qt::MoveAction);
    // The whole list is asked again and again while the pointer moves within it; while it
    // scrolls, what takes the drop may come under the pointer later.
    event.setAccepted(m_preview.target != DropTarget::Nothing || m_edgeTimer.isActive() ||
                      event.type() == QEvent::DragEnter);
}

/// Shows what a drop at this point would do.
void StatementListView::showDropPreview(const StatementList& from, const QPoint& point) {
    m_draggedFrom = &from;
    m_draggedTo = point;
    const int row = positionAt(point);
    const DropPreview preview = previewOfDrop(m_program, from, m_list, row);
    if (std::exchange(m_preview, preview) != preview || row != m_previewRow) viewport()->update();
    m_previewRow = row;
    if (preview.caption.empty()) return delete m_hint;
    if (!m_hint) m_hint = new DropHint(*window());
    m_hint->showAt(viewport()->mapTo(window(), point), rowHeight(fontMetrics()),
                   lineOf(preview.caption));
}

void StatementListView::endOfDrag() {
    m_edgeTimer.stop();
    m_preview = {};
    delete m_hint;
    viewport()->update();
}

void StatementListView::dragLeaveEvent(QDragLeaveEvent*) { endOfDrag(); }

void StatementListView::dropEvent(QDropEvent* event) {
    endOfDrag();
    const StatementDrag* drag = statementDragIn(*event);
    if (!drag) return event->ignore();
    drag->dropOn(m_list, positionAt(event->position().toPoint()));
    event->setDropAction(Qt::MoveAction);
    event->accept();
}

/// Scrolls on while a drag rests at the upper or lower edge.
void StatementListView::scrollAtEdge(const QPoint& point) {
    constexpr int edge = 20, step = 8, milliseconds = 30;
    m_edgeStep = 0;
    if (point.y() < edge) m_edgeStep = -step;
    if (point.y() > viewport()->height() - edge) m_edgeStep = step;
    if (m_edgeStep == 0)
        m_edgeTimer.stop();
    else if (!m_edgeTimer.isActive())
        m_edgeTimer.start(milliseconds, this);
}

void StatementListView::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_edgeTimer.timerId()) return QListView::timerEvent(event);
    assert(m_draggedFrom);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + m_edgeStep);
    showDropPreview(*m_draggedFrom, m_draggedTo);
}

void StatementListView::paintEvent(QPaintEvent* event) {
    if (isLit()) {
        QPainter painter(viewport());
        drawDropGround(painter, viewport()->rect());
    }
    QListView::paintEvent(event);
}

}  // namespace orvanta::desktop
