#include "analyze/statements.h"

#include "analyze/mapping.h"
#include "analyze/mapping_keys.h"
#include "core/failures.h"
#include "core/kind_controls.h"
#include "core/messages.h"
#include "core/text.h"
#include "journal/journal.h"
#include "presentation/edit_dialog.h"

namespace orvanta {

namespace {

constexpr std::array<ListMember, 2> mappingLists{&FrmMain::lvOpportunity, &FrmMain::lvThreat};

std::string tag(std::string_view operation, const KindControls& kind) {
    return std::string(operation) + "_A_" + letterOf(kind.kind);
}

void addStatement(Program& program, const KindControls& kind) {
    FrmMain& form = program.frmMain;
    TextBox& box = form.*kind.reviewBox;
    const std::string text(trimBlanks(box.text()));
    if (text.empty()) {
        refuse(program.platform.messages, kind.blankMessage);
        box.giveFocus();
        return;
    }
    form.editAFlag = true;
    const int image = imageOf(kind.kind);
    const Row row{
        .key = getNextKey(program, kind.kind), .text = text, .image = image, .largeImage = image};
    const std::int16_t position = recordedPosition((form.*kind.analyzeList).count() + 1);
    (form.*kind.analyzeList).add(row);
    forEachCompanion(form, kind, [&](StatementList& list) { list.add(row); });
    pushUserChange(program, tag("DEL", kind), position, row.key, text);
    box.setText({});
    box.giveFocus();
}

void carryText(FrmMain& form, const KindControls& kind) {
    const StatementList& main = form.*kind.analyzeList;
    const Row& row = *main.selectedRow();
    if (kind.mappingList) return setTextOfKey(form.*kind.mappingList, row.key, row.text);
    for (const ListMember list : kind.pickingLists) (form.*list).setText(main.selected(), row.text);
    for (const ListMember list : mappingLists) setTextOfMappedRows(form.*list, row.key, row.text);
}

void editStatement(Program& program, const KindControls& kind) {
    StatementList& list = program.frmMain.*kind.analyzeList;
    if (!list.selectedRow()) return;
    const std::int16_t position = recordedPosition(list.selected());
    const std::string oldText = list.selectedRow()->text;
    showEditDialog(program, std::string("A") + letterOf(kind.kind), oldText);
    if (list.selectedRow()->text != oldText)
        pushUserChange(program, tag("EDIT", kind), position, list.selectedRow()->key, oldText);
    carryText(program.frmMain, kind);
}

void removeMappedRows(StatementList& mappingList, std::string_view childKey) {
    for (int position = 1; position <= mappingList.count();) {
        const MappingKey key = mappingKeyFrom(mappingList.row(position).key);
        if (key.isMapped && key.child == childKey)
            mappingList.remove(position);
        else
            ++position;
    }
}

void removePicked(Program& program, const KindControls& kind) {
    reportingFailures(program.platform.messages, [&] {
        FrmMain& form = program.frmMain;
        StatementList& main = form.*kind.analyzeList;
        const Row* row = main.selectedRow();
        if (!row) return;
        // The rows mapped from the statement go with it, unasked and unrecorded.
        for (const ListMember list : mappingLists) removeMappedRows(form.*list, row->key);
        const std::int16_t position = recordedPosition(main.selected());
        pushUserChange(program, tag("ADD", kind), position, row->key, trimBlanks(row->text));
        for (const ListMember list : kind.pickingLists) (form.*list).remove(position);
        main.remove(position);
        form.editAFlag = true;
    });
}

void removeParent(Program& program, const KindControls& kind) {
    reportingFailures(program.platform.messages, [&] {
        FrmMain& form = program.frmMain;
        StatementList& main = form.*kind.analyzeList;
        StatementList& mappingList = form.*kind.mappingList;
        const Row* row = main.selectedRow();
        if (!row) return;
        std::string removedRows;
        if (const int position = mappingList.positionOf(row->key)) {
            if (hasMappedRows(mappingList, row->key)) return refuseMappedRows(program);
            removedRows = removedRowEntry(row->key, position);
            mappingList.remove(position);
        }
        pushUserChange(program, tag("ADD", kind), recordedPosition(main.selected()), row->key,
                       trimBlanks(row->text), removedRows);
        main.remove(main.selected());
        form.editAFlag = true;
    });
}

// Uneven on purpose: adding and editing an opportunity report no failure of their own.
void reporting(Program& program, void (*change)(Program&, const KindControls&),
               StatementKind kind) {
    reportingFailures(program.platform.messages, [&] { change(program, controlsOf(kind)); });
}

}  // namespace

void addAnalyzeStrength(Program& program) {
    reporting(program, addStatement, StatementKind::Strength);
}
void addAnalyzeWeakness(Program& program) {
    reporting(program, addStatement, StatementKind::Weakness);
}
void addAnalyzeOpportunity(Program& program) {
    addStatement(program, controlsOf(StatementKind::Opportunity));
}
void addAnalyzeThreat(Program& program) { reporting(program, addStatement, StatementKind::Threat); }
void editAnalyzeStrength(Program& program) {
    reporting(program, editStatement, StatementKind::Strength);
}
void editAnalyzeWeakness(Program& program) {
    reporting(program, editStatement, StatementKind::Weakness);
}
void editAnalyzeOpportunity(Program& program) {
    editStatement(program, controlsOf(StatementKind::Opportunity));
}
void editAnalyzeThreat(Program& program) {
    reporting(program, editStatement, StatementKind::Threat);
}
void removeAnalyzeStrength(Program& program) {
    removePicked(program, controlsOf(StatementKind::Strength));
}
void removeAnalyzeWeakness(Program& program) {
    removePicked(program, controlsOf(StatementKind::Weakness));
}
void removeAnalyzeOpportunity(Program& program) {
    removeParent(program, controlsOf(StatementKind::Opportunity));
}
void removeAnalyzeThreat(Program& program) {
    removeParent(program, controlsOf(StatementKind::Threat));
}

void addAnalyzeStatement(Program& program, StatementKind kind) {
    constexpr std::array adds{addAnalyzeStrength, addAnalyzeWeakness, addAnalyzeOpportunity,
                              addAnalyzeThreat};
    adds[indexOf(kind)](program);
}

}  // namespace orvanta
