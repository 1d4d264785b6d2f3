#include "reports/rtf_writer.h"

#include <algorithm>
#include <array>
#include <cassert>
#include <charconv>
#include <iterator>
#include <map>

namespace orvanta {

namespace {

constexpr int twips(int points) { return points * 20; }

constexpr int cellPadding = 108;  // twips
constexpr int tightPadding = 20;  // twips, so that "100" is not broken in the column of numbers
constexpr int narrowColumn = 40;  // points
constexpr int titleSize = 18;     // points, at least
constexpr int headerHeight = 60;  // points, so that "Priority" upright is not cut
constexpr int hairline = 10;      // twips

constexpr std::size_t bytesOfACell = 320;  // as much as a short text takes with its looks

/// Text as it grows. A document of 10,000 rows takes over a million words, so none of them is made
/// apart.
class Rtf {
public:
    void reserve(std::size_t bytes) { m_bytes.reserve(bytes); }

    Rtf& text(std::string_view text) {
        m_bytes += text;
        return *this;
    }
    Rtf& number(int value) {
        std::array<char, 16> digits{};
        const auto end = std::to_chars(digits.begin(), digits.end(), value).ptr;
        return text({digits.data(), static_cast<std::size_t>(end - digits.data())});
    }
    Rtf& word(std::string_view name, int value) { return text("\\").text(name).number(value); }
    Rtf& escaped(std::string_view text);

    std::string take() { return std::move(m_bytes); }

private:
    std::string m_bytes;
};

/// Without the control characters: they can't be shown, and to a reader some of them end a line,
/// a page or a cell. A tab is a word of its own.
Rtf& Rtf::escaped(std::string_view text) {
    constexpr char hex[] = "0123456789abcdef";
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if ((byte < 32 && character != '\t') || byte == 127) continue;
        if (character == '\\' || character == '{' || character == '}')
            m_bytes.append(1, '\\').append(1, character);
        else if (character == '\t')
            m_bytes += "\\tab ";
        else if (byte == 0xA0)
            m_bytes += "\\~";
        else if (byte > 126)
            m_bytes.append("\\'").append(1, hex[byte >> 4]).append(1, hex[byte & 15]);
        else
            m_bytes += character;
    }
    return *this;
}

std::string textOf(const DocumentParagraph& paragraph) {
    std::string text;
    for (const TextRun& run : paragraph.runs) text += run.text;
    return text;
}

/// Outside the tables, what is set large is a title.
bool isTitle(const DocumentParagraph& paragraph) {
    return !paragraph.runs.empty() && paragraph.runs.front().format.size >= titleSize;
}

bool isLowestLine(const DocumentParagraph& paragraph) {
    return paragraph.length() == 0 && paragraph.mark.size == lowestLine;
}

/// Of a paragraph outside the tables.
std::string_view styleOf(const DocumentParagraph& paragraph) {
    if (isTitle(paragraph)) return "\\s1\\outlinelevel0";
    return isLowestLine(paragraph) ? "\\s2" : "";
}

/// What the words ahead of a row's cells depend on, and the words.
struct RowLook {
    int padding;  // twips
    bool bordered;
    std::vector<int> widths;
    std::vector<CellLook> cells;
    std::string words;
};

const CellLook& lookOf(const std::shared_ptr<DocumentCell>& cell) { return *cell; }

class Writer {
public:
    explicit Writer(const Document& document) : m_document(document) { collect(document.body); }

    std::string bytes() {
        m_out.reserve(m_cells * bytesOfACell);
        writeHead();
        writePage();
        writeStory(m_document.body, 0, "\\par");
        return m_out.text("}").take();
    }

private:
    // Fonts and colours are numbered in tables at the head of the file.
    void collect(const Story& story) {
        for (const Block& block : story.blocks) {
            if (const auto* paragraph = std::get_if<DocumentParagraph>(&block)) {
                m_fonts.emplace(paragraph->mark.font, 0);
                for (const TextRun& run : paragraph->runs) m_fonts.emplace(run.format.font, 0);
                continue;
            }
            for (const DocumentRow& row : std::get<std::shared_ptr<DocumentTable>>(block)->rows)
                for (const auto& cell : row.cells) {
                    ++m_cells;
                    if (cell->shading != noColour) m_colours.emplace(cell->shading, 0);
                    collect(cell->story);
                }
        }
    }

    void writeHead() {
        m_out.text("{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1033\\uc1\n{\\fonttbl");
        m_fonts.emplace(CharacterFormat{}.font, 0);
        int number = 1;
        for (auto& [name, index] : m_fonts) {
            index = name == CharacterFormat{}.font ? 0 : number++;
            m_out.text("{").word("f", index).text(name == "Arial" ? "\\fswiss" : "\\froman");
            m_out.text("\\fcharset0 ").text(name).text(";}");
        }
        m_out.text("}\n{\\colortbl;");
        number = 1;
        for (auto& [colour, index] : m_colours) {
            index = number++;
            m_out.word("red", colour & 255).word("green", colour >> 8 & 255);
            m_out.word("blue", colour >> 16 & 255).text(";");
        }
        m_out.text("}\n");
        writeStyles(firstTitle());
    }

    const DocumentParagraph* firstTitle() const {
        for (const Block& block : m_document.body.blocks)
            if (const auto* paragraph = std::get_if<DocumentParagraph>(&block);
                paragraph && isTitle(*paragraph))
                return paragraph;
        return nullptr;
    }

    /// The style of the titles looks as they do. The language is told here, since Writer takes no
    /// notice of the one at the head of the file; nor does it of the size of the last line's end.
    void writeStyles(const DocumentParagraph* title) {
        m_out.text("{\\stylesheet{\\ql\\widctlpar\\f0\\fs24\\lang1033 Normal;}");
        m_out.text("{\\s2\\ql\\widctlpar\\f0").word("fs", lowestLine * 2);
        m_out.text("\\lang1033\\sbasedon0 behind a table;}");
        if (title) {
            m_out.text("{\\s1\\ql\\keepn\\widctlpar\\outlinelevel0\\lang1033");
            appendLook(title->runs.front().format);
            m_out.text("\\sbasedon0 heading 1;}}\n{\\info{\\title ")
                .escaped(textOf(*title))
                .text("}");
        }
        m_out.text("}\n");
    }

    /// The page is told twice: readers differ in where they look.
    void writePage() {
        const PageSetup& page = m_document.page;
        m_out.word("paperw", twips(page.width)).word("paperh", twips(page.height));
        m_out.word("margl", twips(page.left)).word("margr", twips(page.right));
        m_out.word("margt", twips(page.top)).word("margb", twips(page.bottom));
        m_out.text(page.landscape ? "\\landscape" : "").text("\\widowctrl\n\\sectd");
        m_out.word("pgwsxn", twips(page.width)).word("pghsxn", twips(page.height));
        m_out.word("marglsxn", twips(page.left)).word("margrsxn", twips(page.right));
        m_out.word("margtsxn", twips(page.top)).word("margbsxn", twips(page.bottom));
        m_out.text(page.landscape ? "\\lndscpsxn\n" : "\n");
    }

    /// `depth`: of tables around the story. `lastEnd`: the word that ends its last paragraph.
    void writeStory(const Story& story, int depth, std::string_view lastEnd) {
        for (const Block& block : story.blocks) {
            const bool last = &block == &story.blocks.back();
            if (const auto* paragraph = std::get_if<DocumentParagraph>(&block))
                writeParagraph(*paragraph, depth, last ? lastEnd : "\\par");
            else
                writeTable(*std::get<std::shared_ptr<DocumentTable>>(block), depth + 1);
        }
    }

    void writeParagraph(const DocumentParagraph& paragraph, int depth, std::string_view end) {
        m_out.text("\\pard\\plain");
        if (depth > 0)
            m_out.text("\\intbl").word("itap", depth);
        else
            m_out.text(styleOf(paragraph));
        m_out.text(paragraph.format.alignment == Alignment::Centred ? "\\qc" : "\\ql");
        m_out.text("\\widctlpar").word("sb", twips(paragraph.format.spaceBefore));
        m_out.word("sa", twips(paragraph.format.spaceAfter));
        if (paragraph.format.keepWithNext) m_out.text("\\keepn");
        for (const TextRun& run : paragraph.runs) {
            openLook(run.format);
            m_out.text(" ").escaped(run.text).text("}");
        }
        openLook(paragraph.mark);
        m_out.text(end).text("}\n");
    }

    /// A group with all looks told: one that is left out would leak from the text before.
    void openLook(const CharacterFormat& format) {
        m_out.text("{");
        appendLook(format);
    }

    void appendLook(const CharacterFormat& format) {
        if (m_look.empty() || format != m_lookOf) {
            Rtf look;
            look.word("f", m_fonts.at(format.font)).word("fs", format.size * 2);
            look.text(format.bold ? "\\b" : "\\b0").text(format.italic ? "\\i" : "\\i0");
            m_look = look.take();
            m_lookOf = format;
        }
        m_out.text(m_look);
    }

    void writeTable(const DocumentTable& table, int depth) {
        for (const DocumentRow& row : table.rows)
            depth == 1 ? writeOuterRow(table, row) : writeNestedRow(table, row, depth);
    }

    void writeOuterRow(const DocumentTable& table, const DocumentRow& row) {
        const int height = row.repeatsAsHeader ? std::max(row.height, headerHeight) : row.height;
        openRowLook(cellPadding, height);
        m_out.text(row.repeatsAsHeader ? "\\trhdr" : "").text(row.staysWhole ? "\\trkeep" : "");
        writeCellLooks(table, row, cellPadding);
        for (const auto& cell : row.cells) writeStory(cell->story, 1, "\\cell");
        m_out.text("\\row\n");
    }

    /// The properties of a nested row follow its cells. Readers without nested tables get a tab
    /// between its cells and a line break behind it. It is never held together itself: where the
    /// first of a group is and meets the end of a page, Writer drops its last lines.
    void writeNestedRow(const DocumentTable& table, const DocumentRow& row, int depth) {
        for (const auto& cell : row.cells) {
            writeStory(cell->story, depth, "\\nestcell");
            if (&cell != &row.cells.back()) m_out.text("{\\nonesttables\\tab}");
        }
        m_out.text("{\\*\\nesttableprops");
        openRowLook(0, row.height);
        writeCellLooks(table, row, 0);
        m_out.text("\\nestrow}{\\nonesttables\\line}\n");
    }

    void openRowLook(int padding, int height) {
        m_out.text("\\trowd").word("trgaph", padding).word("trleft", -padding);
        if (height > 0) m_out.word("trrh", twips(height));
    }

    /// Most rows look as one before them did, whose words are written again.
    void writeCellLooks(const DocumentTable& table, const DocumentRow& row, int padding) {
        assert(row.cells.size() <= table.columnWidths.size());
        const auto isSame = [&](const RowLook& look) {
            return look.padding == padding && look.bordered == table.hasBorders &&
                   look.widths == table.columnWidths &&
                   std::ranges::equal(look.cells, row.cells, {}, {}, &lookOf);
        };
        auto known = std::ranges::find_if(m_rowLooks, isSame);
        if (known == m_rowLooks.end()) {
            RowLook look{padding, table.hasBorders, table.columnWidths, {}, {}};
            std::ranges::transform(row.cells, std::back_inserter(look.cells), &lookOf);
            look.words = wordsOf(look);
            known = m_rowLooks.insert(known, std::move(look));
        }
        m_out.text(known->words);
    }

    std::string wordsOf(const RowLook& look) const {
        Rtf out;
        out.word("trpaddl", look.padding).word("trpaddr", look.padding);
        out.text("\\trpaddfl3\\trpaddfr3\n");
        int right = -look.padding;
        for (std::size_t column = 0; column < look.cells.size(); ++column) {
            const int width = twips(look.widths[column]);
            writeCellLook(out, look.cells[column], look.bordered);
            writePadding(out, look.cells[column],
                         look.padding > 0 && look.widths[column] < narrowColumn);
            out.text("\\clftsWidth3").word("clwWidth", width).word("cellx", right += width);
            out.text("\n");
        }
        return out.take();
    }

    void writeCellLook(Rtf& out, const CellLook& cell, bool bordered) const {
        if (cell.centredVertically) out.text("\\clvertalc");
        if (bordered) {
            out.text("\\clbrdrt\\brdrs").word("brdrw", hairline);
            out.text("\\clbrdrl\\brdrs").word("brdrw", hairline);
            out.text("\\clbrdrb\\brdrs").word("brdrw", edgeWidth(cell.bottomEdge));
            out.text("\\clbrdrr\\brdrs").word("brdrw", edgeWidth(cell.rightEdge));
        }
        if (cell.shading != noColour) out.word("clcbpat", m_colours.at(cell.shading));
        out.text(cell.direction == TextDirection::Upward ? "\\cltxbtlr" : "\\cltxlrtb");
    }

    /// Upward text keeps off the edges that its line begins and ends at, as other text does. The
    /// left and the upper edge are told alike: readers take the words for each other.
    static void writePadding(Rtf& out, const CellLook& cell, bool tight) {
        const bool upward = cell.direction == TextDirection::Upward;
        if (!upward && !tight) return;
        for (const char& letter : std::string_view(upward ? "ltbr" : "ltr")) {
            const std::string_view edge(&letter, 1);
            out.text("\\clpad").text(edge).number(upward ? cellPadding : tightPadding);
            out.text("\\clpadf").text(edge).text("3");
        }
    }

    static int edgeWidth(int eighths) { return eighths == 0 ? hairline : eighths * 20 / 8; }

    const Document& m_document;
    std::map<std::string, int> m_fonts;
    std::map<int, int> m_colours;
    std::size_t m_cells = 0;
    std::vector<RowLook> m_rowLooks;
    CharacterFormat m_lookOf;  // the last one that was written
    std::string m_look;        // and its words
    Rtf m_out;
};

}  // namespace

std::string rtfBytes(const Document& document) { return Writer(document).bytes(); }

}  // namespace orvanta
