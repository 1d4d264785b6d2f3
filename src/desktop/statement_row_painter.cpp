#include "desktop/statement_row_painter.h"

#include <QPainter>
#include <algorithm>

#include "core/statement_kind.h"
#include "desktop/art.h"
#include "desktop/conversions.h"
#include "desktop/statement_list_view.h"
#include "desktop/theme.h"

namespace orvanta::desktop {

namespace {

constexpr int pictureSize = 16, leftMargin = 10, gap = 8, indentStep = 16, edgeWidth = 4;

QColor inkOf(const Row& row) {
    if (!row.colour) return theme::ink;
    return QColor(row.colour->red, row.colour->green, row.colour->blue);
}

void drawGround(QPainter& painter, const QStyleOptionViewItem& option) {
    const QRect& place = option.rect;
    if (option.state & QStyle::State_Selected) {
        painter.fillRect(place, theme::selection);
        painter.fillRect(QRect(place.topLeft(), QSize(edgeWidth, place.height())), theme::deepBlue);
    } else if (option.state & QStyle::State_MouseOver) {
        painter.fillRect(place, theme::sideGround);
    }
    painter.fillRect(QRect(place.left(), place.bottom(), place.width(), 1),
                     option.palette.color(QPalette::Midlight));
}

void drawContent(QPainter& painter, const QRect& place, const Row& row, const QFont& font) {
    const int left = place.left() + leftMargin + row.indent * indentStep;
    const QRect picture(left, place.top() + (place.height() - pictureSize) / 2, pictureSize,
                        pictureSize);
    rowIcon(row.image).paint(&painter, picture);
    const QRect room = place.adjusted(picture.right() + 1 + gap - place.left(), 0, -gap, 0);
    painter.setFont(font);
    painter.setPen(inkOf(row));
    const QString shown =
        painter.fontMetrics().elidedText(lineOf(row.text), Qt::ElideRight, room.width());
    painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, shown);
}

/// Draws at the right of a row what is mapped under it; returns where that begins.
int drawCounts(QPainter& painter, const QStyleOptionViewItem& option,
               const MappingCounts::Count& count) {
    constexpr int smallPicture = 12, numberGap = 4;
    const QRect& place = option.rect;
    const QFontMetrics metrics(option.font);
    painter.setFont(option.font);
    painter.setPen(option.palette.color(QPalette::PlaceholderText));
    int right = place.right() - gap;
    for (const auto& [kind, number] : {std::pair(StatementKind::Weakness, count.weaknesses),
                                       std::pair(StatementKind::Strength, count.strengths)}) {
        // Wide enough for two digits, so that the numbers of all rows stand below each other.
        const QString text = QString::number(number);
        const int width = std::max(metrics.horizontalAdvance(text),
                                   metrics.horizontalAdvance(QStringLiteral("00")));
        painter.drawText(QRect(right - width, place.top(), width, place.height()),
                         Qt::AlignLeft | Qt::AlignVCenter, text);
        right -= width + numberGap + smallPicture;
        rowIcon(imageOf(kind))
            .paint(&painter, QRect(right, place.top() + (place.height() - smallPicture) / 2,
                                   smallPicture, smallPicture));
        right -= gap;
    }
    return right;
}

}  // namespace

int rowHeight(const QFontMetrics& metrics) { return std::max(pictureSize, metrics.height()) + 12; }

void drawDropGround(QPainter& painter, const QRect& place) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(theme::deepBlue, 2));
    painter.setBrush(theme::dropGround);
    painter.drawRoundedRect(QRectF(place).adjusted(1, 1, -1, -1), 4, 4);
}

QString lineOf(std::string_view text) {
    QString line = fromCp1252(text);
    for (QChar& character : line)
        if (character < u' ') character = u' ';
    return line;
}

StatementRowPainter::StatementRowPainter(const StatementList& list, StatementListView& view)
    : QStyledItemDelegate(&view), m_list(list), m_view(view) {}

QSize StatementRowPainter::sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const {
    return {leftMargin + pictureSize + gap, rowHeight(option.fontMetrics)};
}

void StatementRowPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
    painter->save();
    if (m_view.litRow() == index.row() + 1)
        drawDropGround(*painter, option.rect);
    else if (!m_view.isLit())
        drawGround(*painter, option);
    const Row& row = m_list.row(index.row() + 1);
    QRect room = option.rect;
    const MappingCounts* counts = m_view.mappingCounts();
    if (counts && row.image > imageOf(StatementKind::Weakness))
        room.setRight(drawCounts(*painter, option, counts->of(row.key)));
    drawContent(*painter, room, row, option.font);
    painter->restore();
}

QPixmap dragCard(const Row& row, const QFont& font, qreal pixelRatio) {
    constexpr int widest = 280;
    const QFontMetrics metrics(font);
    const int width = std::min(widest, leftMargin + pictureSize + 2 * gap + 4 +
                                           metrics.horizontalAdvance(lineOf(row.text)));
    const QSize size(width, rowHeight(metrics));
    QPixmap card(size * pixelRatio);
    card.setDevicePixelRatio(pixelRatio);
    card.fill(Qt::transparent);
    QPainter painter(&card);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setOpacity(0.95);
    painter.setPen(QPen(theme::deepBlue, 1));
    painter.setBrush(theme::paper);
    painter.drawRoundedRect(QRectF(QPointF(), QSizeF(size)).adjusted(0.5, 0.5, -0.5, -0.5), 6, 6);
    Row level = row;
    level.indent = 0;
    drawContent(painter, QRect(QPoint(), size), level, font);
    return card;
}

}  // namespace orvanta::desktop
