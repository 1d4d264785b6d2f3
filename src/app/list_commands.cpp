#include "app/list_commands.h"

#include <algorithm>

#include "app/window_events.h"
#include "core/kind_controls.h"
#include "core/mapping_side.h"
#include "sessionfiles/merging.h"

namespace orvanta {

namespace {

using Needs = ListCommand::Needs;

ListCommand commandOf(Button button, std::string_view caption, Needs needs) {
    return {caption, needs, false, [button](Program& program) {
                buttonPressed(program, button);
                buttonReleased(program, button);
            }};
}

std::vector<ListCommand> commandsOf(const ListButtons& buttons) {
    return {commandOf(buttons.edit, "Edit", Needs::ChosenRow),
            commandOf(buttons.remove, "Remove", Needs::ChosenRow)};
}

/// A mapped row, or a parent row that its own list has lost. Any other parent row would be gone for
/// good: Undo is off the screen there, and the list before still holds the statement.
bool holdsRemovableRow(const FrmMain& form, MappingSide side) {
    const Row* row = mappingList(form, side).selectedRow();
    if (!row) return false;
    const StatementList& own = listOf(form, Session::Analyze, sideControls[side].parentKind);
    return row->key.find('-') != std::string::npos || own.positionOf(row->key) == 0;
}

}  // namespace

std::vector<ListCommand> listCommandsOf(const FrmMain& form, const Control& list) {
    if (&list == &form.lstFiles)
        return {{mergeCaption, Needs::Nothing, false, mergeChosen},
                commandOf(Button::AFAdd, "Add...", Needs::Nothing),
                commandOf(Button::AFRemove, "Remove", Needs::ChosenRow)};
    if (&list == &form.lvOpportunity)
        return {{"Remove", Needs::RemovableRow, true, removeOpportunityMappingChosen}};
    if (&list == &form.lvThreat)
        return {{"Remove", Needs::RemovableRow, true, removeThreatMappingChosen}};
    for (const Session session : allOf<Session>)
        for (const StatementKind kind : statementKinds)
            if (&list == &listOf(form, session, kind))
                return commandsOf(controlsOf(session, kind).buttons);
    return {};
}

bool isOffered(const FrmMain& form, const Control& list, const ListCommand& command) {
    if (command.needs == Needs::RemovableRow)
        return std::ranges::any_of(mappingSides, [&](MappingSide side) {
            return &list == &mappingList(form, side) && holdsRemovableRow(form, side);
        });
    return command.needs == Needs::Nothing || list.hasSelection();
}

}  // namespace orvanta
