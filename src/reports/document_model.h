#pragma once

#include <memory>
#include <string>
#include <variant>
#include <vector>

#include "view/units.h"

namespace orvanta {

// A document in memory, as far as the report needs one. Texts are Windows-1252, sizes points.

struct CharacterFormat {
    std::string font = "Times New Roman";
    int size = 12;
    bool bold = false, italic = false;

    friend bool operator==(const CharacterFormat&, const CharacterFormat&) = default;
};

enum class Alignment { Left, Centred };

struct ParagraphFormat {
    Alignment alignment = Alignment::Left;
    int spaceBefore = 0, spaceAfter = 0;
    bool keepWithNext = false;
};

struct TextRun {
    std::string text;
    CharacterFormat format;
};

struct DocumentParagraph {
    std::vector<TextRun> runs;
    CharacterFormat mark;  // the look of the paragraph's end
    ParagraphFormat format;

    std::size_t length() const;
};

/// Points. A blank line of this size is no more than what has to stand behind a table.
inline constexpr int lowestLine = 1;

struct DocumentTable;

using Block = std::variant<DocumentParagraph, std::shared_ptr<DocumentTable>>;

/// Text and tables in order: the body of a document or the inside of a cell. The last block is
/// a paragraph; nothing stands behind it.
struct Story {
    std::vector<Block> blocks = std::vector<Block>(1);

    DocumentParagraph& lastParagraph() { return std::get<DocumentParagraph>(blocks.back()); }
    const DocumentParagraph& lastParagraph() const {
        return std::get<DocumentParagraph>(blocks.back());
    }
};

enum class TextDirection { Horizontal, Upward };

inline constexpr int noColour = -1;

struct CellLook {
    TextDirection direction = TextDirection::Horizontal;
    bool centredVertically = false;
    int shading = noColour;             // red in the low byte
    int rightEdge = 0, bottomEdge = 0;  // eighths of a point; 0: as the table's borders

    friend bool operator==(const CellLook&, const CellLook&) = default;
};

struct DocumentCell : CellLook {
    DocumentCell() = default;
    explicit DocumentCell(const CellLook& look) : CellLook(look) {}

    Story story;
};

struct DocumentRow {
    std::vector<std::shared_ptr<DocumentCell>> cells;
    int height = 0;  // at least; 0: as its text needs
    bool repeatsAsHeader = false;
    bool staysWhole = false;  // no page ends within it
};

struct DocumentTable {
    std::vector<DocumentRow> rows;
    std::vector<int> columnWidths;
    bool hasBorders = false;

    /// A row beneath the last one, with its looks and none of its texts. It starts neither bold
    /// nor italic: those are the header's, and what is to keep them says so.
    void addRow();
};

struct PageSetup {
    int width = 612, height = 792;
    int left = 90, top = 72, right = 90, bottom = 72;
    bool landscape = false;
};

struct Document {
    PageSetup page;
    Story body;
};

/// A place in a story: a character of a paragraph, from 0; its end is behind the last one.
struct StoryPlace {
    std::size_t block = 0, offset = 0;
};

/// The place behind the last character of a story, before its final mark.
StoryPlace endOf(const Story& story);

/// Puts text at a place and returns the place behind it. Each line end makes a paragraph with
/// the formats of the one that it splits. The text takes the look of that paragraph's mark.
/// Fails with InvalidCall where a table stands.
StoryPlace insertText(Story& story, StoryPlace at, std::string_view text);

/// Splits the run across an offset of a paragraph, so that a run begins there; its index.
std::size_t splitRunAt(DocumentParagraph& paragraph, std::size_t offset);

/// Runs `change` on the character formats between two places: runs are split where needed, and
/// the marks of all paragraphs but the last of the range are included. `withLastMark` includes
/// that one too.
template <class Change>
void changeCharacters(Story& story, StoryPlace from, StoryPlace to, bool withLastMark,
                      Change change) {
    for (std::size_t block = from.block; block <= to.block && block < story.blocks.size();
         ++block) {
        auto* paragraph = std::get_if<DocumentParagraph>(&story.blocks[block]);
        if (!paragraph) continue;
        const std::size_t start = block == from.block ? from.offset : 0;
        const std::size_t end = block == to.block ? to.offset : paragraph->length();
        const std::size_t first = splitRunAt(*paragraph, start);
        const std::size_t last = splitRunAt(*paragraph, end);
        for (std::size_t run = first; run < last; ++run) change(paragraph->runs[run].format);
        if (block != to.block || withLastMark) change(paragraph->mark);
    }
}

}  // namespace orvanta
