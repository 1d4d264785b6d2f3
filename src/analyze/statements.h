#pragma once

#include "core/session_state.h"

namespace orvanta {

// Weeding and completing the consolidated statements. A strength or weakness has a copy at the
// same position of two picking lists and may be mapped under any number of parents; an
// opportunity or threat has one row of the same key in its mapping list.

void addAnalyzeStatement(Program& program, StatementKind kind);
void editAnalyzeStatement(Program& program, StatementKind kind);
void removeAnalyzeStatement(Program& program, StatementKind kind);

void addAnalyzeStrength(Program& program);
void addAnalyzeWeakness(Program& program);
void addAnalyzeOpportunity(Program& program);
void addAnalyzeThreat(Program& program);
void editAnalyzeStrength(Program& program);
void editAnalyzeWeakness(Program& program);
void editAnalyzeOpportunity(Program& program);
void editAnalyzeThreat(Program& program);
void removeAnalyzeStrength(Program& program);
void removeAnalyzeWeakness(Program& program);
void removeAnalyzeOpportunity(Program& program);
void removeAnalyzeThreat(Program& program);

}  // namespace orvanta
