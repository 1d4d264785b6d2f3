#include "journal/journal_records.h"

#include <algorithm>

#include "core/constants.h"
#include "core/failures.h"
#include "core/text.h"

namespace orvanta {

namespace {

constexpr PerEnum<Operation, std::string_view> operationWords{{
    {Operation::Add, "ADD"},
    {Operation::Delete, "DEL"},
    {Operation::Edit, "EDIT"},
}};

std::optional<Operation> operationFrom(std::string_view word) {
    for (const Operation operation : allOf<Operation>)
        if (operationWords[operation] == word) return operation;
    return std::nullopt;
}

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

std::string journalTag(Operation operation, std::string_view ending) {
    return std::string(operationWords[operation]).append("_").append(ending);
}

std::string endingOf(Session session, StatementKind kind) {
    return {sessionControls[session].letter, '_', letterOf(kind)};
}

int Record::position() const {
    const auto position = positionFrom(positionText);
    if (!position) throw Failure(ErrorNumber::InvalidCall);
    return *position;
}

std::optional<Record> recordFrom(std::string_view entry) {
    const auto fields = splitAt(entry, journalDelimiter);
    if (fields.size() <= 3) return std::nullopt;
    const std::string_view tag = fields[0];
    const auto cut = std::min(tag.find('_'), tag.size());
    return Record{.operation = operationFrom(tag.substr(0, cut)),
                  .ending = tag.substr(std::min(cut + 1, tag.size())),
                  .positionText = fields[1],
                  .key = fields[2],
                  .text = fields[3],
                  .extra = fields.size() == 5 ? fields[4] : std::string_view()};
}

std::string extraOf(const RemovedParentRow& row) {
    return std::string(row.key) + '|' + std::to_string(row.position) + ',';
}

std::vector<RemovedParentRow> removedRowsFrom(std::string_view extra) {
    std::vector<RemovedParentRow> rows;
    for (const std::string_view entry : splitAt(extra, ",")) {
        const auto parts = splitAt(entry, "|");
        if (parts.size() != 2) continue;
        if (const auto position = positionFrom(parts[1]))
            rows.push_back({.key = parts[0], .position = *position});
    }
    return rows;
}

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

}  // namespace orvanta
