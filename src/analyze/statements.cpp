#include "analyze/statements.h"

#include "analyze/mapping.h"
#include "analyze/mapping_keys.h"
#include "core/failures.h"
#include "core/messages.h"
#include "core/text.h"
#include "journal/journal.h"
#include "presentation/edit_dialog.h"

namespace orvanta {

namespace {

using List = StatementList FrmMain::*;

/// What differs between the four kinds. The first two have picking lists, the other two a
/// mapping list.
struct AnalyzeKind {
    StatementKind kind;
    TextBox FrmMain::*box;
    List main;
    std::array<List, 2> pickingLists;
    List mappingList;
    std::string_view blankMessage;
};

constexpr List noList = nullptr;

constexpr std::array<AnalyzeKind, 4> analyzeKinds{{
    {StatementKind::Strength,
     &FrmMain::txtAStrength,
     &FrmMain::lvAStrength,
     {&FrmMain::lvStrengthOp, &FrmMain::lvStrengthTh},
     noList,
     "Please enter strength."},
    {StatementKind::Weakness,
     &FrmMain::txtAWeakness,
     &FrmMain::lvAWeakness,
     {&FrmMain::lvWeaknessOp, &FrmMain::lvWeaknessTh},
     noList,
     "Please enter weakness."},
    {StatementKind::Opportunity,
     &FrmMain::txtAOpportunity,
     &FrmMain::lvAOpportunity,
     {noList, noList},
     &FrmMain::lvOpportunity,
     "Please enter opportunity."},
    {StatementKind::Threat,
     &FrmMain::txtAThreat,
     &FrmMain::lvAThreat,
     {noList, noList},
     &FrmMain::lvThreat,
     "Please enter threat."},
}};
static_assert(analyzeKinds[indexOf(StatementKind::Threat)].kind == StatementKind::Threat);

constexpr std::array<List, 2> mappingLists{&FrmMain::lvOpportunity, &FrmMain::lvThreat};

const AnalyzeKind& of(StatementKind kind) { return analyzeKinds[indexOf(kind)]; }

std::string tag(std::string_view operation, const AnalyzeKind& kind) {
    return std::string(operation) + "_A_" + letterOf(kind.kind);
}

void addStatement(Program& program, const AnalyzeKind& kind) {
    FrmMain& form = program.frmMain;
    TextBox& box = form.*kind.box;
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
    for (const List list :
         {kind.main, kind.pickingLists[0], kind.pickingLists[1], kind.mappingList})
        if (list) (form.*list).add(row);
    pushUserChange(program, tag("DEL", kind), (form.*kind.main).count(), row.key, text);
    box.setText({});
    box.giveFocus();
}

void carryText(FrmMain& form, const AnalyzeKind& kind) {
    const StatementList& main = form.*kind.main;
    const Row& row = *main.selectedRow();
    if (kind.mappingList) return setTextOfKey(form.*kind.mappingList, row.key, row.text);
    for (const List list : kind.pickingLists) (form.*list).setText(main.selected(), row.text);
    for (const List list : mappingLists) setTextOfMappedRows(form.*list, row.key, row.text);
}

void editStatement(Program& program, const AnalyzeKind& kind) {
    StatementList& list = program.frmMain.*kind.main;
    if (!list.selectedRow()) return;
    const std::string oldText = list.selectedRow()->text;
    showEditDialog(program, std::string("A") + letterOf(kind.kind), oldText);
    if (list.selectedRow()->text != oldText)
        pushUserChange(program, tag("EDIT", kind), list.selected(), list.selectedRow()->key,
                       oldText);
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

void removePicked(Program& program, const AnalyzeKind& kind) {
    reportingFailures(program.platform.messages, [&] {
        FrmMain& form = program.frmMain;
        StatementList& main = form.*kind.main;
        const Row* row = main.selectedRow();
        if (!row) return;
        // The rows mapped from the statement go with it, unasked and unrecorded.
        for (const List list : mappingLists) removeMappedRows(form.*list, row->key);
        const int position = main.selected();
        pushUserChange(program, tag("ADD", kind), position, row->key, trimBlanks(row->text));
        for (const List list : kind.pickingLists) (form.*list).remove(position);
        main.remove(position);
        form.editAFlag = true;
    });
}

void removeParent(Program& program, const AnalyzeKind& kind) {
    reportingFailures(program.platform.messages, [&] {
        FrmMain& form = program.frmMain;
        StatementList& main = form.*kind.main;
        StatementList& mappingList = form.*kind.mappingList;
        const Row* row = main.selectedRow();
        if (!row) return;
        std::string removedRows;
        if (const int position = mappingList.positionOf(row->key)) {
            if (hasMappedRows(mappingList, row->key)) return refuseMappedRows(program);
            removedRows = removedRowEntry(row->key, position);
            mappingList.remove(position);
        }
        pushUserChange(program, tag("ADD", kind), main.selected(), row->key, trimBlanks(row->text),
                       removedRows);
        main.remove(main.selected());
        form.editAFlag = true;
    });
}

// Uneven on purpose: adding and editing an opportunity report no failure of their own.
void reporting(Program& program, void (*change)(Program&, const AnalyzeKind&), StatementKind kind) {
    reportingFailures(program.platform.messages, [&] { change(program, of(kind)); });
}

}  // namespace

void addAnalyzeStrength(Program& program) {
    reporting(program, addStatement, StatementKind::Strength);
}
void addAnalyzeWeakness(Program& program) {
    reporting(program, addStatement, StatementKind::Weakness);
}
void addAnalyzeOpportunity(Program& program) {
    addStatement(program, of(StatementKind::Opportunity));
}
void addAnalyzeThreat(Program& program) { reporting(program, addStatement, StatementKind::Threat); }
void editAnalyzeStrength(Program& program) {
    reporting(program, editStatement, StatementKind::Strength);
}
void editAnalyzeWeakness(Program& program) {
    reporting(program, editStatement, StatementKind::Weakness);
}
void editAnalyzeOpportunity(Program& program) {
    editStatement(program, of(StatementKind::Opportunity));
}
void editAnalyzeThreat(Program& program) {
    reporting(program, editStatement, StatementKind::Threat);
}
void removeAnalyzeStrength(Program& program) { removePicked(program, of(StatementKind::Strength)); }
void removeAnalyzeWeakness(Program& program) { removePicked(program, of(StatementKind::Weakness)); }
void removeAnalyzeOpportunity(Program& program) {
    removeParent(program, of(StatementKind::Opportunity));
}
void removeAnalyzeThreat(Program& program) { removeParent(program, of(StatementKind::Threat)); }

}  // namespace orvanta
