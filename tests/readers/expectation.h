#pragma once

#include <string>
#include <vector>

namespace orvanta::readers {

// What a document must show, taken from the analysis that it was made of. Texts are UTF-8.

struct MappedRow {
    std::string sign, text;
};

struct ExpectedRow {
    std::string text, number;
    std::vector<MappedRow> mapped;
};

struct ExpectedTable {
    bool isCorrelation;
    std::vector<std::string> heading;  // the lines of the first cell of its head
    std::string lastHeading;
    std::vector<ExpectedRow> rows;
};

struct ExpectedPart {
    std::vector<std::string> paragraphs;  // in front of the tables
    std::vector<ExpectedTable> tables;
};

/// The two halves of the document of an analyze file.
std::vector<ExpectedPart> expectedFrom(const std::string& analysis);

/// All texts in order.
std::vector<std::string> textsOf(const std::vector<ExpectedPart>& parts);

/// What a reading shows otherwise than it should.
struct Mismatch {
    std::string what;
};

/// Compares two texts in which blanks of any kind do not count; tells where they part.
void compare(const std::string& what, const std::string& read, const std::string& expected);

/// The text without blanks, tabs, ends of lines, no-break spaces and the like.
std::string withoutBlanks(const std::string& utf8);

}  // namespace orvanta::readers
