#pragma once

#include <string>
#include <string_view>

#include "core/statement_kind.h"

namespace orvanta {

// What stands on a question sheet beside the questions, and how the boxes of its preview are
// called. What is said in place of sheets without a question, ahead of the path of their file.

inline constexpr std::string_view nameField = "Name", dateField = "Date";
inline constexpr std::string_view paperBox = "Paper", zoomBox = "Zoom", pageBox = "Page";

inline constexpr std::string_view nothingToPrint =
    "There are no questions to print. They should be in this file:";

/// What stands above the questions of a kind, where they begin and where they go on.
inline std::string headingOf(StatementKind kind, bool begins) {
    return std::string(nameOfSeveral(kind)) + (begins ? "" : ", continued");
}

/// The foot of a page, from 1.
inline std::string pageOf(std::size_t page, std::size_t pages) {
    return "page " + std::to_string(page) + " of " + std::to_string(pages);
}

}  // namespace orvanta
