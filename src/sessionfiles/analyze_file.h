#pragma once

#include <string>

#include "core/session_state.h"

namespace orvanta {

/// The bytes of an analyze file for the session on screen. The step section is that of the
/// temporary file alone.
std::string analyzeBytes(const FrmMain& form, bool withStep);

/// Writes the session to a file, replacing any file there. Failures leave the former file and
/// are not told.
void saveAnalyzeData(Program& program, const std::string& fileName, bool TmpFlag);

/// Reads a file into the Analyze lists. A missing file is nothing. Fails where the file can't be
/// read or a list holds a key already; the rows read so far stay. Clears nothing first.
void loadAnalyzeData(Program& program, const std::string& fileName, bool restoreStep);

}  // namespace orvanta
