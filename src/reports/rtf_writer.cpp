#include "reports/rtf_writer.h"

#include <algorithm>
#include <cassert>
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

std::string word(const char* name, int value) {
    return std::string("\\") + name + std::to_string(value);
}

/// Without the control characters: they can't be shown, and to a reader some of them end a line,
/// a page or a cell. A tab is a word of its own.
void appendEscaped(std::string& out, std::string_view text) {
    constexpr char hex[] = "0123456789abcdef";
    for (const char character : text) {
        const auto byte = static_cast<unsigned char>(character);
        if ((byte < 32 && character != '\t') || byte == 127) continue;
        if (character == '\\' || character == '{' || character == '}')
            out.append(1, '\\').append(1, character);
        else if (character == '\t')
            out += "\\tab ";
        else if (byte == 0xA0)
            out += "\\~";
        else if (byte > 126)
            out.append("\\'").append(1, hex[byte >> 4]).append(1, hex[byte & 15]);
        else
            out += character;
    }
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
std::string styleOf(const DocumentParagraph& paragraph) {
    if (isTitle(paragraph)) return "\\s1\\outlinelevel0";
    return isLowestLine(paragraph) ? "\\s2" : "";
}

class Writer {
public:
    explicit Writer(const Document& document) : m_document(document) { collect(document.body); }

    std::string bytes() {
        writeHead();
        writePage();
        writeStory(m_document.body, 0, "\\par");
        m_out += "}";
        return std::move(m_out);
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
                    if (cell->shading != noColour) m_colours.emplace(cell->shading, 0);
                    collect(cell->story);
                }
        }
    }

    void writeHead() {
        m_out = "{\\rtf1\\ansi\\ansicpg1252\\deff0\\deflang1033\\uc1\n{\\fonttbl";
        m_fonts.emplace(CharacterFormat{}.font, 0);
        int number = 1;
        for (auto& [name, index] : m_fonts) {
            index = name == CharacterFormat{}.font ? 0 : number++;
            m_out += "{" + word("f", index) + (name == "Arial" ? "\\fswiss" : "\\froman") +
                     "\\fcharset0 " + name + ";}";
        }
        m_out += "}\n{\\colortbl;";
        number = 1;
        for (auto& [colour, index] : m_colours) {
            index = number++;
            m_out += word("red", colour & 255) + word("green", colour >> 8 & 255) +
                     word("blue", colour >> 16 & 255) + ";";
        }
        m_out += "}\n";
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
        m_out +=
            "{\\stylesheet{\\ql\\widctlpar\\f0\\fs24\\lang1033 Normal;}{\\s2\\ql\\widctlpar\\f0" +
            word("fs", lowestLine * 2) + "\\lang1033\\sbasedon0 behind a table;}";
        if (title) {
            m_out += "{\\s1\\ql\\keepn\\widctlpar\\outlinelevel0\\lang1033";
            appendLook(title->runs.front().format);
            m_out += "\\sbasedon0 heading 1;}}\n{\\info{\\title ";
            appendEscaped(m_out, textOf(*title));
            m_out += "}";
        }
        m_out += "}\n";
    }

    /// The page is told twice: readers differ in where they look.
    void writePage() {
        const PageSetup& page = m_document.page;
        m_out += word("paperw", twips(page.width)) + word("paperh", twips(page.height)) +
                 word("margl", twips(page.left)) + word("margr", twips(page.right)) +
                 word("margt", twips(page.top)) + word("margb", twips(page.bottom)) +
                 (page.landscape ? "\\landscape" : "") + "\\widowctrl\n";
        m_out += "\\sectd" + word("pgwsxn", twips(page.width)) +
                 word("pghsxn", twips(page.height)) + word("marglsxn", twips(page.left)) +
                 word("margrsxn", twips(page.right)) + word("margtsxn", twips(page.top)) +
                 word("margbsxn", twips(page.bottom)) + (page.landscape ? "\\lndscpsxn\n" : "\n");
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
        m_out += "\\pard\\plain";
        if (depth > 0) m_out += "\\intbl" + word("itap", depth);
        if (depth == 0) m_out += styleOf(paragraph);
        m_out += paragraph.format.alignment == Alignment::Centred ? "\\qc" : "\\ql";
        m_out += "\\widctlpar";
        m_out += word("sb", twips(paragraph.format.spaceBefore)) +
                 word("sa", twips(paragraph.format.spaceAfter));
        if (paragraph.format.keepWithNext) m_out += "\\keepn";
        for (const TextRun& run : paragraph.runs) {
            openLook(run.format);
            appendEscaped(m_out, run.text);
            m_out += "}";
        }
        openLook(paragraph.mark);
        m_out.pop_back();
        m_out.append(end).append("}\n");
    }

    /// A group with all looks told: one that is left out would leak from the text before.
    void openLook(const CharacterFormat& format) {
        m_out += "{";
        appendLook(format);
        m_out += " ";
    }

    void appendLook(const CharacterFormat& format) {
        m_out += word("f", m_fonts.at(format.font)) + word("fs", format.size * 2) +
                 (format.bold ? "\\b" : "\\b0") + (format.italic ? "\\i" : "\\i0");
    }

    void writeTable(const DocumentTable& table, int depth) {
        for (const DocumentRow& row : table.rows)
            depth == 1 ? writeOuterRow(table, row) : writeNestedRow(table, row, depth);
    }

    void writeOuterRow(const DocumentTable& table, const DocumentRow& row) {
        const int height = row.repeatsAsHeader ? std::max(row.height, headerHeight) : row.height;
        writeRowLook(
            table, row, cellPadding, height,
            std::string(row.repeatsAsHeader ? "\\trhdr" : "") + (row.staysWhole ? "\\trkeep" : ""));
        for (const auto& cell : row.cells) writeStory(cell->story, 1, "\\cell");
        m_out += "\\row\n";
    }

    /// The properties of a nested row follow its cells. Readers without nested tables get a tab
    /// between its cells and a line break behind it. It is never held together itself: where the
    /// first of a group is and meets the end of a page, Writer drops its last lines.
    void writeNestedRow(const DocumentTable& table, const DocumentRow& row, int depth) {
        for (const auto& cell : row.cells) {
            writeStory(cell->story, depth, "\\nestcell");
            if (&cell != &row.cells.back()) m_out += "{\\nonesttables\\tab}";
        }
        m_out += "{\\*\\nesttableprops";
        writeRowLook(table, row, 0, row.height, "");
        m_out += "\\nestrow}{\\nonesttables\\line}\n";
    }

    void writeRowLook(const DocumentTable& table, const DocumentRow& row, int padding, int height,
                      std::string_view flag) {
        m_out += "\\trowd" + word("trgaph", padding) + word("trleft", -padding);
        if (height > 0) m_out += word("trrh", twips(height));
        m_out.append(flag) +=
            word("trpaddl", padding) + word("trpaddr", padding) + "\\trpaddfl3\\trpaddfr3\n";
        assert(row.cells.size() <= table.columnWidths.size());
        int right = -padding;
        for (std::size_t column = 0; column < row.cells.size(); ++column) {
            const int width = twips(table.columnWidths[column]);
            writeCellLook(*row.cells[column], table.hasBorders);
            writePadding(*row.cells[column],
                         padding > 0 && table.columnWidths[column] < narrowColumn);
            m_out +=
                "\\clftsWidth3" + word("clwWidth", width) + word("cellx", right += width) + "\n";
        }
    }

    void writeCellLook(const DocumentCell& cell, bool bordered) {
        if (cell.centredVertically) m_out += "\\clvertalc";
        if (bordered) {
            m_out += "\\clbrdrt\\brdrs" + word("brdrw", hairline) + "\\clbrdrl\\brdrs" +
                     word("brdrw", hairline);
            m_out += "\\clbrdrb\\brdrs" + word("brdrw", edgeWidth(cell.bottomEdge));
            m_out += "\\clbrdrr\\brdrs" + word("brdrw", edgeWidth(cell.rightEdge));
        }
        if (cell.shading != noColour) m_out += word("clcbpat", m_colours.at(cell.shading));
        m_out += cell.direction == TextDirection::Upward ? "\\cltxbtlr" : "\\cltxlrtb";
    }

    /// Upward text keeps off the edges that its line begins and ends at, as other text does. The
    /// left and the upper edge are told alike: readers take the words for each other.
    void writePadding(const DocumentCell& cell, bool tight) {
        const bool upward = cell.direction == TextDirection::Upward;
        if (!upward && !tight) return;
        for (const char edge : std::string_view(upward ? "ltbr" : "ltr"))
            m_out.append("\\clpad").append(1, edge) +=
                std::to_string(upward ? cellPadding : tightPadding) + "\\clpadf" + edge + "3";
    }

    static int edgeWidth(int eighths) { return eighths == 0 ? hairline : eighths * 20 / 8; }

    const Document& m_document;
    std::map<std::string, int> m_fonts;
    std::map<int, int> m_colours;
    std::string m_out;
};

}  // namespace

std::string rtfBytes(const Document& document) { return Writer(document).bytes(); }

}  // namespace orvanta
