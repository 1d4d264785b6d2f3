#pragma once

#include <string>

#include "core/session_state.h"

namespace orvanta {

/// Builds the document of an analysis, both correlation tables and the four plain lists, through
/// a word processor and saves it under the target name. Carries on past every failing operation
/// and tells of none; where there is no word processor nothing is saved.
void generateWordReport(Program& program, const std::string& analyzeFile,
                        const std::string& targetFile);

}  // namespace orvanta
