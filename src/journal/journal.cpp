#include "journal/journal.h"

#include <algorithm>

#include "core/constants.h"
#include "core/failures.h"

namespace orvanta {

namespace {

std::string recordOf(std::string_view tag, std::int16_t position, std::string_view key,
                     std::string_view text, std::string_view extra) {
    std::string record(tag);
    for (const std::string& field :
         {std::to_string(position), std::string(key), std::string(text), std::string(extra)})
        record.append(journalDelimiter).append(field);
    return record;
}

void store(JournalRecords& records, std::size_t firstSearched, std::string record) {
    const auto free = std::find(records.begin() + static_cast<std::ptrdiff_t>(firstSearched),
                                records.end(), std::string());
    if (free != records.end()) {
        *free = std::move(record);
        return;
    }
    std::rotate(records.begin(), records.begin() + 1, records.end());
    records.back() = std::move(record);
}

}  // namespace

void pushJournalRecord(Program& program, bool toUndo, std::string_view tag, std::int16_t position,
                       std::string_view key, std::string_view text, bool clearRedo,
                       std::string_view extra) {
    reportingFailures(program.platform.messages, [&] {
        FrmMain& form = program.frmMain;
        std::string record = recordOf(tag, position, key, text, extra);
        // Uneven on purpose: the redo stack is filled from its second entry on, and its first
        // one only by the shift of a full stack.
        if (!toUndo) return store(form.redoRecords, 1, std::move(record));
        store(form.undoRecords, 0, std::move(record));
        if (clearRedo) form.redoRecords.fill({});
    });
}

std::int16_t recordedPosition(int position) { return narrowed<std::int16_t>(position); }

void pushUserChange(Program& program, std::string_view tag, std::int16_t position,
                    std::string_view key, std::string_view text, std::string_view extra) {
    pushJournalRecord(program, true, tag, position, key, text, true, extra);
}

std::string removedRowEntry(std::string_view key, int position) {
    return std::string(key) + '|' + std::to_string(position) + ',';
}

}  // namespace orvanta
