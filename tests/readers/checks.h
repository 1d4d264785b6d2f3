#pragma once

#include "expectation.h"
#include "markup.h"

namespace orvanta::readers {

// What a reader makes of the document. Each throws Mismatch where it is not what it should be.

/// HTML holds all texts in order, and no others.
void checkTexts(const std::string& html, const std::vector<ExpectedPart>& expected);

/// The words of a printed document, with their places, are all there, in order and in the columns
/// where they belong, and no page ends in what leads to the next row: a title, a text above a
/// table, the head of one, a statement above its group.
void checkPages(const Node& words, const std::vector<ExpectedPart>& expected);

/// A flat text document has a title, headings and all tables with their rows, cells, widths,
/// colours and edges.
void checkTables(const Node& document, const std::vector<ExpectedPart>& expected);

}  // namespace orvanta::readers
