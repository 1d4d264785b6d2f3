#pragma once

#include "core/session_state.h"

namespace orvanta {

/// Asks for files and adds one after the other.
void addAnalyzeSourceFiles(Program& program);
/// Adds a file that a person chose, in the dialog or by dropping it on the list.
void addChosenSourceFile(Program& program, const std::string& path);
void removeAnalyzeSourceFile(Program& program);

/// Reads all listed brainstorm files into the Analyze lists, in place of the former analysis.
/// False if the wizard may not leave the step. A file that can't be read fails.
bool consolidateSourceFiles(Program& program);

}  // namespace orvanta
