#pragma once

#include "core/session_state.h"

namespace orvanta {

/// Asks for a name and writes the session under it, which ends the session. False if nothing
/// was written because the person cancelled or would not overwrite.
bool saveBrainstormDialog(Program& program);
bool saveAnalyzeDialog(Program& program);

/// Offers to save unsaved changes. False if the caller must not go on.
bool promptSaveBrainstorm(Program& program);
bool promptSaveAnalyze(Program& program);
/// Both, brainstorm first; a No-go of the first leaves the second unasked.
bool mayLeaveSessions(Program& program);

/// One tick of the autosave timer: copies a session with changes to its temporary file.
void tickAutoSave(Program& program);

}  // namespace orvanta
