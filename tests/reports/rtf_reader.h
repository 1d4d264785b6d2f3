#pragma once

#include <map>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

namespace orvanta::test {

// A strict reader of the RTF that the program writes. What it takes is well-formed: braces
// balance, the file is 7-bit, each row has as many cells as it defines, text stands only where
// text may stand.

struct RtfError : std::runtime_error {
    using std::runtime_error::runtime_error;
};

/// Words with their numbers, 1 for those without one.
using RtfWords = std::map<std::string, int>;

struct RtfRun {
    std::string text;  // Windows-1252
    std::string font;
    int size = 0;  // points
    bool bold = false, italic = false;
};

struct RtfParagraph {
    std::vector<RtfRun> runs;  // the last one is the look of its end, without text
    RtfWords words;

    std::string text() const;
};

struct RtfRow;

struct RtfCell {
    std::vector<RtfParagraph> paragraphs;
    std::vector<RtfRow> nested;
    RtfWords words;
    int width = 0;                                 // points
    std::string background;                        // "204,204,204"; empty for none
    int top = 0, left = 0, bottom = 0, right = 0;  // width of the edges in twips

    /// The paragraphs, a line feed between them.
    std::string text() const;
};

struct RtfRow {
    std::vector<RtfCell> cells;
    RtfWords words;
};

using RtfTable = std::vector<RtfRow>;

struct RtfStyle {
    std::string name;
    RtfWords words;
};

struct RtfDocument {
    RtfWords words;  // of the page
    std::string title;
    std::map<int, RtfStyle> styles;
    std::vector<std::variant<RtfParagraph, RtfTable>> body;

    std::vector<RtfTable> tables() const;
    /// The text of each paragraph outside the tables, "#" for each table.
    std::vector<std::string> outline() const;
};

RtfDocument readRtf(const std::string& bytes);

}  // namespace orvanta::test
