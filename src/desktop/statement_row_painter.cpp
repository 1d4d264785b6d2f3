#include "desktop/statement_row_painter.h"

#include <QPainter>
#include <QTextLayout>
#include <algorithm>

#include "core/statement_kind.h"
#include "desktop/art.h"
#include "desktop/conversions.h"
#include "desktop/statement_list_view.h"
#include "desktop/theme.h"

namespace orvanta::desktop {

namespace {

QColor inkOf(const Row& row) {
    if (!row.colour) return theme::ink;
    return QColor(row.colour->red, row.colour->green, row.colour->blue);
}

/// The chosen row is strong where the keyboard is, and quiet in the other lists.
void drawGround(QPainter& painter, const QStyleOptionViewItem& option, bool hasKeyboard) {
    const QRect& place = option.rect;
    if (option.state & QStyle::State_Selected) {
        const RowLengths lengths;
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

/// The text in as many lines as it needs; the last one that there may be is cut.
QStringList brokenAt(const QString& text, const QFont& font, int width, int mostLines) {
    QStringList lines;
    QTextLayout layout(text, font);
    layout.beginLayout();
    int begin = 0;
    for (QTextLine line; lines.size() + 1 < mostLines && (line = layout.createLine()).isValid();) {
        line.setLineWidth(width);
        if (begin + line.textLength() >= text.length()) break;
        lines << text.mid(begin, line.textLength()).trimmed();
        begin += line.textLength();
    }
    layout.endLayout();
    return lines << QFontMetrics(font).elidedText(text.mid(begin), Qt::ElideRight, width);
}

void drawContent(QPainter& painter, const QRect& place, const Row& row, const QFont& font,
                 int mostLines) {
    const RowLengths lengths;
    const QRect room = place.adjusted(lengths.textLeft(row), 0, -lengths.gap, 0);
    rowIcon(row.image).paint(&painter, QRect(room.left() - lengths.gap - lengths.picture,
                                             place.top() + (place.height() - lengths.picture) / 2,
                                             lengths.picture, lengths.picture));
    painter.setFont(font);
    painter.setPen(inkOf(row));
    const QStringList lines = brokenAt(lineOf(row.text), font, room.width(), mostLines);
    const int height = painter.fontMetrics().height();
    QRect line(room.left(), room.center().y() - static_cast<int>(lines.size()) * height / 2 + 1,
               room.width(), height);
    for (const QString& text : lines) {
        painter.drawText(line, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine, text);
        line.translate(0, height);
    }
}

/// Wide enough for two digits, so that the numbers of all rows stand below each other.
int numberWidth(int number, const QFontMetrics& metrics) {
    return std::max(metrics.horizontalAdvance(QString::number(number)),
                    metrics.horizontalAdvance(QStringLiteral("00")));
}

bool hasCounts(const Row& row, const MappingCounts* counts) {
    return counts && row.image > imageOf(StatementKind::Weakness);
}

/// Draws at the right of a row what is mapped under it; returns where that begins.
int drawCounts(QPainter& painter, const QStyleOptionViewItem& option,
               const MappingCounts::Count& count) {
    const QRect& place = option.rect;
    const QFontMetrics metrics(option.font);
    const RowLengths lengths;
    painter.setFont(option.font);
    painter.setPen(option.palette.color(QPalette::PlaceholderText));
    int right = place.right() - lengths.gap;
    for (const auto& [kind, number] : {std::pair(StatementKind::Weakness, count.weaknesses),
                                       std::pair(StatementKind::Strength, count.strengths)}) {
        const int width = numberWidth(number, metrics);
        painter.drawText(QRect(right - width, place.top(), width, place.height()),
                         Qt::AlignLeft | Qt::AlignVCenter, QString::number(number));
        const int size = lengths.smallPicture;
        right -= width + lengths.numberGap + size;
        smallRowIcon(imageOf(kind))
            .paint(&painter, QRect(right, place.top() + (place.height() - size) / 2, size, size));
        right -= lengths.gap;
    }
    return right;
}

}  // namespace

int rowHeight(const QFontMetrics& metrics, int lines) {
    const RowLengths lengths;
    return std::max(lengths.picture, metrics.height() * lines) + lengths.aboveAndBelow;
}

int textRoom(const Row& row, int rowWidth, const MappingCounts* counts, const QFontMetrics& metrics,
             const RowLengths& lengths) {
    int room = rowWidth - lengths.textLeft(row) - lengths.gap;
    if (!hasCounts(row, counts)) return room;
    const MappingCounts::Count count = counts->of(row.key);
    for (const int number : {count.strengths, count.weaknesses})
        room -=
            numberWidth(number, metrics) + lengths.numberGap + lengths.smallPicture + lengths.gap;
    return room - lengths.gap;
}

void drawHint(QPainter& painter, const QWidget& viewport, int top, const QString& hint) {
    const int margin = enlarged(16);
    painter.setPen(viewport.palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport.rect().adjusted(margin, top + margin, -margin, 0),
                     static_cast<int>(Qt::AlignLeft | Qt::AlignTop) | Qt::TextWordWrap, hint);
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
    if (m_view.litRow() == index.row() + 1)
        drawDropGround(*painter, option.rect);
    else if (!m_view.isLit())
        drawGround(*painter, option, m_view.hasFocus());
    const Row& row = m_list.row(index.row() + 1);
    QRect room = option.rect;
    const MappingCounts* counts = m_view.mappingCounts();
    if (hasCounts(row, counts)) room.setRight(drawCounts(*painter, option, counts->of(row.key)));
    drawContent(*painter, room, row, option.font, m_view.linesPerRow());
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
    drawContent(painter, QRect(QPoint(), size), level, font, 1);
    return card;
}

}  // namespace orvanta::desktop
