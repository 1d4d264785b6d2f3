#pragma once

#include <cstdint>

#include "core/session_state.h"

namespace orvanta {

inline constexpr Colour mappedStrengthColour{0, 120, 60};
inline constexpr Colour mappedWeaknessColour{200, 0, 0};
inline constexpr int mappedRowIndent = 2;

/// Indents a row; a row that is not there is passed over.
void setRowIndent(StatementList& list, int index, std::int16_t indent);

/// Gives a mapped row its indent and the colour of its kind.
void markMappedRow(StatementList& list, int position, StatementKind kind);

/// The mouse is over a row of a list, or outside every row (0): the list's tool tip tells the
/// whole statement.
void showRowToolTip(Program& program, StatementList& list, int position);

}  // namespace orvanta
