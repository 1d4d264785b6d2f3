#pragma once

#include <QPixmap>
#include <QPoint>
#include <QStyledItemDelegate>

#include "analyze/mapping_counts.h"
#include "desktop/enlargement.h"
#include "desktop/letter_widths.h"
#include "view/statement_list.h"

namespace orvanta::desktop {

class StatementListView;

/// Draws the rows of a statement list, all of one height.
class StatementRowPainter : public QStyledItemDelegate {
public:
    StatementRowPainter(const StatementList& list, StatementListView& view);

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override;

private:
    const StatementList& m_list;
    const StatementListView& m_view;
};

/// The lengths of which rows are made, in logical pixels.
struct RowLengths {
    int picture = enlarged(16), smallPicture = enlarged(12);
    int leftMargin = enlarged(10), gap = enlarged(8), numberGap = enlarged(4);
    int indentStep = enlarged(16), aboveAndBelow = enlarged(12);
    int edge = enlarged(4), quietEdge = enlarged(2);

    int textLeft(const Row& row) const {
        return leftMargin + row.indent * indentStep + picture + gap;
    }
};

/// Of a row whose text has so many lines.
int rowHeight(const QFontMetrics& metrics, int lines = 1);
/// The width that each line of a row has for its text, in a list whose rows have so many lines.
/// `counts`: as in the list's view.
int textRoom(const Row& row, int rowWidth, int lines, const MappingCounts* counts,
             const LetterWidths& letters, const RowLengths& lengths = {});

/// What a list says below its rows, from `top` of its viewport down, if all of it fits.
void drawHint(QPainter& painter, const QWidget& viewport, int top, const QString& hint);

/// The ground of what would take a drop.
void drawDropGround(QPainter& painter, const QRect& place);

/// A statement on one line.
QString lineOf(std::string_view text);

/// The small card that hangs at the pointer while a row is dragged.
QPixmap dragCard(const Row& row, const QFont& font, qreal pixelRatio);

}  // namespace orvanta::desktop
