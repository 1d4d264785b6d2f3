#include "app/list_commands.h"

#include "analyze/mapping.h"
#include "app/shortcuts.h"
#include "app/window_events.h"
#include "core/kind_controls.h"
#include "core/list_ranking.h"
#include "core/mapping_side.h"
#include "sessionfiles/merging.h"

namespace orvanta {

namespace {

constexpr std::string_view editKey = "F2", removeKey = "Del", mapKey = "Ctrl+M", upKey = "Alt+Up",
                           downKey = "Alt+Down";

ListCommand commandOf(Button button, std::string_view caption, std::string_view key,
                      bool isOffered) {
    return {std::string(caption), key, isOffered,
            [button](Program& program) { clickButton(program, button); }};
}

/// A mapped row, or a parent row that its own list has lost. Any other parent row would be gone for
/// good: Undo is off the screen there, and the list before still holds the statement.
bool holdsRemovableRow(const FrmMain& form, MappingSide side) {
    const Row* row = mappingList(form, side).selectedRow();
    if (!row) return false;
    const StatementList& own = listOf(form, Session::Analyze, sideControls[side].parentKind);
    return row->key.find('-') != std::string::npos || own.positionOf(row->key) == 0;
}

ListCommand removeMappingCommand(const FrmMain& form, MappingSide side) {
    constexpr PerSide<void (*)(Program&)> removals{
        {{MappingSide::Opportunities, removeOpportunityMappingChosen},
         {MappingSide::Threats, removeThreatMappingChosen}}};
    return {"Remove", removeKey, holdsRemovableRow(form, side), removals[side]};
}

/// Position of the parent row that the selected row of a mapping list is or stands under; 0 for
/// none.
int chosenParent(const FrmMain& form, const StatementList& mappingList) {
    int position = mappingList.selected();
    while (position > 0 && !takesMapping(form, mappingList, position)) --position;
    return position;
}

/// Takes a row of a list in hand and drops it on a row of the same or another list.
void dragOnto(Program& program, StatementList& from, StatementList& to, int position) {
    draggedOver(program, from);
    droppedOn(program, to, position);
}

ListCommand mapCommand(const FrmMain& form, MappingSide side, ListMember pickingList) {
    const StatementList& mappings = mappingList(form, side);
    const int parent = chosenParent(form, mappings);
    return {"Map onto " + (parent ? mappings.row(parent).text : std::string("...")), mapKey,
            parent && (form.*pickingList).hasSelection(), [side, pickingList](Program& program) {
                StatementList& target = mappingList(program.frmMain, side);
                dragOnto(program, program.frmMain.*pickingList, target,
                         chosenParent(program.frmMain, target));
            }};
}

/// A row can only be dropped below another one: the second one goes to the top by dropping the
/// first one below it, and is the chosen one then.
void moveUp(Program& program, StatementList& list) {
    const int position = list.selected();
    if (position > 2) return dragOnto(program, list, list, position - 2);
    list.select(1);
    dragOnto(program, list, list, 2);
    list.select(1);
}

std::vector<ListCommand> rankingCommands(const FrmMain& form, ListMember list) {
    const int position = (form.*list).selected();
    return {{"Move Up", upKey, position > 1,
             [list](Program& program) { moveUp(program, program.frmMain.*list); }},
            {"Move Down", downKey, position > 0 && position < (form.*list).count(),
             [list](Program& program) {
                 StatementList& ranked = program.frmMain.*list;
                 dragOnto(program, ranked, ranked, ranked.selected() + 1);
             }}};
}

std::vector<ListCommand> commandsOf(const FrmMain& form, const StatementControls& controls) {
    const StatementList& list = form.*controls.list;
    std::vector<ListCommand> commands{
        commandOf(controls.buttons.edit, "Edit", editKey, list.hasSelection()),
        commandOf(controls.buttons.remove, "Remove", removeKey, list.hasSelection())};
    if (isRanked(form, list))
        for (ListCommand& command : rankingCommands(form, controls.list))
            commands.push_back(std::move(command));
    return commands;
}

}  // namespace

std::vector<ListCommand> listCommandsOf(const FrmMain& form, const Control& list) {
    if (&list == &form.lstFiles)
        return {{std::string(mergeCaption), {}, true, mergeChosen},
                commandOf(Button::AFAdd, "Add...", {}, true),
                commandOf(Button::AFRemove, "Remove", removeKey, list.hasSelection())};
    for (const MappingSide side : mappingSides) {
        if (&list == &mappingList(form, side)) return {removeMappingCommand(form, side)};
        for (const HeadedList& picking :
             {sideControls[side].strengths, sideControls[side].weaknesses})
            if (&list == &(form.*picking.list)) return {mapCommand(form, side, picking.list)};
    }
    for (const Session session : allOf<Session>)
        for (const StatementKind kind : statementKinds)
            if (&list == &listOf(form, session, kind))
                return commandsOf(form, controlsOf(session, kind));
    return {};
}

}  // namespace orvanta
