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
    double headHeight(bool opensKind) const { return millimetres(opensKind ? 48 : 29); }

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
        const std::size_t fewest = pagesTo(leastRules, blocks);
        int rules = mostRules;
        while (rules > leastRules && !fitEvenly(blocks, fewest, rules)) --rules;
        const bool evenly = fitEvenly(blocks, fewest, rules);
        std::size_t next = 0;
        for (std::size_t page = 0; next < blocks.size() || page == 0; ++page) {
            openPage();
            const std::size_t end = evenly ? next + shareOf(page, fewest, blocks.size())
                                           : endOfPage(blocks, next, rules);
            for (; next < end; ++next) place(blocks[next], rules);
        }
        return std::move(m_pages);
    }

private:
    double heightOf(const Block& block, int rules) const {
        return block.height(rules, m_textHeight, m_grid);
    }

    /// How far the blocks fill a page; at least one goes on it.
    std::size_t endOfPage(const std::vector<Block>& blocks, std::size_t first, int rules) const {
        double y = m_grid.headHeight(first == 0);
        std::size_t end = first;
        for (; end < blocks.size(); ++end) {
            y += heightOf(blocks[end], rules);
            if (y > m_end && end > first) break;
            y += m_grid.questionSpacing();
        }
        return end;
    }

    std::size_t pagesTo(int rules, const std::vector<Block>& blocks) const {
        std::size_t pages = 0;
        for (std::size_t next = 0; next < blocks.size(); ++pages)
            next = endOfPage(blocks, next, rules);
        return pages;
    }

    /// How many blocks go on a page where all pages get equally many; one more go on the later
    /// ones, whose heads are lower.
    static std::size_t shareOf(std::size_t page, std::size_t pages, std::size_t blocks) {
        return blocks == 0 ? 0 : blocks / pages + (page >= pages - blocks % pages ? 1 : 0);
    }

    bool fitEvenly(const std::vector<Block>& blocks, std::size_t pages, int rules) const {
        std::size_t next = 0;
        for (std::size_t page = 0; page < pages; ++page) {
            const std::size_t end = next + shareOf(page, pages, blocks.size());
            if (endOfPage(blocks, next, rules) < end) return false;
            next = end;
        }
        return true;
    }

    void openPage() {
        m_pages.push_back({m_kind, m_pages.empty(), {}});
        m_y = m_grid.headHeight(m_pages.back().opensKind);
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

/// What the person fills in: its name with a rule behind it, as a line from left to right.
void paintField(QPainter& painter, std::string_view name, const QLineF& line, const QFont& font,
                const PaperGrid& grid) {
    const QString caption = fromCp1252(name);
    painter.setFont(font);
    painter.setPen(theme::quietInk);
    painter.drawText(line.p1() - QPointF(0, grid.millimetres(1)), caption);
    const double written = grid.metrics(font).horizontalAdvance(caption) + grid.millimetres(2);
    painter.setPen(rulePen(grid));
    painter.drawLine(line.p1() + QPointF(written, 0), line.p2());
}

/// The name and the date where a kind begins. The name alone behind that, as pages may come apart.
void paintPerson(QPainter& painter, const SheetPage& page, double width, const PaperGrid& grid) {
    const auto line = [&](double left, double right, double bottom) {
        return QLineF(left, grid.millimetres(bottom), right, grid.millimetres(bottom));
    };
    const QFont font = PaperGrid::questionFont();
    if (!page.opensKind)
        return paintField(painter, nameField, line(width * 0.62, width, 21), PaperGrid::font(8),
                          grid);
    const double dateLeft = width * 0.68;
    paintField(painter, nameField, line(0, dateLeft - grid.millimetres(4), 24), font, grid);
    paintField(painter, dateField, line(dateLeft, width, 24), font, grid);
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
    paintPerson(painter, page, width, grid);

    const double top = page.opensKind ? 32 : 15.5, size = 6;
    const QRectF icon(0, grid.millimetres(top), grid.millimetres(size), grid.millimetres(size));
    rowIcon(imageOf(page.kind)).paint(&painter, icon.toRect());
    painter.setPen(theme::ink);
    painter.setFont(PaperGrid::font(12, true));
    painter.drawText(at(top, size).adjusted(grid.numberWidth(), 0, 0, 0),
                     Qt::AlignLeft | Qt::AlignVCenter,
                     fromCp1252(headingOf(page.kind, page.opensKind)));
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
