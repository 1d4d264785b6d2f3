#pragma once

#include <string>

#include "core/session_state.h"

namespace orvanta {

/// True for a file, false for a folder or nothing.
bool fileExists(const Program& program, const std::string& path);
/// True for a folder, false for a file or nothing.
bool folderExists(const Program& program, const std::string& path);

/// Deletes a temporary file if it is there; a failure passes to the caller.
void deleteIfThere(Program& program, const std::string& path);

}  // namespace orvanta
