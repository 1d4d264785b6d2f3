#include "app/list_hints.h"

#include "core/kind_controls.h"
#include "core/mapping_side.h"

namespace orvanta {

namespace {

std::string lower(std::string_view words) {
    std::string text(words);
    text.front() = static_cast<char>(text.front() - 'A' + 'a');
    return text;
}

bool isUnmapped(const StatementList& mappingList) {
    for (int position = 1; position <= mappingList.count(); ++position)
        if (mappingList.row(position).key.find('-') != std::string::npos) return false;
    return true;
}

std::string comesFromBefore(StatementKind kind) {
    return "No " + lower(nameOfSeveral(kind)) + ". Go back to add some.";
}

std::string hintIn(const FrmMain& form, const StatementList& list, MappingSide side) {
    const SideControls& controls = sideControls[side];
    for (const StatementKind kind : {StatementKind::Strength, StatementKind::Weakness})
        if (&list == &(form.*controls.picking(kind)) && list.count() == 0)
            return comesFromBefore(kind);
    if (&list != &mappingList(form, side)) return {};
    if (list.count() == 0) return comesFromBefore(controls.parentKind);
    if (!isUnmapped(list)) return {};
    return "Drag a strength or a weakness onto " +
           std::string(side == MappingSide::Opportunities ? "an " : "a ") +
           std::string(controls.parentWord) + ".";
}

}  // namespace

std::string hintIn(const FrmMain& form, const StatementList& list) {
    for (const MappingSide side : mappingSides)
        if (std::string hint = hintIn(form, list, side); !hint.empty()) return hint;
    if (list.count() > 0) return {};
    for (const Session session : allOf<Session>)
        for (const StatementKind kind : statementKinds)
            if (&list == &listOf(form, session, kind))
                return "No " + lower(nameOfSeveral(kind)) + " yet. Type one above and press Enter.";
    return {};
}

std::string hintIn(const ListBox& files) {
    if (!files.items().empty()) return {};
    return "No files yet. Press Add to choose the files of your team.";
}

}  // namespace orvanta
