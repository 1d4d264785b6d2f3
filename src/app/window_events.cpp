#include "app/window_events.h"

#include "analyze/mapping.h"
#include "analyze/source_files.h"
#include "analyze/statements.h"
#include "app/button_actions.h"
#include "app/shutdown.h"
#include "app/startup.h"
#include "brainstorm/name_entry.h"
#include "brainstorm/statements.h"
#include "core/failures.h"
#include "core/kind_controls.h"
#include "core/list_ranking.h"
#include "core/row_marks.h"
#include "journal/journal.h"
#include "presentation/team_distribution.h"
#include "questions/narration.h"
#include "sessionfiles/merging.h"
#include "sessionfiles/saving.h"
#include "view/text_entry.h"

namespace orvanta {

namespace {

template <class Steps>
void handle(Program& program, Steps steps) {
    endingEventOnFailure(program.platform.lifetime, steps);
}

/// Enter in an answer box adds what it holds; elsewhere it does nothing.
void addAnswerIn(Program& program, const TextBox& box) {
    constexpr PerSession<void (*)(Program&, StatementKind)> adds{
        {{Session::Brainstorm, addBrainstormStatement}, {Session::Analyze, addAnalyzeStatement}}};
    for (const Session session : allOf<Session>)
        for (const StatementKind kind : statementKinds)
            if (&(program.frmMain.*controlsOf(session, kind).box) == &box)
                adds[session](program, kind);
}

}  // namespace

void windowActivated(Program& program) {
    handle(program, [&] { activateMainWindow(program); });
}

bool windowClosing(Program& program) {
    bool closes = false;
    handle(program, [&] { closes = closeMainWindow(program); });
    return closes;
}

void buttonPressed(Program& program, Button button) {
    handle(program, [&] { pressButton(program, button); });
}

void buttonReleased(Program& program, Button button) {
    handle(program, [&] { releaseButton(program, button); });
}

void undoClicked(Program& program) {
    handle(program, [&] { replayJournal(program, true); });
}

void redoClicked(Program& program) {
    handle(program, [&] { replayJournal(program, false); });
}

void distributeClicked(Program& program) {
    handle(program, [&] { distributeToTeam(program); });
}

void muteClicked(Program& program, bool on) {
    handle(program, [&] { clickMute(program, on); });
}

bool characterTyped(Program& program, TextBox& box, char character) {
    FrmMain& form = program.frmMain;
    if (&box == &form.txtName) return isAllowedInName(character);
    if (character != enterKey) return true;
    handle(program, [&] { addAnswerIn(program, box); });
    return true;
}

void draggedOver(Program& program, StatementList& list) {
    handle(program, [&] { dragOverList(program, list); });
}

void droppedOn(Program& program, StatementList& list, int position) {
    const FrmMain& form = program.frmMain;
    handle(program, [&] {
        if (isMappingList(form, list)) return mapDroppedStatement(program, list, position);
        if (isPickingList(form, list)) return unmapDroppedRow(program, list);
        rankDroppedRow(form, list, position);
    });
}

DropPreview previewOfDrop(const Program& program, const StatementList& from,
                          const StatementList& list, int position) {
    const FrmMain& form = program.frmMain;
    if (isMappingList(form, list)) {
        if (!takesMapping(form, list, position)) return {};
        const Row* statement = statementToMap(form, list);
        if (!statement || isMappedAlready(list, position, *statement))
            return {DropTarget::Unseen, statement};
        return {DropTarget::Row,
                statement,
                {"map: " + statement->text, "onto: " + list.row(position).text}};
    }
    if (isPickingList(form, list)) {
        const Row* row = rowToTakeBack(form, list);
        return row ? DropPreview{DropTarget::WholeList, row, {"take back: " + row->text}}
                   : DropPreview{};
    }
    if (isRanked(form, list) && &from == &list && position != 0)
        return {DropTarget::Row, from.selectedRow(), {"below: " + list.row(position).text}};
    return {};
}

void hoveredOver(Program& program, StatementList& list, int position) {
    handle(program, [&] { showRowToolTip(program, list, position); });
}

void sourceFileDropped(Program& program, const std::string& path) {
    handle(program, [&] { addChosenSourceFile(program, path); });
}

void autoSaveTicked(Program& program) {
    handle(program, [&] { tickAutoSave(program); });
}

void mergeChosen(Program& program) {
    handle(program, [&] { mergeBrainstormFiles(program); });
}

void removeOpportunityMappingChosen(Program& program) {
    handle(program, [&] { removeOpportunityMappingRow(program); });
}

void removeThreatMappingChosen(Program& program) {
    handle(program, [&] { removeThreatMappingRow(program); });
}

}  // namespace orvanta
