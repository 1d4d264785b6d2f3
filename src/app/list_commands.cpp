#include "app/list_commands.h"

#include "app/window_events.h"
#include "core/kind_controls.h"
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

}  // namespace

std::vector<ListCommand> listCommandsOf(const FrmMain& form, const Control& list) {
    if (&list == &form.lstFiles)
        return {{mergeCaption, Needs::Nothing, false, mergeChosen},
                commandOf(Button::AFAdd, "Add...", Needs::Nothing),
                commandOf(Button::AFRemove, "Remove", Needs::ChosenRow)};
    if (&list == &form.lvOpportunity)
        return {{"Remove", Needs::ChosenRow, true, removeOpportunityMappingChosen}};
    if (&list == &form.lvThreat)
        return {{"Remove", Needs::ChosenRow, true, removeThreatMappingChosen}};
    for (const Session session : allOf<Session>)
        for (const StatementKind kind : statementKinds)
            if (&list == &listOf(form, session, kind))
                return commandsOf(controlsOf(session, kind).buttons);
    return {};
}

bool isOffered(const Control& list, const ListCommand& command) {
    return command.needs == Needs::Nothing || list.hasSelection();
}

}  // namespace orvanta
