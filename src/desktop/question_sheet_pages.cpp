#include "desktop/question_sheet_pages.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QTextLayout>
#include <algorithm>
#include <array>
#include <cassert>
#include <utility>

#include "desktop/art.h"
#include "desktop/conversions.h"
#include "desktop/theme.h"
#include "presentation/sheet_texts.h"

namespace orvanta::desktop {

namespace {

constexpr int leastRules = 3, mostRules = 5;

/// Lengths on the paper, in pixels of the device that stands for it.
class PaperGrid {
public:
    explicit PaperGrid(const QPaintDevice& device) : m_device(device) {}

    double millimetres(double length) const {
        constexpr double millimetresInInch = 25.4;
        return length * m_device.logicalDpiY() / millimetresInInch;
    }
    static QFont font(double points, bool bold = false) {
        QFont font(QStringList{QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans")});
        font.setPointSizeF(points);
        font.setBold(bold);
        return font;
    }
    static QFont questionFont() { return font(9.5); }
    /// The font with the device's resolution, to lay text out for it.
    QFont onDevice(const QFont& font) const {
        return {font, const_cast<QPaintDevice*>(&m_device)};  // Qt only reads the device
    }
    QFontMetricsF metrics(const QFont& font) const { return QFontMetricsF(onDevice(font)); }

    double ruleSpacing() const { return millimetres(8.5); }
    double questionSpacing() const { return millimetres(7); }
    double numberWidth() const { return millimetres(9); }
    double footHeight() const { return millimetres(9); }
    double headHeight(bool opensKind) const { return millimetres(opensKind ? 48 : 25); }

private:
    const QPaintDevice& m_device;
};

/// A question as it lies on the paper: its text broken into lines, no rules yet.
struct Block {
    QString number;
    std::vector<QString> texts;

    double height(int rules, double textHeight, const PaperGrid& grid) const {
        return static_cast<double>(texts.size()) * textHeight + rules * grid.ruleSpacing();
    }
};

Block blockOf(int number, const std::string& question, double width, const PaperGrid& grid) {
    Block block{QStringLiteral("%1.").arg(number), {}};
    const QString text = fromCp1252(question);
    QTextLayout layout(text, grid.onDevice(PaperGrid::questionFont()));
    QTextOption anyBreak;
    anyBreak.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);  // a word may be too long
    layout.setTextOption(anyBreak);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        block.texts.push_back(text.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return block;
}

/// Fills pages from the top with blocks that are not torn.
class Flow {
public:
    Flow(StatementKind kind, const QSizeF& printable, const PaperGrid& grid)
        : m_kind(kind),
          m_grid(grid),
          m_end(printable.height() - grid.footHeight()),
          m_textHeight(grid.metrics(PaperGrid::questionFont()).lineSpacing()) {}

    std::vector<SheetPage> pagesOf(const std::vector<Block>& blocks) {
        m_pages.clear();
        openPage();
        std::size_t next = 0;
        while (next < blocks.size()) {
            const std::size_t end = endOfPage(blocks, next, leastRules);
            int rules = leastRules;
            while (rules < mostRules && endOfPage(blocks, next, rules + 1) == end) ++rules;
            for (; next < end; ++next) place(blocks[next], rules);
            if (next < blocks.size()) openPage();
        }
        return std::move(m_pages);
    }

private:
    void openPage() {
        m_pages.push_back({m_kind, m_pages.empty(), {}});
        m_y = m_grid.headHeight(m_pages.back().opensKind);
    }

    /// How far the blocks fill the page that is open; at least one goes on it.
    std::size_t endOfPage(const std::vector<Block>& blocks, std::size_t first, int rules) const {
        double y = m_y;
        std::size_t end = first;
        for (; end < blocks.size(); ++end) {
            y += blocks[end].height(rules, m_textHeight, m_grid);
            if (y > m_end && end > first) break;
            y += m_grid.questionSpacing();
        }
        return end;
    }

    void place(const Block& block, int rules) {
        QString number = block.number;
        for (const QString& text : block.texts) put(m_textHeight, std::exchange(number, {}), text);
        for (int rule = 0; rule < rules; ++rule) put(m_grid.ruleSpacing(), {}, {});
        m_y += m_grid.questionSpacing();
    }

    void put(double height, const QString& number, const QString& text) {
        if (m_y + height > m_end && !m_pages.back().lines.empty()) openPage();
        m_y += height;
        m_pages.back().lines.push_back({m_y, number, text});
    }

    StatementKind m_kind;
    const PaperGrid& m_grid;
    double m_end, m_textHeight, m_y = 0;
    std::vector<SheetPage> m_pages;
};

QPen rulePen(const PaperGrid& grid) { return {theme::quietInk, grid.millimetres(0.2)}; }

/// "Name" and "Date", each with a rule behind it.
void paintPerson(QPainter& painter, double bottom, double width, const PaperGrid& grid) {
    painter.setFont(PaperGrid::questionFont());
    const double dateLeft = width * 0.68, gap = grid.millimetres(2);
    const auto field = [&](double left, double right, std::string_view name) {
        const QString caption = fromCp1252(name);
        painter.setPen(theme::quietInk);
        painter.drawText(QPointF(left, bottom - grid.millimetres(1)), caption);
        left += grid.metrics(PaperGrid::questionFont()).horizontalAdvance(caption) + gap;
        painter.setPen(rulePen(grid));
        painter.drawLine(QPointF(left, bottom), QPointF(right, bottom));
    };
    field(0, dateLeft - 2 * gap, nameField);
    field(dateLeft, width, dateField);
}

void paintHead(QPainter& painter, const QuestionSheets& sheets, const SheetPage& page, double width,
               const PaperGrid& grid) {
    const auto at = [&](double top, double height) {
        return QRectF(0, grid.millimetres(top), width, grid.millimetres(height));
    };
    painter.setPen(theme::deepBlue);
    painter.setFont(PaperGrid::font(page.opensKind ? 16 : 10, true));
    painter.drawText(at(0, 9), Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                     fromCp1252(sheets.title));
    painter.fillRect(QRectF(0, grid.millimetres(10), width, grid.millimetres(0.6)),
                     theme::deepBlue);
    if (page.opensKind) paintPerson(painter, grid.millimetres(24), width, grid);

    const double top = page.opensKind ? 32 : 13.5, size = 6;
    const QRectF icon(0, grid.millimetres(top), grid.millimetres(size), grid.millimetres(size));
    rowIcon(imageOf(page.kind)).paint(&painter, icon.toRect());
    painter.setPen(theme::ink);
    painter.setFont(PaperGrid::font(12, true));
    painter.drawText(at(top, size).adjusted(grid.numberWidth(), 0, 0, 0),
                     Qt::AlignLeft | Qt::AlignVCenter, fromCp1252(nameOfSeveral(page.kind)));
}

void paintLine(QPainter& painter, const SheetLine& line, double width, const PaperGrid& grid) {
    const double left = grid.numberWidth();
    if (line.isRule()) {
        painter.setPen(rulePen(grid));
        painter.drawLine(QPointF(left, line.bottom), QPointF(width, line.bottom));
        return;
    }
    const double baseline = line.bottom - grid.metrics(PaperGrid::questionFont()).descent();
    painter.setFont(PaperGrid::questionFont());
    painter.setPen(theme::deepBlue);
    painter.drawText(QPointF(0, baseline), line.number);
    painter.setPen(theme::ink);
    painter.drawText(QPointF(left, baseline), line.text);
}

}  // namespace

std::vector<SheetPage> sheetPages(const QuestionSheets& sheets, const QSizeF& printable,
                                  const QPaintDevice& device) {
    const PaperGrid grid(device);
    std::vector<SheetPage> pages;
    for (const StatementKind kind : statementKinds) {
        std::vector<Block> blocks;
        int number = 0;
        for (const std::string& question : sheets.questions[kind])
            blocks.push_back(
                blockOf(++number, question, printable.width() - grid.numberWidth(), grid));
        for (SheetPage& page : Flow(kind, printable, grid).pagesOf(blocks))
            pages.push_back(std::move(page));
    }
    return pages;
}

void paintSheetPage(QPainter& painter, const QuestionSheets& sheets,
                    const std::vector<SheetPage>& pages, std::size_t index,
                    const QSizeF& printable) {
    assert(index < pages.size());
    const PaperGrid grid(*painter.device());
    const SheetPage& page = pages[index];
    paintHead(painter, sheets, page, printable.width(), grid);
    for (const SheetLine& line : page.lines) paintLine(painter, line, printable.width(), grid);
    painter.setPen(theme::quietInk);
    painter.setFont(PaperGrid::font(8));
    painter.drawText(QRectF(0, 0, printable.width(), printable.height()),
                     Qt::AlignHCenter | Qt::AlignBottom,
                     fromCp1252(pageOf(index + 1, pages.size())));
}

}  // namespace orvanta::desktop
