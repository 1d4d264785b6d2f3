#pragma once

#include <string>

#include "core/session_state.h"

namespace orvanta {

/// A path that the settings keep from one run to the next, and where a run holds it.
struct RememberedPath {
    std::string_view key;
    std::string FrmMain::*member;
};

inline constexpr RememberedPath brainstormPath{"LastSavedPathBSM", &FrmMain::lastPathBSM};
inline constexpr RememberedPath analyzePath{"LastSavedPathAZE", &FrmMain::lastPathAZE};
/// Written only: each run begins without one.
inline constexpr RememberedPath documentPath{"LastSavedPathRTF", &FrmMain::lastPathRTF};

/// Keeps a path for this run and the next ones.
void rememberPath(Program& program, const RememberedPath& remembered, const std::string& path);

/// Where this run holds no path yet: the one in the settings, or else the working folder.
void takeUpPath(Program& program, const RememberedPath& remembered);

}  // namespace orvanta
