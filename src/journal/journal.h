#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "core/session_state.h"

namespace orvanta {

// A record tells how to take a change back: its tag names the inverse of the change. Records
// are texts of five fields; they live in the two stacks of the main window and in no file.

/// Puts a record on the undo stack (`toUndo`) or the redo stack. A full stack drops its oldest
/// record. `clearRedo` empties the redo stack; it counts on the undo side alone.
void pushJournalRecord(Program& program, bool toUndo, std::string_view tag, std::int16_t position,
                       std::string_view key, std::string_view text, bool clearRedo,
                       std::string_view extra);

/// The position of a row as a record holds it. Fails with Overflow beyond 32,767; ask for it
/// before the row is touched.
std::int16_t recordedPosition(int position);

/// Records a change that a person made.
void pushUserChange(Program& program, std::string_view tag, std::int16_t position,
                    std::string_view key, std::string_view text, std::string_view extra = {});

/// Undo (true) or redo (false) of the newest record, if there is one. Carries on past failures.
void replayJournal(Program& program, bool replayDirection);

/// One entry of the extra field that goes with a removed opportunity or threat: the key and
/// the position of a row that was taken out of its mapping list.
std::string removedRowEntry(std::string_view key, int position);

}  // namespace orvanta
