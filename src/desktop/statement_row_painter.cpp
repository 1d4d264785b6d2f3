#include "desktop/statement_row_painter.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "core/statement_kind.h"
#include "desktop/art.h"
#include "desktop/conversions.h"
#include "desktop/statement_list_view.h"
#include "desktop/text_lines.h"
#include "desktop/theme.h"

namespace orvanta::desktop {

namespace {

QColor inkOf(const Row& row) {
    if (!row.colour) return theme::ink;
    return QColor(row.colour->red, row.colour->green, row.colour->blue);
}

/// The chosen row is strong where the keyboard is, and quiet in the other lists.
void drawGround(QPainter& painter, const QStyleOptionViewItem& option, const RowLengths& lengths,
                bool hasKeyboard) {
    const QRect& place = option.rect;
    if (option.state & QStyle::State_Selected) {
        const int edge = hasKeyboard ? lengths.edge : lengths.quietEdge;
        painter.fillRect(place, hasKeyboard ? theme::selection : theme::sideGround);
        painter.fillRect(QRect(place.topLeft(), QSize(edge, place.height())),
                         hasKeyboard ? theme::deepBlue : option.palette.color(QPalette::Mid));
    } else if (option.state & QStyle::State_MouseOver) {
        painter.fillRect(place, theme::sideGround);
    }
    painter.fillRect(QRect(place.left(), place.bottom(), place.width(), 1),
                     option.palette.color(QPalette::Midlight));
}

void drawContent(QPainter& painter, const QRect& place, const Row& row, const QFont& font,
                 const RowLengths& lengths, int mostLines) {
    const QRect room = place.adjusted(lengths.textLeft(row), 0, -lengths.gap, 0);
    rowIcon(row.image).paint(&painter, QRect(room.left() - lengths.gap - lengths.picture,
                                             place.top() + (place.height() - lengths.picture) / 2,
                                             lengths.picture, lengths.picture));
    painter.setFont(font);
    painter.setPen(inkOf(row));
    QStringList lines = linesOf(lineOf(row.text), font, room.width(), mostLines);
    lines.back() = painter.fontMetrics().elidedText(lines.back(), Qt::ElideRight, room.width());
    const int height = painter.fontMetrics().height();
    QRect line(room.left(), room.center().y() - static_cast<int>(lines.size()) * height / 2 + 1,
               room.width(), height);
    for (const QString& text : lines) {
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
        line.translate(0, height);
    }
}

/// Wide enough for two digits, so that the numbers of all rows stand below each other.
/// `widthOf`: of a text in the font.
template <class WidthOf>
int numberWidth(int number, WidthOf widthOf) {
    return static_cast<int>(std::ceil(std::max(widthOf(std::to_string(number)), widthOf("00"))));
}

int numberWidth(int number, const QFontMetrics& metrics) {
    return numberWidth(number, [&](std::string_view digits) {
        return static_cast<double>(metrics.horizontalAdvance(lineOf(digits)));
    });
}

bool hasCounts(const Row& row, const MappingCounts* counts) {
    return counts && row.image > imageOf(StatementKind::Weakness);
}

/// Draws one number and its picture at the right of a place; returns where they begin.
int drawCount(QPainter& painter, const QRect& place, const RowLengths& lengths, StatementKind kind,
              int number, int width) {
    painter.drawText(QRect(place.right() - width, place.top(), width, place.height()),
                     Qt::AlignLeft | Qt::AlignVCenter, QString::number(number));
    const int size = lengths.smallPicture, left = place.right() - width - lengths.numberGap - size;
    smallRowIcon(imageOf(kind))
        .paint(&painter, QRect(left, place.top() + (place.height() - size) / 2, size, size));
    return left;
}

/// Draws at the right of a row what is mapped under it, below each other if there are two lines;
/// returns where that begins.
int drawCounts(QPainter& painter, const QStyleOptionViewItem& option, const RowLengths& lengths,
               const MappingCounts::Count& count, int lines) {
    const QFontMetrics metrics(option.font);
    painter.setFont(option.font);
    painter.setPen(option.palette.color(QPalette::PlaceholderText));
    const int strengths = numberWidth(count.strengths, metrics),
              weaknesses = numberWidth(count.weaknesses, metrics), gap = lengths.gap;
    const auto draw = [&](const QRect& place, StatementKind kind, int number, int width) {
        return drawCount(painter, place, lengths, kind, number, width) - gap;
    };
    QRect place = option.rect.adjusted(0, 0, -gap, 0);
    if (lines == 1) {
        place.setRight(draw(place, StatementKind::Weakness, count.weaknesses, weaknesses));
        return draw(place, StatementKind::Strength, count.strengths, strengths);
    }
    const int widest = std::max(strengths, weaknesses);
    const QRect upper(place.left(), place.center().y() - metrics.height() + 1, place.width(),
                      metrics.height());
    draw(upper.translated(0, metrics.height()), StatementKind::Weakness, count.weaknesses, widest);
    return draw(upper, StatementKind::Strength, count.strengths, widest);
}

}  // namespace

int rowHeight(const QFontMetrics& metrics, int lines) {
    const RowLengths lengths;
    return std::max(lengths.picture, metrics.height() * lines) + lengths.aboveAndBelow;
}

int textRoom(const Row& row, int rowWidth, int lines, const MappingCounts* counts,
             const LetterWidths& letters, const RowLengths& lengths) {
    const int room = rowWidth - lengths.textLeft(row) - lengths.gap;
    if (!hasCounts(row, counts)) return room;
    const MappingCounts::Count count = counts->of(row.key);
    const auto width = [&](int number) {
        return numberWidth(number, [&](std::string_view digits) { return letters.of(digits); }) +
               lengths.numberGap + lengths.smallPicture + lengths.gap;
    };
    const int strengths = width(count.strengths), weaknesses = width(count.weaknesses);
    return room - lengths.gap -
           (lines == 1 ? strengths + weaknesses : std::max(strengths, weaknesses));
}

void drawHint(QPainter& painter, const QWidget& viewport, int top, const QString& hint) {
    const int margin = enlarged(16);
    const QRect room = viewport.rect().adjusted(margin, top + margin, -margin, 0);
    constexpr int broken = static_cast<int>(Qt::AlignLeft | Qt::AlignTop) | Qt::TextWordWrap;
    if (painter.boundingRect(room, broken, hint).bottom() > room.bottom()) return;
    painter.setPen(viewport.palette().color(QPalette::PlaceholderText));
    painter.drawText(room, broken, hint);
}

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
    const RowLengths lengths;
    return {lengths.leftMargin + lengths.picture + lengths.gap,
            rowHeight(option.fontMetrics, m_view.linesPerRow())};
}

void StatementRowPainter::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                const QModelIndex& index) const {
    painter->save();
    const RowLengths lengths;  // read once for all of the row
    if (m_view.litRow() == index.row() + 1)
        drawDropGround(*painter, option.rect);
    else if (!m_view.isLit())
        drawGround(*painter, option, lengths, m_view.hasFocus());
    const Row& row = m_list.row(index.row() + 1);
    QRect room = option.rect;
    const MappingCounts* counts = m_view.mappingCounts();
    if (hasCounts(row, counts))
        room.setRight(
            drawCounts(*painter, option, lengths, counts->of(row.key), m_view.linesPerRow()));
    drawContent(*painter, room, row, option.font, lengths, m_view.linesPerRow());
    painter->restore();
}

QPixmap dragCard(const Row& row, const QFont& font, qreal pixelRatio) {
    const RowLengths lengths;
    const QFontMetrics metrics(font);
    const int width =
        std::min(enlarged(280), lengths.leftMargin + lengths.picture + 2 * lengths.gap +
                                    enlarged(4) + metrics.horizontalAdvance(lineOf(row.text)));
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
    drawContent(painter, QRect(QPoint(), size), level, font, lengths, 1);
    return card;
}

}  // namespace orvanta::desktop
