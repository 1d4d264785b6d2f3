#include "desktop/statement_list_view.h"

#include <QApplication>
#include <QDrag>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QTimer>
#include <QToolTip>
#include <algorithm>
#include <cassert>
#include <cmath>
#include <utility>

#include "analyze/mapping.h"
#include "analyze/row_description.h"
#include "app/list_hints.h"
#include "desktop/conversions.h"
#include "desktop/enlargement.h"
#include "desktop/statement_row_painter.h"

namespace orvanta::desktop {

namespace {

constexpr int designEdge = 24;  // from the upper or lower end in which a drag scrolls

}  // namespace

StatementListView::StatementListView(Program& program, StatementList& list, QWidget* parent)
    : QListView(parent),
      m_program(program),
      m_list(list),
      m_model(list),
      m_strip(&ReadingStrip::joinedBy(*this)) {
    if (isMappingList(program.frmMain, list))
        m_mappingCounts = std::make_unique<MappingCounts>(list);
    m_fit = std::make_unique<RowFit>(list, m_mappingCounts.get());
    m_model.describe = [this](int position) {
        return describeRow(m_list, position, m_mappingCounts.get());
    };
    setModel(&m_model);
    setItemDelegate(new StatementRowPainter(list, *this));
    setUniformItemSizes(true);
    setSelectionMode(SingleSelection);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setDragDropMode(DragDrop);
    setMouseTracking(true);
    m_model.selectionMayDiffer = [this] {
        if (m_mappingCounts) viewport()->update();
        showSelection();
    };
    m_model.rowWentOut = [this](int position) { m_wentOut = position; };
    m_model.rowsDiffer = [this] {
        if (!std::exchange(m_measuring, true))
            QTimer::singleShot(0, this, [this] { measureRows(); });
    };
    m_model.rowCameIn = [this](int position) {
        if (m_fit->include(position)) layOutRows();
        if (m_mappingCounts) viewport()->update();  // the row that it is mapped under tells of it
        m_lastCameIn = position;
        if (m_rowsCameIn++ == 0) QTimer::singleShot(0, this, [this] { reveal(); });
    };
    showSelection();
}

StatementListView::~StatementListView() {
    if (m_strip) m_strip->leave(*this);
}

/// What is filled anew begins at its top.
void StatementListView::reset() {
    QListView::reset();
    verticalScrollBar()->setValue(0);
}

void StatementListView::showSelection() {
    if (m_model.isChanging()) return;
    m_showing = true;
    const QModelIndex index = indexAtPosition(m_list.selected());
    if (index.isValid()) {
        selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
        m_wentOut = 0;
    } else {
        selectionModel()->clear();
    }
    m_showing = false;
    m_strip->tell(*this);
}

/// Brings a row that a person has just added into view. A list that was filled stays at its top.
void StatementListView::reveal() {
    if (m_rowsCameIn == 1 && isVisible()) scrollTo(indexAtPosition(m_lastCameIn));
    m_rowsCameIn = 0;
}

void StatementListView::selectionChanged(const QItemSelection& selected,
                                         const QItemSelection& deselected) {
    QListView::selectionChanged(selected, deselected);
    if (m_showing || m_model.isChanging()) return;
    const QModelIndexList chosen = selectionModel()->selectedIndexes();
    m_list.select(chosen.isEmpty() ? 0 : chosen.front().row() + 1);
}

/// The first key in a list where nothing is chosen goes on from where a row was taken out, or
/// chooses the first row, which Qt would pass over.
void StatementListView::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape && m_hand == Hand::Takes) {
        m_hand = Hand::CalledOff;
        return;
    }
    const bool turns = event->key() == Qt::Key_Left || event->key() == Qt::Key_Right;
    if (turns && m_strip->turn(event->key() == Qt::Key_Left ? -1 : 1)) return;
    const bool moves = event->key() == Qt::Key_Down || event->key() == Qt::Key_Up;
    if (!moves || m_list.hasSelection() || m_list.count() == 0)
        return QListView::keyPressEvent(event);
    const int next = event->key() == Qt::Key_Down ? m_wentOut : m_wentOut - 1;
    m_list.select(std::clamp(next, 1, m_list.count()));
}

void StatementListView::resizeEvent(QResizeEvent* event) {
    QListView::resizeEvent(event);
    measureRows();
}

void StatementListView::moveEvent(QMoveEvent* event) {
    QListView::moveEvent(event);
    m_strip->arrange();
}

void StatementListView::focusInEvent(QFocusEvent* event) {
    QListView::focusInEvent(event);
    if (m_list.hasSelection()) m_strip->tell(*this);
}

void StatementListView::changeEvent(QEvent* event) {
    QListView::changeEvent(event);
    if (event->type() == QEvent::FontChange) measureRows();
}

void StatementListView::measureRows() {
    m_measuring = false;
    m_fit->measure(fontMetrics(), viewport()->width());
    layOutRows();
}

/// Gives the rows their height, and the whole statement below them room for any of theirs.
void StatementListView::layOutRows() {
    m_strip->arrange();
    const int rows = rowHeight(fontMetrics(), linesPerRow());
    if (std::exchange(m_rowHeight, rows) != rows) scheduleDelayedItemsLayout();
}

void StatementListView::keepFree(int height) {
    // Above it whole rows only: one that was cut would look covered.
    const int above = contentsRect().height() - height,
              rows = rowHeight(fontMetrics(), linesPerRow());
    if (height > 0 && above > rows) height += above % rows;
    if (viewportMargins().bottom() != height) setViewportMargins(0, 0, 0, height);
}

QString StatementListView::chosenText() const {
    const Row* row = m_list.selectedRow();
    return row ? lineOf(row->text) : QString();
}

void StatementListView::mousePressEvent(QMouseEvent* event) {
    m_hand = Hand::Free;
    QListView::mousePressEvent(event);
}

void StatementListView::mouseMoveEvent(QMouseEvent* event) {
    hoveredOver(m_program, m_list, positionAt(event->position().toPoint()));
    if (m_hand != Hand::Free) return;
    const bool wasDragging = state() == DraggingState;
    QListView::mouseMoveEvent(event);
    // Qt begins a drag with the second motion; of a quick hand it may see but one.
    if (!wasDragging && state() == DraggingState) QListView::mouseMoveEvent(event);
}

void StatementListView::mouseReleaseEvent(QMouseEvent* event) {
    const Hand hand = std::exchange(m_hand, Hand::Free);
    // Behind a drag Qt would choose anew, by where the button was let go.
    if (hand == Hand::Free) return QListView::mouseReleaseEvent(event);
    if (hand == Hand::Takes) land(event->globalPosition().toPoint());
}

bool StatementListView::viewportEvent(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QListView::viewportEvent(event);
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), toolTip(), viewport());
    return true;
}

void StatementListView::startDrag(Qt::DropActions) {
    if (!m_list.hasSelection()) return;
    // Ahead of all else: the pointer may be gone from the list before the drag's first motion.
    draggedOver(m_program, m_list);
    // Of a quick hand the release stands right behind this motion; the drag's own loop would be
    // waiting for it in vain.
    m_hand = Hand::Takes;
    QTimer::singleShot(0, this, [this] { carry(); });
}

/// Drags the row, unless it was let go or called off meanwhile.
void StatementListView::carry() {
    if (m_hand != Hand::Takes) return;
    m_hand = Hand::Free;
    auto* load = new StatementDrag(m_list);
    const std::shared_ptr<const Drop> drop = load->drop();
    auto* drag = new QDrag(this);
    drag->setMimeData(load);
    QPixmap nothing(1, 1);  // the load has a picture of its own
    nothing.fill(Qt::transparent);
    drag->setPixmap(nothing);
    const QPointer<StatementDrag> carried = load;
    DragWatch watch;
    drag->exec(Qt::MoveAction);
    if (carried) carried->hide();
    if (drop->list) return drop->finish(m_program);
    // Let go before Qt saw where, or after the wheel had moved the rows under the pointer.
    if (const auto place = watch.letGoAt()) land(*place);
}

/// Drops the row at a point of the screen.
void StatementListView::land(const QPoint& place) {
    StatementListView* list = statementListAt(place);
    if (!list) return;
    const QPoint point = list->viewport()->mapFromGlobal(place);
    if (list->viewport()->rect().contains(point))  // a strip covers the rows beyond, or a frame
        list->dropAt(m_list, point).finish(m_program);
}

void StatementListView::dragEnterEvent(QDragEnterEvent* event) { passOver(*event); }
void StatementListView::dragMoveEvent(QDragMoveEvent* event) { passOver(*event); }

void StatementListView::passOver(QDragMoveEvent& event) {
    const StatementDrag* drag = statementDragIn(event);
    if (!drag) return event.ignore();
    draggedOver(m_program, m_list);
    const QPoint point = event.position().toPoint();
    showDropPreview(*drag, point);
    scrollAtEdge(point);
    event.setDropAction(Qt::MoveAction);
    // The whole list is asked again and again while the pointer moves within it; while it
    // scrolls, what takes the drop may come under the pointer later.
    event.setAccepted(m_preview.target != DropTarget::Nothing || m_edgeTimer.isActive() ||
                      event.type() == QEvent::DragEnter);
}

/// Shows what a drop at this point would do.
void StatementListView::showDropPreview(const StatementDrag& drag, const QPoint& point) {
    m_drag = &drag;
    m_draggedTo = point;
    const int row = positionAt(point);
    DropPreview preview = previewOfDrop(m_program, drag.from(), m_list, row);
    drag.show(*window(), viewport()->mapTo(window(), point), preview);
    if (std::exchange(m_previewRow, row) != row || preview != m_preview) viewport()->update();
    m_preview = std::move(preview);
}

void StatementListView::endOfDrag() {
    m_edgeTimer.stop();
    m_preview = {};
    m_drag = nullptr;
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

Drop StatementListView::dropAt(const StatementList& from, const QPoint& point) {
    draggedOver(m_program, m_list);
    const int row = positionAt(point);
    if (previewOfDrop(m_program, from, m_list, row).target == DropTarget::Nothing) return {};
    return {&m_list, row};
}

/// Scrolls on while a drag rests at the upper or lower edge: the longer and the nearer, the faster.
void StatementListView::scrollAtEdge(const QPoint& point) {
    constexpr int milliseconds = 10;
    const int edge = enlarged(designEdge);
    const int above = edge - point.y(), below = point.y() - (viewport()->height() - edge);
    m_edgeCloseness = std::min(std::max(above, below), edge) / static_cast<double>(edge);
    if (m_edgeCloseness <= 0) return m_edgeTimer.stop();
    if (above > below) m_edgeCloseness = -m_edgeCloseness;
    if (m_edgeTimer.isActive()) return;
    m_atEdge.start();
    m_sinceScroll.start();
    m_edgeTimer.start(milliseconds, this);
}

void StatementListView::timerEvent(QTimerEvent* event) {
    if (event->timerId() != m_edgeTimer.timerId()) return QListView::timerEvent(event);
    const double rows = rowsASecondAtEdge(std::abs(m_edgeCloseness), m_atEdge.elapsed() / 1000.0) *
                        m_sinceScroll.restart() / 1000.0;
    scrollBy(std::copysign(rows * m_rowHeight, m_edgeCloseness));
}

void StatementListView::scrollInDrag(int angle) {
    constexpr double notch = 120, rows = 3;
    scrollBy(-angle / notch * rows * m_rowHeight);
}

void StatementListView::scrollBy(double pixels) {
    m_unscrolled += pixels;
    const double whole = std::trunc(m_unscrolled);
    m_unscrolled -= whole;
    verticalScrollBar()->setValue(verticalScrollBar()->value() + static_cast<int>(whole));
    if (m_drag) showDropPreview(*m_drag, m_draggedTo);
}

void StatementListView::paintEvent(QPaintEvent* event) {
    if (isLit()) {
        QPainter painter(viewport());
        drawDropGround(painter, viewport()->rect());
    }
    QListView::paintEvent(event);
    QPainter painter(viewport());
    paintHint(painter);
}

/// Tells below the rows what comes there, as long as nothing has come.
void StatementListView::paintHint(QPainter& painter) {
    const int below = visualRect(indexAtPosition(m_list.count())).bottom();
    if (below > viewport()->height()) return;
    drawHint(painter, *viewport(), std::max(0, below),
             fromCp1252(hintIn(m_program.frmMain, m_list)));
}

double rowsASecondAtEdge(double closeness, double seconds) {
    constexpr double first = 8, last = 120, untilLast = 1.5;
    return (first + (last - first) * std::min(1.0, seconds / untilLast)) * (1 + closeness) / 2;
}

StatementListView* statementListAt(const QPoint& globalPoint) {
    for (QWidget* widget = QApplication::widgetAt(globalPoint); widget;
         widget = widget->parentWidget())
        if (auto* view = dynamic_cast<StatementListView*>(widget)) return view;
    return nullptr;
}

}  // namespace orvanta::desktop
