#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "core/mapping_side.h"
#include "core/session.h"
#include "core/session_state.h"

namespace orvanta {

// How a record is written: five fields, the first of them a tag. The tag names what replay has
// to do, which is the inverse of the change, and where: "DEL_B_S" for an added Brainstorm
// strength, "ADD_OM" for a row taken out of the opportunities' mapping list.

enum class Operation { Add, Delete, Edit, Count };

std::string journalTag(Operation operation, std::string_view ending);
/// "B_S" to "A_T".
std::string endingOf(Session session, StatementKind kind);

/// A record taken apart; its parts view the record.
struct Record {
    std::optional<Operation> operation;
    std::string_view ending, positionText, key, text, extra;

    /// Fails where the field is no number; the step that needs it is then passed over.
    int position() const;
};

/// None if the text has too few fields to mean anything. A text with a delimiter inside gives
/// more than five fields: the statement ends at its delimiter and the extra field is lost.
std::optional<Record> recordFrom(std::string_view entry);

/// A row that went from a mapping list together with its opportunity or threat.
struct RemovedParentRow {
    std::string_view key;
    int position;
};

// The extra field of a removed opportunity or threat. What is no entry of it is passed over.
std::string extraOf(const RemovedParentRow& row);
std::vector<RemovedParentRow> removedRowsFrom(std::string_view extra);

/// Puts a record on the undo stack (`toUndo`) or the redo stack. A full stack drops its oldest
/// record. `clearRedo` empties the redo stack; it counts on the undo side alone.
void pushJournalRecord(Program& program, bool toUndo, std::string_view tag, std::int16_t position,
                       std::string_view key, std::string_view text, bool clearRedo,
                       std::string_view extra);

}  // namespace orvanta
