#pragma once

#include "core/session_state.h"

namespace orvanta {

void addAnalyzeSourceFile(Program& program);
void removeAnalyzeSourceFile(Program& program);

/// Reads all listed brainstorm files into the Analyze lists, in place of the former analysis.
/// False if the wizard may not leave the step. A file that can't be read fails.
bool consolidateSourceFiles(Program& program);

}  // namespace orvanta
