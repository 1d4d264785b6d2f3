#include "reports/document_pages.h"

#include <algorithm>
#include <cmath>

namespace orvanta {

namespace {

// How high a text will be only the reader's fonts tell. These bounds, in parts of the type size,
// hold for texts of usual letters: the mean width of a letter with its blanks is about a half.
constexpr double narrowLetter = 0.45, wideLetter = 0.7;
constexpr double lineHeight = 1.15;

constexpr double cellSides = 11;  // points, left and right of its text

// What must not be torn leaves room on its page: Writer drops the lines of a row that is held
// together and turns out higher than a page.
constexpr double shareOfPage = 0.75;

double heightOf(const DocumentTable& table, double letter);

double heightOf(const DocumentParagraph& paragraph, double width, double letter) {
    double ink = 0;
    int size = paragraph.mark.size;
    for (const TextRun& run : paragraph.runs) {
        ink += static_cast<double>(run.text.size()) * run.format.size * letter;
        size = std::max(size, run.format.size);
    }
    return std::max(1.0, std::ceil(ink / width)) * size * lineHeight +
           paragraph.format.spaceBefore + paragraph.format.spaceAfter;
}

double heightOf(const DocumentCell& cell, double width, double letter) {
    if (cell.direction == TextDirection::Upward) return 0;
    double height = 0;
    for (const Block& block : cell.story.blocks)
        if (const auto* paragraph = std::get_if<DocumentParagraph>(&block))
            height += heightOf(*paragraph, width - cellSides, letter);
        else
            height += heightOf(*std::get<std::shared_ptr<DocumentTable>>(block), letter);
    return height;
}

double heightOf(const DocumentRow& row, const std::vector<int>& widths, double letter) {
    double height = row.height;
    for (std::size_t column = 0; column < row.cells.size(); ++column)
        height = std::max(height, heightOf(*row.cells[column], widths[column], letter));
    return height;
}

double heightOf(const DocumentTable& table, double letter) {
    double height = 0;
    for (const DocumentRow& row : table.rows) height += heightOf(row, table.columnWidths, letter);
    return height;
}

const DocumentParagraph* firstParagraph(const DocumentRow& row) {
    return std::get_if<DocumentParagraph>(&row.cells.front()->story.blocks.front());
}

bool beginsWithATable(const DocumentRow& row) { return !firstParagraph(row); }

/// Readers take the first paragraph of a row for the whole row.
bool isKeptWithNext(const DocumentRow& row) {
    const DocumentParagraph* first = firstParagraph(row);
    return first && first->format.keepWithNext;
}

/// As much room as before, but hardly any of it the line's own: a gap below may hang over the end
/// of a page, while a line that has no room there is all that the next one holds.
void makeLow(DocumentParagraph& blank) {
    blank.format.spaceAfter +=
        static_cast<int>(std::lround((blank.mark.size - lowestLine) * lineHeight));
    blank.mark.size = lowestLine;
}

void keepWithNext(DocumentRow& row, bool kept) {
    for (const auto& cell : row.cells)
        for (Block& block : cell->story.blocks)
            if (auto* paragraph = std::get_if<DocumentParagraph>(&block))
                paragraph->format.keepWithNext = kept;
}

class Care {
public:
    explicit Care(Document& document)
        : m_document(document),
          m_textWidth(document.page.width - document.page.left - document.page.right),
          m_textHeight(document.page.height - document.page.top - document.page.bottom),
          m_mostTogether(m_textHeight * shareOfPage) {}

    void take() {
        std::vector<Block>& blocks = m_document.body.blocks;
        const auto afterLastTable = std::ranges::find_if(blocks.rbegin(), blocks.rend(), isTable);
        for (auto block = blocks.begin(); block != afterLastTable.base(); ++block)
            if (auto* table = std::get_if<std::shared_ptr<DocumentTable>>(&*block))
                careFor(**table);
            else
                careFor(std::get<DocumentParagraph>(*block), isBlankBehindATable(block));
        if (isBlankBehindATable(std::prev(blocks.end())))
            m_document.body.lastParagraph().mark.size = lowestLine;  // a gap would need room here
    }

private:
    static bool isTable(const Block& block) {
        return std::holds_alternative<std::shared_ptr<DocumentTable>>(block);
    }

    bool isBlankBehindATable(std::vector<Block>::const_iterator block) const {
        return block != m_document.body.blocks.begin() && isTable(*std::prev(block)) &&
               std::get<DocumentParagraph>(*block).length() == 0;
    }

    /// A blank line between two tables may end a page. Were it kept, lists that are held together
    /// would hold one another, up to where no page has room for them all.
    void careFor(DocumentParagraph& paragraph, bool mayEndAPage) {
        paragraph.format.keepWithNext = !mayEndAPage;
        if (mayEndAPage) makeLow(paragraph);
        count(paragraph.format.keepWithNext, heightOf(paragraph, m_textWidth, wideLetter));
    }

    void careFor(DocumentTable& table) {
        std::vector<DocumentRow>& rows = table.rows;
        if (rows.size() > 1) keepWithNext(rows.front(), true);
        const bool isList = rows.front().repeatsAsHeader;
        if (isList && m_keptHeight + heightOf(table, narrowLetter) > m_textHeight)
            for (std::size_t i = 1; i + 2 < rows.size(); ++i) keepWithNext(rows[i], false);
        m_atStart = true;
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const bool leads = i == 0 || (i + 1 < rows.size() && beginsWithATable(rows[i + 1]));
            careFor(rows[i], table.columnWidths, isList || leads);
        }
    }

    /// A group stays whole if it does so together with all that is kept with it, its statement
    /// first of all. Where there is no room for both, the group may be torn and none is alone.
    void careFor(DocumentRow& row, const std::vector<int>& widths, bool leads) {
        const double height = heightOf(row, widths, wideLetter);
        const double together = m_keptHeight + height;
        row.staysWhole =
            !m_atStart && (beginsWithATable(row) ? together : height) <= m_mostTogether;
        if (!leads && together > m_mostTogether) keepWithNext(row, false);
        count(isKeptWithNext(row), height);
        m_atStart = m_atStart && isKeptWithNext(row);
    }

    void count(bool kept, double height) { m_keptHeight = kept ? m_keptHeight + height : 0; }

    Document& m_document;
    double m_textWidth, m_textHeight, m_mostTogether;
    double m_keptHeight = 0;  // of all in front that is kept with what follows

    // In the rows of a table in front of which no page may end. Were the last of them held
    // together and filled its page to the edge, Writer would lose the rest of the table.
    bool m_atStart = true;
};

}  // namespace

void careForPages(Document& document) { Care(document).take(); }

}  // namespace orvanta
