#include "brainstorm/statements.h"

#include "core/failures.h"
#include "core/messages.h"
#include "core/text.h"
#include "journal/journal.h"
#include "presentation/edit_dialog.h"

namespace orvanta {

namespace {

static_assert(brainstormKinds[indexOf(StatementKind::Threat)].kind == StatementKind::Threat);

const BrainstormKind& of(StatementKind kind) { return brainstormKinds[indexOf(kind)]; }

std::string tag(std::string_view operation, const BrainstormKind& kind) {
    return std::string(operation) + "_B_" + letterOf(kind.kind);
}

}  // namespace

void addBrainstormStatement(Program& program, const BrainstormKind& kind) {
    FrmMain& form = program.frmMain;
    TextBox& box = form.*kind.answerBox;
    StatementList& list = form.*kind.list;
    const std::string text(trimBlanks(box.text()));
    if (text.empty()) {
        refuse(program.platform.messages, kind.blankMessage);
        box.giveFocus();
        return;
    }
    form.editFlag = true;
    const std::string key = getNextKey(program, kind.kind);
    const int image = imageOf(kind.kind);
    list.add({.key = key, .text = text, .image = image, .largeImage = image});
    pushUserChange(program, tag("DEL", kind), list.count(), key, text);
    box.setText({});
    box.giveFocus();
}

void editBrainstormStatement(Program& program, const BrainstormKind& kind) {
    reportingFailures(program.platform.messages, [&] {
        StatementList& list = program.frmMain.*kind.list;
        if (!list.selectedRow()) return;
        const std::string oldText = list.selectedRow()->text;
        showEditDialog(program, std::string("B") + letterOf(kind.kind), oldText);
        if (list.selectedRow()->text == oldText) return;
        pushUserChange(program, tag("EDIT", kind), list.selected(), {}, oldText);
    });
}

void removeBrainstormStatement(Program& program, const BrainstormKind& kind) {
    FrmMain& form = program.frmMain;
    StatementList& list = form.*kind.list;
    const Row* row = list.selectedRow();
    if (!row) return;
    const int position = list.selected();
    pushUserChange(program, tag("ADD", kind), position, row->key, trimBlanks(row->text));
    list.remove(position);
    form.editFlag = true;
}

void addBrainstormStrength(Program& program) {
    addBrainstormStatement(program, of(StatementKind::Strength));
}
void addBrainstormWeakness(Program& program) {
    addBrainstormStatement(program, of(StatementKind::Weakness));
}
void addBrainstormOpportunity(Program& program) {
    addBrainstormStatement(program, of(StatementKind::Opportunity));
}
void addBrainstormThreat(Program& program) {
    addBrainstormStatement(program, of(StatementKind::Threat));
}
void editBrainstormStrength(Program& program) {
    editBrainstormStatement(program, of(StatementKind::Strength));
}
void editBrainstormWeakness(Program& program) {
    editBrainstormStatement(program, of(StatementKind::Weakness));
}
void editBrainstormOpportunity(Program& program) {
    editBrainstormStatement(program, of(StatementKind::Opportunity));
}
void editBrainstormThreat(Program& program) {
    editBrainstormStatement(program, of(StatementKind::Threat));
}
void removeBrainstormStrength(Program& program) {
    removeBrainstormStatement(program, of(StatementKind::Strength));
}
void removeBrainstormWeakness(Program& program) {
    removeBrainstormStatement(program, of(StatementKind::Weakness));
}
void removeBrainstormOpportunity(Program& program) {
    removeBrainstormStatement(program, of(StatementKind::Opportunity));
}
void removeBrainstormThreat(Program& program) {
    removeBrainstormStatement(program, of(StatementKind::Threat));
}

bool isAllowedInName(char character) {
    return std::string_view("<|>/\\:*?\"").find(character) == std::string_view::npos;
}

}  // namespace orvanta
