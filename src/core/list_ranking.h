#pragma once

#include "core/frm_main.h"

namespace orvanta {

/// True for the lists whose rows a person ranks by dragging: the opportunities and the threats
/// of both sessions.
bool isRanked(const FrmMain& form, const StatementList& list);

/// A drop on a row of a ranked list, or outside every row (0).
void rankDroppedRow(const FrmMain& form, StatementList& list, int position);

/// Moves the selected row of sourceList directly beneath the row at a position of targetList;
/// both are the same list wherever rows are ranked. Does nothing outside the rows or with
/// nothing selected.
void moveListRow(StatementList& sourceList, StatementList& targetList, int position,
                 bool copySubItem);

}  // namespace orvanta
