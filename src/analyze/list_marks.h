#pragma once

#include "core/session_state.h"

namespace orvanta {

inline constexpr Colour mappedStrengthColour{0, 120, 60};
inline constexpr Colour mappedWeaknessColour{200, 0, 0};
inline constexpr int mappedRowIndent = 2;

/// Indents a row; a row that is not there is passed over.
void setRowIndent(StatementList& list, int index, std::int16_t indent);

/// Gives a mapped row its indent and the colour of its kind.
void markMappedRow(StatementList& list, int position, StatementKind kind);

/// Moves the selected row of sourceList directly beneath the row at a position of targetList;
/// both are the same list wherever rows are ranked. Does nothing beside the rows or with
/// nothing selected.
void moveListRow(StatementList& sourceList, StatementList& targetList, int position,
                 bool copySubItem);

/// The mouse is over a row of a list, or beside all rows (0): the list's tool tip tells the
/// whole statement.
void showRowToolTip(Program& program, StatementList& list, int position);

}  // namespace orvanta
