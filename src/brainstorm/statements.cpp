#include "brainstorm/statements.h"

#include "core/answer_prompt.h"
#include "core/failures.h"
#include "core/frm_edit.h"
#include "core/kind_controls.h"
#include "journal/journal.h"

namespace orvanta {

using enum StatementKind;

void addBrainstormStatement(Program& program, StatementKind kind) {
    FrmMain& form = program.frmMain;
    const StatementControls& controls = controlsOf(Session::Brainstorm, kind);
    TextBox& box = form.*controls.box;
    StatementList& list = form.*controls.list;
    const auto text = answerIn(program, box, kind);
    if (!text) return;
    form.editFlag = true;
    const std::string key = getNextKey(program, kind);
    const std::int16_t position = recordedPosition(list.count() + 1);
    list.add({.key = key, .text = *text, .image = imageOf(kind), .largeImage = imageOf(kind)});
    recordAdded(program, Session::Brainstorm, kind, {position, key, *text});
    emptyForNextAnswer(box);
}

void editBrainstormStatement(Program& program, StatementKind kind) {
    reportingFailures(program.platform.messages, [&] {
        const StatementList& list = listOf(program.frmMain, Session::Brainstorm, kind);
        if (!list.selectedRow()) return;
        const std::int16_t position = recordedPosition(list.selected());
        const std::string oldText = list.selectedRow()->text;
        showEditDialog(program, Session::Brainstorm, kind, oldText);
        if (list.selectedRow()->text != oldText)
            recordEdited(program, Session::Brainstorm, kind,
                         {position, list.selectedRow()->key, oldText});
    });
}

void removeBrainstormStatement(Program& program, StatementKind kind) {
    FrmMain& form = program.frmMain;
    StatementList& list = listOf(form, Session::Brainstorm, kind);
    const Row* row = list.selectedRow();
    if (!row) return;
    const std::int16_t position = recordedPosition(list.selected());
    recordRemoved(program, Session::Brainstorm, kind, {position, row->key, row->text});
    list.remove(position);
    form.editFlag = true;
}

void addBrainstormStrength(Program& program) { addBrainstormStatement(program, Strength); }
void addBrainstormWeakness(Program& program) { addBrainstormStatement(program, Weakness); }
void addBrainstormOpportunity(Program& program) { addBrainstormStatement(program, Opportunity); }
void addBrainstormThreat(Program& program) { addBrainstormStatement(program, Threat); }
void editBrainstormStrength(Program& program) { editBrainstormStatement(program, Strength); }
void editBrainstormWeakness(Program& program) { editBrainstormStatement(program, Weakness); }
void editBrainstormOpportunity(Program& program) { editBrainstormStatement(program, Opportunity); }
void editBrainstormThreat(Program& program) { editBrainstormStatement(program, Threat); }
void removeBrainstormStrength(Program& program) { removeBrainstormStatement(program, Strength); }
void removeBrainstormWeakness(Program& program) { removeBrainstormStatement(program, Weakness); }
void removeBrainstormOpportunity(Program& program) {
    removeBrainstormStatement(program, Opportunity);
}
void removeBrainstormThreat(Program& program) { removeBrainstormStatement(program, Threat); }

}  // namespace orvanta
