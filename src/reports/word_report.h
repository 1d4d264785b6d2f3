#pragma once

#include <string>

#include "core/session_state.h"

namespace orvanta {

/// Has a word processor write the document of an analysis under the target name. What fails in
/// there is not told.
void generateWordReport(Program& program, const std::string& analyzeFile,
                        const std::string& targetFile);

}  // namespace orvanta
