#include <algorithm>
#include <optional>

#include "core/failures.h"
#include "core/kind_controls.h"
#include "core/mapping_keys.h"
#include "core/mapping_side.h"
#include "core/row_marks.h"
#include "core/text.h"
#include "journal/journal.h"
#include "journal/journal_records.h"

namespace orvanta {

namespace {

/// Where the records of one tag ending apply.
struct Target {
    Session session;
    StatementKind kind;
};

std::optional<Target> targetOf(std::string_view ending) {
    for (const Session session : allOf<Session>)
        for (const StatementKind kind : statementKinds)
            if (endingOf(session, kind) == ending) return Target{session, kind};
    return std::nullopt;
}

std::optional<MappingSide> sideOfEnding(std::string_view ending) {
    for (const MappingSide side : mappingSides)
        if (sideControls[side].recordEnding == ending) return side;
    return std::nullopt;
}

/// One press of Undo or Redo. Every step stands alone: a failing one is passed over.
class Replay {
public:
    Replay(Program& program, const Record& record, bool countersToUndo)
        : m_program(program),
          m_form(program.frmMain),
          m_record(record),
          m_countersToUndo(countersToUndo) {}

    void run() {
        if (const auto target = targetOf(m_record.ending)) runStatement(*target);
        if (const auto side = sideOfEnding(m_record.ending)) runMapping(*side);
    }

private:
    void runStatement(const Target& target) {
        if (m_record.operation == Operation::Add) addStatement(target);
        if (m_record.operation == Operation::Delete) removeStatement(target);
        if (m_record.operation == Operation::Edit) editStatement(target);
    }

    void runMapping(MappingSide side) {
        if (m_record.operation == Operation::Add) addMappingRow(side);
        if (m_record.operation == Operation::Delete) removeMappingRow(side);
    }

    StatementList& mainList(const Target& target) {
        return listOf(m_form, target.session, target.kind);
    }

    /// The mapping list that holds the row of equal key; null for none.
    StatementList* mappingListOf(const Target& target) {
        const auto side = sideOfParents(target.kind);
        return target.session == Session::Analyze && side ? &mappingList(m_form, *side) : nullptr;
    }

    static bool hasPickingLists(const Target& target) {
        return target.session == Session::Analyze && isMappable(target.kind);
    }

    /// The main list and those in step with it, position by position.
    template <class Change>
    void inEachList(const Target& target, Change change) {
        m_step([&] { change(mainList(target)); });
        if (!hasPickingLists(target)) return;
        forEachCompanion(m_form, target.kind,
                         [&](StatementList& list) { m_step([&] { change(list); }); });
    }

    void addStatement(const Target& target) {
        // A Brainstorm row comes back without its key: nothing reads it again.
        const std::string_view key =
            target.session == Session::Analyze ? m_record.key : std::string_view();
        inEachList(target, [&](StatementList& list) {
            insertRow(list, m_record.position(), key, target.kind);
        });
        if (StatementList* parents = mappingListOf(target))
            for (const RemovedParentRow& row : removedRowsFrom(m_record.extra))
                m_step([&] { insertRow(*parents, row.position, row.key, target.kind); });
        counter(Operation::Delete, m_record.text, m_record.extra);
    }

    void removeStatement(const Target& target) {
        if (anotherTextStandsThere(mainList(target))) return;
        inEachList(target, [&](StatementList& list) { list.remove(m_record.position()); });
        if (StatementList* parents = mappingListOf(target))
            for (const RemovedParentRow& row : removedRowsFrom(m_record.extra))
                m_step([&] { parents->remove(row.position); });
        counter(Operation::Add, m_record.text, m_record.extra);
    }

    void editStatement(const Target& target) {
        std::string oldText;
        m_step([&] { oldText = mainList(target).row(m_record.position()).text; });
        const std::string newText(m_record.text);
        inEachList(target,
                   [&](StatementList& list) { list.setText(m_record.position(), newText); });
        if (hasPickingLists(target))
            for (const MappingSide side : mappingSides)
                setTextOfMappedRows(mappingList(m_form, side), m_record.key, newText);
        if (StatementList* parents = mappingListOf(target))
            setTextOfTopRows(*parents, m_record.key, newText);
        counter(Operation::Edit, oldText, {});
    }

    void addMappingRow(MappingSide side) {
        StatementList& list = mappingList(m_form, side);
        if (trimBlanks(m_record.extra).empty())
            m_step([&] {
                insertRow(list, m_record.position(), m_record.key, sideControls[side].parentKind);
            });
        else
            m_step([&] { insertMappedRow(list); });
        counter(Operation::Delete, m_record.text, m_record.extra);
    }

    void insertMappedRow(StatementList& list) {
        const auto pictured =
            m_record.extra == "W" ? StatementKind::Weakness : StatementKind::Strength;
        const auto coloured =
            m_record.extra == "S" ? StatementKind::Strength : StatementKind::Weakness;
        // The large picture of a mapped row is the opportunities' on both sides.
        list.insert(m_record.position(), {.key = std::string(m_record.key),
                                          .text = std::string(m_record.text),
                                          .image = imageOf(pictured),
                                          .largeImage = imageOf(StatementKind::Opportunity)});
        markMappedRow(list, m_record.position(), coloured);
    }

    void removeMappingRow(MappingSide side) {
        StatementList& list = mappingList(m_form, side);
        if (anotherTextStandsThere(list)) return;
        m_step([&] { list.remove(m_record.position()); });
        counter(Operation::Add, m_record.text, m_record.extra);
    }

    /// True if another text stands at the record's position. No row at all does not count: the
    /// removal then fails by itself, and the counter-record is written all the same.
    bool anotherTextStandsThere(const StatementList& list) const {
        bool differs = false;
        m_step([&] { differs = list.row(m_record.position()).text != m_record.text; });
        return differs;
    }

    void insertRow(StatementList& list, int position, std::string_view key, StatementKind kind) {
        list.insert(position, {.key = std::string(key),
                               .text = std::string(m_record.text),
                               .image = imageOf(kind),
                               .largeImage = imageOf(kind)});
    }

    void counter(Operation operation, std::string_view text, std::string_view extra) {
        m_step([&] {
            pushJournalRecord(m_program, m_countersToUndo, journalTag(operation, m_record.ending),
                              narrowed<std::int16_t>(m_record.position()), m_record.key, text,
                              false, extra);
        });
    }

    Program& m_program;
    FrmMain& m_form;
    const Record& m_record;
    const bool m_countersToUndo;
    const BestEffort m_step{};
};

}  // namespace

void replayJournal(Program& program, bool replayDirection) {
    JournalRecords& records =
        replayDirection ? program.frmMain.undoRecords : program.frmMain.redoRecords;
    const auto newest = std::find_if(records.rbegin(), records.rend(),
                                     [](const std::string& entry) { return !entry.empty(); });
    if (newest == records.rend()) return;
    // The record views the entry, which stays until the end: counter-records go to the other stack.
    if (const auto record = recordFrom(*newest)) Replay(program, *record, !replayDirection).run();
    newest->clear();
}

}  // namespace orvanta
