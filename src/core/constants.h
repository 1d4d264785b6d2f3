#pragma once

#include <string_view>

namespace orvanta {

inline constexpr std::string_view appTitle = "Orvanta";
inline constexpr std::string_view journalDelimiter = "<<!~!>>";
inline constexpr std::string_view rowFieldDelimiter = "<!-SWOT-!>";

inline constexpr std::string_view brainstormFilter = "All Brainstorming Files (*.bsm)|*.bsm";
inline constexpr std::string_view analyzeFilter = "All Analyze Files (*.aze)|*.aze";

inline constexpr std::string_view settingsSection = "System";

}  // namespace orvanta
