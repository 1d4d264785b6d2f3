#include "desktop/whereabouts_view.h"

#include <QPainter>
#include <QTimer>
#include <utility>

#include "core/statement_lists.h"
#include "desktop/art.h"
#include "view/windows1252.h"

namespace orvanta::desktop {

namespace {

constexpr int pictureSize = 12, gap = 4, groupGap = 16;

}  // namespace

WhereaboutsView::WhereaboutsView(Program& program, Label& model, const PixelGrid& pixelGrid,
                                 QWidget* parent)
    : QLabel(parent), m_program(program), m_model(model) {
    setTextFormat(Qt::PlainText);
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
    m_model.setVisible(failed || !m_shown.place.empty());
    setText(failed ? m_failure : fromCp1252(inWords(m_shown)));
    update();
}

void WhereaboutsView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    if (m_failure.isEmpty()) return drawWhereabouts(painter);
    painter.drawText(rect(), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(m_failure, Qt::ElideMiddle, width()));
}

void WhereaboutsView::drawWhereabouts(QPainter& painter) const {
    painter.setPen(palette().color(QPalette::PlaceholderText));
    int right = width();
    for (auto kind = statementKinds.rbegin(); kind != statementKinds.rend(); ++kind)
        right = drawCount(painter, right, *kind) - groupGap;
    const QRect room(0, 0, right, height());
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(fromCp1252(m_shown.place), Qt::ElideRight, right));
}

/// Draws the picture and the number of a kind; returns where they begin.
int WhereaboutsView::drawCount(QPainter& painter, int right, StatementKind kind) const {
    const QString count = QString::number(m_shown.counts[kind]);
    const int left = right - fontMetrics().horizontalAdvance(count);
    painter.drawText(QRect(left, 0, right - left, height()), Qt::AlignRight | Qt::AlignVCenter,
                     count);
    const QRect picture(left - gap - pictureSize, (height() - pictureSize) / 2, pictureSize,
                        pictureSize);
    rowIcon(imageOf(kind)).paint(&painter, picture);
    return picture.left();
}

}  // namespace orvanta::desktop
