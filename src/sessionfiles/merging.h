#pragma once

#include <string_view>

#include "core/session_state.h"

namespace orvanta {

inline constexpr std::string_view mergeCaption = "Merge...";
inline constexpr std::string_view mergeToolTip =
    "Join the files in the list into one new Brainstorm file.";

/// Joins the listed brainstorm files into a new one that the person names. The lists on screen
/// are not touched.
void mergeBrainstormFiles(Program& program);

}  // namespace orvanta
