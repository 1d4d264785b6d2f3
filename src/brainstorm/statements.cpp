#include "brainstorm/statements.h"

#include "core/failures.h"
#include "core/kind_controls.h"
#include "core/messages.h"
#include "core/text.h"
#include "journal/journal.h"
#include "presentation/edit_dialog.h"

namespace orvanta {

namespace {

std::string tag(std::string_view operation, StatementKind kind) {
    return std::string(operation) + "_B_" + letterOf(kind);
}

void editStatement(Program& program, StatementKind kind) {
    reportingFailures(program.platform.messages, [&] {
        StatementList& list = program.frmMain.*controlsOf(kind).brainstormList;
        if (!list.selectedRow()) return;
        const std::int16_t position = recordedPosition(list.selected());
        const std::string oldText = list.selectedRow()->text;
        showEditDialog(program, std::string("B") + letterOf(kind), oldText);
        if (list.selectedRow()->text == oldText) return;
        pushUserChange(program, tag("EDIT", kind), position, {}, oldText);
    });
}

void removeStatement(Program& program, StatementKind kind) {
    FrmMain& form = program.frmMain;
    StatementList& list = form.*controlsOf(kind).brainstormList;
    const Row* row = list.selectedRow();
    if (!row) return;
    const std::int16_t position = recordedPosition(list.selected());
    pushUserChange(program, tag("ADD", kind), position, row->key, trimBlanks(row->text));
    list.remove(position);
    form.editFlag = true;
}

}  // namespace

void addBrainstormStatement(Program& program, StatementKind kind) {
    FrmMain& form = program.frmMain;
    const KindControls& controls = controlsOf(kind);
    TextBox& box = form.*controls.answerBox;
    StatementList& list = form.*controls.brainstormList;
    const std::string text(trimBlanks(box.text()));
    if (text.empty()) {
        refuse(program.platform.messages, controls.blankMessage);
        box.giveFocus();
        return;
    }
    form.editFlag = true;
    const std::string key = getNextKey(program, kind);
    const std::int16_t position = recordedPosition(list.count() + 1);
    list.add({.key = key, .text = text, .image = imageOf(kind), .largeImage = imageOf(kind)});
    pushUserChange(program, tag("DEL", kind), position, key, text);
    box.setText({});
    box.giveFocus();
}

void addBrainstormStrength(Program& program) {
    addBrainstormStatement(program, StatementKind::Strength);
}
void addBrainstormWeakness(Program& program) {
    addBrainstormStatement(program, StatementKind::Weakness);
}
void addBrainstormOpportunity(Program& program) {
    addBrainstormStatement(program, StatementKind::Opportunity);
}
void addBrainstormThreat(Program& program) {
    addBrainstormStatement(program, StatementKind::Threat);
}
void editBrainstormStrength(Program& program) { editStatement(program, StatementKind::Strength); }
void editBrainstormWeakness(Program& program) { editStatement(program, StatementKind::Weakness); }
void editBrainstormOpportunity(Program& program) {
    editStatement(program, StatementKind::Opportunity);
}
void editBrainstormThreat(Program& program) { editStatement(program, StatementKind::Threat); }
void removeBrainstormStrength(Program& program) {
    removeStatement(program, StatementKind::Strength);
}
void removeBrainstormWeakness(Program& program) {
    removeStatement(program, StatementKind::Weakness);
}
void removeBrainstormOpportunity(Program& program) {
    removeStatement(program, StatementKind::Opportunity);
}
void removeBrainstormThreat(Program& program) { removeStatement(program, StatementKind::Threat); }

bool isAllowedInName(char character) {
    return std::string_view("<|>/\\:*?\"").find(character) == std::string_view::npos;
}

}  // namespace orvanta
