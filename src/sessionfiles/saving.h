#pragma once

#include <chrono>

#include "core/session_state.h"

namespace orvanta {

/// Asks for a name and writes the session under it, which ends the session. False if nothing
/// was written because the person cancelled or would not overwrite.
bool saveBrainstormDialog(Program& program);
bool saveAnalyzeDialog(Program& program);

/// Offers to save unsaved changes. False if the caller must not go on.
bool promptSaveBrainstorm(Program& program);
bool promptSaveAnalyze(Program& program);

void openBrainstormFile(Program& program);

/// How often the autosave timer ticks.
inline constexpr std::chrono::seconds autoSaveInterval{30};

/// One tick of it: copies a session with changes to its temporary file.
void tickAutoSave(Program& program);

}  // namespace orvanta
