#include "analyze/list_marks.h"

#include <array>

namespace orvanta {

namespace {

constexpr std::string_view movingKeyPrefix = "NEW-";

bool isBrainstormList(const FrmMain& form, const StatementList& list) {
    return &list == &form.lvBStrength || &list == &form.lvBWeakness ||
           &list == &form.lvBOpportunity || &list == &form.lvBThreat;
}

}  // namespace

void setRowIndent(StatementList& list, int index, std::int16_t indent) {
    if (index >= 1 && index <= list.count()) list.setIndent(index, indent);
}

void markMappedRow(StatementList& list, int position, StatementKind kind) {
    setRowIndent(list, position, mappedRowIndent);
    list.setColour(position,
                   kind == StatementKind::Strength ? mappedStrengthColour : mappedWeaknessColour);
}

void moveListRow(StatementList& sourceList, StatementList& targetList, int position,
                 bool copySubItem) {
    if (position == 0 || !sourceList.selectedRow()) return;
    const Row moved = *sourceList.selectedRow();
    // For a moment the list holds both rows, so the new one needs a key of its own.
    targetList.insert(position + 1, {.key = std::string(movingKeyPrefix) + moved.key,
                                     .text = moved.text,
                                     .image = moved.image,
                                     .largeImage = moved.largeImage,
                                     .subItem = copySubItem ? moved.subItem : std::string()});
    const int oldPosition = sourceList.selected();
    sourceList.remove(oldPosition);
    const int newPosition = oldPosition <= position ? position : position + 1;
    targetList.setKey(newPosition, moved.key);
    targetList.select(newPosition);
}

void showRowToolTip(Program& program, StatementList& list, int position) {
    if (isBrainstormList(program.frmMain, list)) {
        if (position != 0) list.setToolTip(list.row(position).text);
        return;
    }
    // Unlike the Brainstorm lists, these forget their tool tip beside the rows.
    if (position == 0) return list.setToolTip({});
    const Row& row = list.row(position);
    list.setToolTip(row.subItem + row.text);
}

}  // namespace orvanta
