#include "analyze/statements.h"

#include "analyze/mapping.h"
#include "core/answer_prompt.h"
#include "core/failures.h"
#include "core/frm_edit.h"
#include "core/kind_controls.h"
#include "core/mapping_keys.h"
#include "core/mapping_side.h"
#include "journal/journal.h"

namespace orvanta {

using enum StatementKind;

namespace {

StatementList& mainList(Program& program, StatementKind kind) {
    return listOf(program.frmMain, Session::Analyze, kind);
}

void addStatement(Program& program, StatementKind kind) {
    FrmMain& form = program.frmMain;
    TextBox& box = form.*controlsOf(Session::Analyze, kind).box;
    StatementList& list = mainList(program, kind);
    const auto text = answerIn(program, box, kind);
    if (!text) return;
    form.editAFlag = true;
    Row added{.key = getNextKey(program, kind),
              .text = *text,
              .image = imageOf(kind),
              .largeImage = imageOf(kind)};
    const std::int16_t position = recordedPosition(list.count() + 1);
    list.add(std::move(added));
    forEachCompanion(form, kind, [&](StatementList& companion) { companion.addLastOf(list); });
    const Row& row = list.row(list.count());
    recordAdded(program, Session::Analyze, kind, {position, row.key, row.text});
    emptyForNextAnswer(box);
}

/// Gives the companions the text of the selected row.
void carryText(Program& program, StatementKind kind) {
    FrmMain& form = program.frmMain;
    const StatementList& list = mainList(program, kind);
    const Row& row = *list.selectedRow();
    if (const auto side = sideOfParents(kind))
        return setTextOfTopRows(mappingList(form, *side), row.key, row.text);
    forEachCompanion(form, kind, [&](StatementList& companion) {
        companion.setText(list.selected(), row.text);
    });
    for (const MappingSide side : mappingSides)
        setTextOfMappedRows(mappingList(form, side), row.key, row.text);
}

void editStatement(Program& program, StatementKind kind) {
    const StatementList& list = mainList(program, kind);
    if (!list.selectedRow()) return;
    const std::int16_t position = recordedPosition(list.selected());
    const std::string oldText = list.selectedRow()->text;
    showEditDialog(program, Session::Analyze, kind, oldText);
    if (list.selectedRow()->text != oldText)
        recordEdited(program, Session::Analyze, kind, {position, list.selectedRow()->key, oldText});
    carryText(program, kind);
}

void removeMappedRows(StatementList& mappingList, std::string_view childKey) {
    for (int position = 1; (position = findMappedRow(mappingList, childKey, position)) != 0;)
        mappingList.remove(position);
}

void removeMappable(Program& program, StatementKind kind) {
    reportingFailures(program.platform.messages, [&] {
        FrmMain& form = program.frmMain;
        StatementList& list = mainList(program, kind);
        const Row* row = list.selectedRow();
        if (!row) return;
        // The rows mapped from the statement go with it, unasked and unrecorded.
        for (const MappingSide side : mappingSides)
            removeMappedRows(mappingList(form, side), row->key);
        const std::int16_t position = recordedPosition(list.selected());
        recordRemoved(program, Session::Analyze, kind, {position, row->key, row->text});
        forEachCompanion(form, kind, [&](StatementList& companion) { companion.remove(position); });
        list.remove(position);
        form.editAFlag = true;
    });
}

void removeParent(Program& program, StatementKind kind) {
    reportingFailures(program.platform.messages, [&] {
        FrmMain& form = program.frmMain;
        StatementList& list = mainList(program, kind);
        StatementList& mappings = mappingList(form, *sideOfParents(kind));
        const Row* row = list.selectedRow();
        if (!row) return;
        std::vector<int> removed;
        for (int position = 1; (position = findTopRow(mappings, row->key, position)) != 0;) {
            if (hasMappedRows(mappings, row->key)) return refuseWhileRowsAreMapped(program);
            mappings.remove(position);
            removed.push_back(position);
        }
        const std::int16_t position = recordedPosition(list.selected());
        recordRemoved(program, Session::Analyze, kind, {position, row->key, row->text}, removed);
        list.remove(position);
        form.editAFlag = true;
    });
}

// Uneven on purpose: adding and editing an opportunity report no failure of their own.
void reporting(Program& program, void (*change)(Program&, StatementKind), StatementKind kind) {
    if (kind == StatementKind::Opportunity) return change(program, kind);
    reportingFailures(program.platform.messages, [&] { change(program, kind); });
}

}  // namespace

void addAnalyzeStatement(Program& program, StatementKind kind) {
    reporting(program, addStatement, kind);
}

void editAnalyzeStatement(Program& program, StatementKind kind) {
    reporting(program, editStatement, kind);
}

void removeAnalyzeStatement(Program& program, StatementKind kind) {
    (isMappable(kind) ? removeMappable : removeParent)(program, kind);
}

void addAnalyzeStrength(Program& program) { addAnalyzeStatement(program, Strength); }
void addAnalyzeWeakness(Program& program) { addAnalyzeStatement(program, Weakness); }
void addAnalyzeOpportunity(Program& program) { addAnalyzeStatement(program, Opportunity); }
void addAnalyzeThreat(Program& program) { addAnalyzeStatement(program, Threat); }
void editAnalyzeStrength(Program& program) { editAnalyzeStatement(program, Strength); }
void editAnalyzeWeakness(Program& program) { editAnalyzeStatement(program, Weakness); }
void editAnalyzeOpportunity(Program& program) { editAnalyzeStatement(program, Opportunity); }
void editAnalyzeThreat(Program& program) { editAnalyzeStatement(program, Threat); }
void removeAnalyzeStrength(Program& program) { removeAnalyzeStatement(program, Strength); }
void removeAnalyzeWeakness(Program& program) { removeAnalyzeStatement(program, Weakness); }
void removeAnalyzeOpportunity(Program& program) { removeAnalyzeStatement(program, Opportunity); }
void removeAnalyzeThreat(Program& program) { removeAnalyzeStatement(program, Threat); }

}  // namespace orvanta
