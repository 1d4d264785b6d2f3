#pragma once

#include <string>
#include <string_view>

#include "core/session_state.h"

namespace orvanta {

/// The bytes of a brainstorm file for the session on screen. The step section is that of the
/// temporary file alone.
std::string brainstormBytes(const FrmMain& form, bool withStep);

/// Writes the session to a file, replacing any file there. Failures leave the former file and
/// are not told.
void saveBrainstormData(Program& program, const std::string& fileName, bool TmpFlag);

/// Reads a file into the Brainstorm lists (target "BS") or, row by row marked with the person's
/// name, into the Analyze lists (any other). A missing file is nothing; one that can't be read
/// fails. Clears nothing first.
void loadBrainstormData(Program& program, const std::string& fileName, std::string_view target,
                        bool restoreStep);

}  // namespace orvanta
