#include "core/row_marks.h"

#include <algorithm>

#include "core/kind_controls.h"

namespace orvanta {

namespace {

bool isBrainstormList(const FrmMain& form, const StatementList& list) {
    return std::ranges::any_of(statementKinds, [&](StatementKind kind) {
        return &listOf(form, Session::Brainstorm, kind) == &list;
    });
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

void showRowToolTip(Program& program, StatementList& list, int position) {
    if (isBrainstormList(program.frmMain, list)) {
        if (position != 0) list.setToolTip(list.row(position).text);
        return;
    }
    // Unlike the Brainstorm lists, these forget their tool tip outside the rows.
    if (position == 0) return list.setToolTip({});
    const Row& row = list.row(position);
    list.setToolTip(row.subItem + row.text);
}

}  // namespace orvanta
