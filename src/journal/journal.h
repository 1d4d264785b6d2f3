#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "core/mapping_side.h"
#include "core/session.h"
#include "core/session_state.h"

namespace orvanta {

// A record tells how to take a change back. Records live in the two stacks of the main window
// and in no file.

/// The row that a person changed, as its record holds it.
struct ChangedRow {
    std::int16_t position;  // in the session's list of its kind, from 1
    std::string_view key, text;
};

/// The position of a row as a record holds it. Fails with Overflow beyond 32,767; ask for it
/// before the row is touched.
std::int16_t recordedPosition(int position);

// Each puts a record on the undo stack and empties the redo stack. A full stack drops its oldest
// record.

void recordAdded(Program& program, Session session, StatementKind kind, const ChangedRow& row);
/// `mappingPositions`: where the rows of the same key stood that went from a mapping list with it,
/// from 1, each when its turn came. Any number of rows may have no key, any other key is one row's.
void recordRemoved(Program& program, Session session, StatementKind kind, const ChangedRow& row,
                   const std::vector<int>& mappingPositions = {});
/// The row's text is the one before the edit.
void recordEdited(Program& program, Session session, StatementKind kind, const ChangedRow& row);
/// A row was taken out of a mapping list; its position is there.
void recordUnmapped(Program& program, MappingSide side, const ChangedRow& row);

/// Undo (true) or redo (false) of the newest record, if there is one. Carries on past failures.
void replayJournal(Program& program, bool replayDirection);

}  // namespace orvanta
