#include "journal/journal.h"

#include "core/failures.h"
#include "core/mapping_keys.h"
#include "core/text.h"
#include "journal/journal_records.h"

namespace orvanta {

namespace {

void pushUserChange(Program& program, const std::string& tag, const ChangedRow& row,
                    std::string_view extra = {}) {
    pushJournalRecord(program, true, tag, row.position, row.key, row.text, true, extra);
}

/// The letter of what was mapped; empty for a parent row.
std::string mappedLetterOf(std::string_view key) {
    if (key.find('-') == std::string_view::npos) return {};
    return {letterOf(mappedKindOf(key))};
}

}  // namespace

std::int16_t recordedPosition(int position) { return narrowed<std::int16_t>(position); }

void recordAdded(Program& program, Session session, StatementKind kind, const ChangedRow& row) {
    pushUserChange(program, journalTag(Operation::Delete, endingOf(session, kind)), row);
}

void recordRemoved(Program& program, Session session, StatementKind kind, const ChangedRow& row,
                   const std::vector<int>& mappingPositions) {
    std::string extra;
    for (const int position : mappingPositions)
        extra += extraOf({.key = row.key, .position = position});
    pushUserChange(program, journalTag(Operation::Add, endingOf(session, kind)),
                   {row.position, row.key, trimBlanks(row.text)}, extra);
}

void recordEdited(Program& program, Session session, StatementKind kind, const ChangedRow& row) {
    // Nothing reads the key of a Brainstorm row again.
    const std::string_view key = session == Session::Analyze ? row.key : std::string_view();
    pushUserChange(program, journalTag(Operation::Edit, endingOf(session, kind)),
                   {row.position, key, row.text});
}

void recordUnmapped(Program& program, MappingSide side, const ChangedRow& row) {
    pushUserChange(program, journalTag(Operation::Add, sideControls[side].recordEnding),
                   {row.position, row.key, trimBlanks(row.text)}, mappedLetterOf(row.key));
}

}  // namespace orvanta
