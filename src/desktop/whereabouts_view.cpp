#include "desktop/whereabouts_view.h"

#include <QPainter>
#include <QTimer>
#include <utility>

#include "core/statement_lists.h"
#include "desktop/art.h"
#include "desktop/enlargement.h"
#include "desktop/theme.h"
#include "view/windows1252.h"

namespace orvanta::desktop {

namespace {

/// The lengths of which the line is made, in logical pixels.
struct LineLengths {
    int smallPicture = enlarged(12), numberGap = enlarged(4), countGap = enlarged(14);
    int kindPicture = enlarged(16), gap = enlarged(8), sideMargin = enlarged(24);
    int segmentHeight = enlarged(5), segmentGap = enlarged(4);
};

constexpr int middleLine = static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter) | Qt::TextSingleLine;

QRect pictureIn(const QRect& room, int left, int size) {
    return {left, room.top() + (room.height() - size) / 2, size, size};
}

/// Draws words as far as there is room; returns where they end.
int drawWords(QPainter& painter, const QRect& room, const QString& words) {
    painter.drawText(room, middleLine,
                     painter.fontMetrics().elidedText(words, Qt::ElideRight, room.width()));
    return room.left() + painter.fontMetrics().horizontalAdvance(words);
}

}  // namespace

WhereaboutsView::WhereaboutsView(Program& program, Label& model, const PixelGrid& pixelGrid,
                                 QWidget* parent)
    : QLabel(parent), m_program(program), m_model(model) {
    setTextFormat(Qt::PlainText);
    const int sideMargin = LineLengths().sideMargin;
    setContentsMargins(sideMargin, 0, sideMargin, 0);
    FrmMain& form = program.frmMain;
    for (const auto list : statementLists) (form.*list).watch(*this);
    for (Control* control : form.controls.all())
        if (control->is<orvanta::Panel>() || control->is<Label>())
            control->changed.subscribe([this] { mayDiffer(); });
    const auto showSize = [this, pixelGrid] { setFont(pixelGrid.font(m_model.fontSize())); };
    model.changed.subscribe(showSize);
    showSize();
    look();
}

void WhereaboutsView::tellOf(RescuedSaves& saves) {
    m_saves = &saves;
    saves.changed.subscribe([this] { mayDiffer(); });
}

void WhereaboutsView::mayDiffer() {
    if (std::exchange(m_lookPending, true)) return;
    QTimer::singleShot(0, this, [this] { look(); });
}

void WhereaboutsView::look() {
    m_lookPending = false;
    m_shown = whereaboutsOf(m_program);
    m_failure = m_saves ? QString::fromStdString(m_saves->line()) : QString();
    const bool failed = !m_failure.isEmpty();
    m_model.setToolTip(failed ? windows1252From(m_saves->details()) : countsInWords(m_shown));
    m_model.setVisible(failed || m_shown.step > 0);
    setText(failed ? m_failure : fromCp1252(inWords(m_shown)));
    update();
}

void WhereaboutsView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), theme::paper);
    if (m_failure.isEmpty()) return drawWhereabouts(painter);
    const QRect room = contentsRect();
    painter.drawText(room, middleLine,
                     fontMetrics().elidedText(m_failure, Qt::ElideMiddle, room.width()));
}

void WhereaboutsView::drawWhereabouts(QPainter& painter) const {
    drawSegments(painter);
    painter.setPen(palette().color(QPalette::PlaceholderText));
    const LineLengths lengths;
    QRect room = contentsRect().adjusted(0, 0, 0, -lengths.segmentHeight);
    for (auto kind = statementKinds.rbegin(); kind != statementKinds.rend(); ++kind)
        room.setRight(drawCount(painter, room, *kind) - lengths.countGap);
    drawPlace(painter, room);
}

void WhereaboutsView::drawPlace(QPainter& painter, const QRect& room) const {
    const LineLengths lengths;
    QRect left = room;
    if (m_shown.kind) {
        rowIcon(imageOf(*m_shown.kind))
            .paint(&painter, pictureIn(room, room.left(), lengths.kindPicture));
        left.setLeft(room.left() + lengths.kindPicture + lengths.gap);
    }
    QFont bold = font();
    bold.setBold(true);
    painter.setFont(bold);
    painter.setPen(theme::deepBlue);
    left.setLeft(drawWords(painter, left, fromCp1252(m_shown.stepName)) + lengths.gap);
    painter.setFont(font());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    drawWords(painter, left, fromCp1252(m_shown.question));
}

/// Draws the picture and the number of a kind at the right of the room; returns where they begin.
int WhereaboutsView::drawCount(QPainter& painter, const QRect& room, StatementKind kind) const {
    const LineLengths lengths;
    const QString count = QString::number(m_shown.counts[kind]);
    painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, count);
    const int left = room.right() - fontMetrics().horizontalAdvance(count) - lengths.numberGap;
    const int size = lengths.smallPicture;
    const QRect picture = pictureIn(room, left - size, size);
    smallRowIcon(imageOf(kind)).paint(&painter, picture);
    return picture.left();
}

/// One for each step over the whole width; those that have been reached are filled.
void WhereaboutsView::drawSegments(QPainter& painter) const {
    const LineLengths lengths;
    const QRect room = contentsRect();
    const auto edge = [&, this](int step) {
        return room.left() + (room.width() + lengths.segmentGap) * step / m_shown.stepCount;
    };
    for (int step = 0; step < m_shown.stepCount; ++step) {
        const QRect segment(QPoint(edge(step), room.bottom() + 1 - lengths.segmentHeight),
                            QPoint(edge(step + 1) - lengths.segmentGap - 1, room.bottom()));
        const bool isReached = step < m_shown.step;
        painter.setPen(isReached ? theme::deepBlue : palette().color(QPalette::Mid));
        painter.setBrush(isReached ? theme::deepBlue : theme::paper);
        painter.drawRect(segment.adjusted(0, 0, -1, -1));
    }
}

}  // namespace orvanta::desktop
