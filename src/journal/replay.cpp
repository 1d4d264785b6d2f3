#include <algorithm>
#include <array>
#include <optional>
#include <vector>

#include "analyze/list_marks.h"
#include "analyze/mapping_keys.h"
#include "core/constants.h"
#include "core/failures.h"
#include "core/kind_controls.h"
#include "core/text.h"
#include "journal/journal.h"

namespace orvanta {

namespace {

/// Where the records of one tag ending, such as "A_S", apply.
struct Target {
    std::string ending;
    std::array<ListMember, 3> lists;  // the main list, then those in step with it
    int image;
    bool restoresKey;
    ListMember parents;      // holds the rows of the extra field and of equal key
    bool reachesMappedRows;  // an edit goes on to the rows mapped from the statement
};

Target brainstormTarget(const KindControls& controls) {
    return {.ending = std::string("B_") + letterOf(controls.kind),
            .lists = {controls.brainstormList, noList, noList},
            .image = imageOf(controls.kind),
            .restoresKey = false,
            .parents = noList,
            .reachesMappedRows = false};
}

Target analyzeTarget(const KindControls& controls) {
    return {.ending = std::string("A_") + letterOf(controls.kind),
            .lists = {controls.analyzeList, controls.pickingLists[0], controls.pickingLists[1]},
            .image = imageOf(controls.kind),
            .restoresKey = true,
            .parents = controls.mappingList,
            .reachesMappedRows = controls.mappingList == noList};
}

std::optional<Target> targetOf(std::string_view ending) {
    for (const KindControls& controls : kindControls)
        for (const Target& target : {brainstormTarget(controls), analyzeTarget(controls)})
            if (target.ending == ending) return target;
    return std::nullopt;
}

struct MappingTarget {
    std::string_view ending;
    ListMember list;
    int image;  // of a top row
};

constexpr std::array<MappingTarget, 2> mappingTargets{{
    {"OM", &FrmMain::lvOpportunity, 3},
    {"TM", &FrmMain::lvThreat, 4},
}};

struct Record {
    std::string_view tag, positionText, key, text, extra;

    /// Fails where the field is no number; the step that needs it is then passed over.
    int position() const {
        const auto position = positionFrom(positionText);
        if (!position) throw Failure(ErrorNumber::InvalidCall);
        return *position;
    }
};

/// None if the text has too few fields to mean anything. A text with a delimiter inside gives
/// more than five fields: the statement ends at its delimiter and the extra field is lost.
std::optional<Record> recordFrom(std::string_view entry) {
    const auto fields = splitAt(entry, journalDelimiter);
    if (fields.size() <= 3) return std::nullopt;
    return Record{fields[0], fields[1], fields[2], fields[3],
                  fields.size() == 5 ? fields[4] : std::string_view()};
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
        const auto cut = m_record.tag.find('_');
        if (cut == std::string_view::npos) return;
        const std::string_view operation = m_record.tag.substr(0, cut);
        const std::string_view ending = m_record.tag.substr(cut + 1);
        if (const auto target = targetOf(ending)) return runStatement(operation, *target);
        if (const auto target = std::ranges::find(mappingTargets, ending, &MappingTarget::ending);
            target != mappingTargets.end())
            runMapping(operation, *target);
    }

private:
    void runStatement(std::string_view operation, const Target& target) {
        if (operation == "ADD") addStatement(target);
        if (operation == "DEL") removeStatement(target);
        if (operation == "EDIT") editStatement(target);
    }

    void runMapping(std::string_view operation, const MappingTarget& target) {
        if (operation == "ADD") addMappingRow(target);
        if (operation == "DEL") removeMappingRow(target);
    }

    template <class Change>
    void inEachList(const Target& target, Change change) {
        for (const ListMember list : target.lists)
            if (list) m_step([&] { change(m_form.*list); });
    }

    void addStatement(const Target& target) {
        // A Brainstorm row comes back without its key: nothing reads it again.
        const std::string key(target.restoresKey ? m_record.key : std::string_view());
        inEachList(target, [&](StatementList& list) {
            insertRow(list, m_record.position(), key, target.image);
        });
        if (target.parents)
            forEachRemovedRow([&](std::string_view removedKey, int position) {
                insertRow(m_form.*target.parents, position, std::string(removedKey), target.image);
            });
        counter("DEL_", target.ending, m_record.text, m_record.extra);
    }

    void removeStatement(const Target& target) {
        if (standsElsewhere(m_form.*target.lists.front())) return;
        inEachList(target, [&](StatementList& list) { list.remove(m_record.position()); });
        if (target.parents)
            forEachRemovedRow(
                [&](std::string_view, int position) { (m_form.*target.parents).remove(position); });
        counter("ADD_", target.ending, m_record.text, m_record.extra);
    }

    void editStatement(const Target& target) {
        std::string oldText;
        m_step([&] { oldText = (m_form.*target.lists.front()).row(m_record.position()).text; });
        const std::string newText(m_record.text);
        inEachList(target,
                   [&](StatementList& list) { list.setText(m_record.position(), newText); });
        if (target.reachesMappedRows)
            for (const MappingTarget& mapping : mappingTargets)
                setTextOfMappedRows(m_form.*mapping.list, m_record.key, newText);
        if (target.parents) setTextOfKey(m_form.*target.parents, m_record.key, newText);
        counter("EDIT_", target.ending, oldText, {});
    }

    void addMappingRow(const MappingTarget& target) {
        StatementList& list = m_form.*target.list;
        if (trimBlanks(m_record.extra).empty()) {
            m_step([&] {
                insertRow(list, m_record.position(), std::string(m_record.key), target.image);
            });
        } else {
            // The large picture of a mapped row is the opportunities' on both sides.
            const Row row{.key = std::string(m_record.key),
                          .text = std::string(m_record.text),
                          .image = m_record.extra == "W" ? 2 : 1,
                          .largeImage = 3};
            const bool added = m_step([&] { list.insert(m_record.position(), row); });
            if (added)
                markMappedRow(
                    list, m_record.position(),
                    m_record.extra == "S" ? StatementKind::Strength : StatementKind::Weakness);
        }
        counter("DEL_", target.ending, m_record.text, m_record.extra);
    }

    void removeMappingRow(const MappingTarget& target) {
        if (standsElsewhere(m_form.*target.list)) return;
        m_step([&] { (m_form.*target.list).remove(m_record.position()); });
        counter("ADD_", target.ending, m_record.text, m_record.extra);
    }

    /// True if another text stands at the record's position. No row at all does not count: the
    /// removal then fails by itself, and the counter-record is written all the same.
    bool standsElsewhere(const StatementList& list) const {
        bool differs = false;
        m_step([&] { differs = list.row(m_record.position()).text != m_record.text; });
        return differs;
    }

    void insertRow(StatementList& list, int position, std::string key, int image) {
        list.insert(position, {.key = std::move(key),
                               .text = std::string(m_record.text),
                               .image = image,
                               .largeImage = image});
    }

    template <class Change>
    void forEachRemovedRow(Change change) {
        for (const std::string_view entry : splitAt(m_record.extra, ",")) {
            const auto parts = splitAt(entry, "|");
            if (parts.size() != 2) continue;
            if (const auto position = positionFrom(parts[1]))
                m_step([&] { change(parts[0], *position); });
        }
    }

    void counter(std::string_view operation, std::string_view ending, std::string_view text,
                 std::string_view extra) {
        m_step([&] {
            pushJournalRecord(m_program, m_countersToUndo, std::string(operation).append(ending),
                              static_cast<std::int16_t>(m_record.position()), m_record.key, text,
                              false, extra);
        });
    }

    Program& m_program;
    FrmMain& m_form;
    const Record& m_record;
    const bool m_countersToUndo;
    const CarryOn m_step{};
};

}  // namespace

void replayJournal(Program& program, bool replayDirection) {
    JournalRecords& records =
        replayDirection ? program.frmMain.undoRecords : program.frmMain.redoRecords;
    const auto newest = std::find_if(records.rbegin(), records.rend(),
                                     [](const std::string& entry) { return !entry.empty(); });
    if (newest == records.rend()) return;
    const std::string entry = *newest;  // a counter-record may move the stack's entries
    if (const auto record = recordFrom(entry)) Replay(program, *record, !replayDirection).run();
    newest->clear();
}

}  // namespace orvanta
