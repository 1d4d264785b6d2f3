#pragma once

#include <string>
#include <string_view>

namespace orvanta {

// What stands on a question sheet beside the questions, and how the boxes of its preview are
// called.

inline constexpr std::string_view nameField = "Name", dateField = "Date";
inline constexpr std::string_view paperBox = "Paper", zoomBox = "Zoom", pageBox = "Page";

/// The foot of a page, from 1.
inline std::string pageOf(std::size_t page, std::size_t pages) {
    return "page " + std::to_string(page) + " of " + std::to_string(pages);
}

}  // namespace orvanta
