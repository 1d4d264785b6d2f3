#pragma once

#include "core/session_state.h"

namespace orvanta {

// A mapping of a strength or weakness to an opportunity or threat is a row of the mapping list,
// below its parent's row and keyed parent "-" child. Nothing else tells of it.

/// A drag passes over a list: over a picking list it now carries what is selected there.
void dragOverList(Program& program, StatementList& list);

/// A drop on a row of lvOpportunity or lvThreat; 0 outside every row.
void mapDroppedStatement(Program& program, StatementList& mappingList, int position);

/// A drop on a picking list takes the selected mapped row of its kind back.
void unmapDroppedRow(Program& program, StatementList& pickingList);

/// Puts a row for the statement selected in sourceList under the row of targetList at the drop
/// position: strengths right below it, weaknesses below its strengths. `section`: "S" or "W".
void insertMappingRow(StatementList& sourceList, StatementList& targetList,
                      const std::string& textPrefix, int position, std::string_view section);

void removeOpportunityMappingRow(Program& program);
void removeThreatMappingRow(Program& program);

/// Tells that the rows mapped under an item have to go first.
void refuseWhileRowsAreMapped(Program& program);

/// True for the four lists from which statements are dragged.
bool isPickingList(const FrmMain& form, const StatementList& list);
/// True for lvOpportunity and lvThreat.
bool isMappingList(const FrmMain& form, const StatementList& list);

/// True if the row at a position of a mapping list is one that statements are mapped to.
bool takesMapping(const FrmMain& form, const StatementList& mappingList, int position);
/// The statement that a drop on such a row would map; null if the drag carries none.
const Row* statementToMap(const FrmMain& form, const StatementList& mappingList);
/// True if such a row has that statement already, so that a drop would only say so.
bool isMappedAlready(const StatementList& mappingList, int position, const Row& statement);
/// The mapped row that a drop on a picking list would take back; null for none.
const Row* rowToTakeBack(const FrmMain& form, const StatementList& pickingList);

}  // namespace orvanta
