#pragma once

#include <chrono>
#include <optional>
#include <string>

#include "core/session.h"
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

/// Which sessions have changes that are in no file yet.
PerSession<bool> unsavedSessions(const FrmMain& form);
/// The person has left sessions, and the program goes on nevertheless: of those that were unsaved
/// before, what is on screen still is so again, and is copied. An analysis is on screen also when
/// it was saved, and is asked about once more.
void stayWithSessions(Program& program, const PerSession<bool>& unsavedBefore);

/// Copies a session with changes to its temporary file and gives that file's path; none where
/// nothing was to be copied. A failure is not told.
std::optional<std::string> copyUnsavedSession(Program& program);

/// How often the autosave timer ticks.
inline constexpr std::chrono::seconds autoSaveInterval{30};

/// One tick of it: makes that copy, and warns once where there is none.
void tickAutoSave(Program& program);

}  // namespace orvanta
