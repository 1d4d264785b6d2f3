#pragma once

#include "core/session_state.h"

namespace orvanta {

void addBrainstormStatement(Program& program, StatementKind kind);
void editBrainstormStatement(Program& program, StatementKind kind);
void removeBrainstormStatement(Program& program, StatementKind kind);

void addBrainstormStrength(Program& program);
void addBrainstormWeakness(Program& program);
void addBrainstormOpportunity(Program& program);
void addBrainstormThreat(Program& program);
void editBrainstormStrength(Program& program);
void editBrainstormWeakness(Program& program);
void editBrainstormOpportunity(Program& program);
void editBrainstormThreat(Program& program);
void removeBrainstormStrength(Program& program);
void removeBrainstormWeakness(Program& program);
void removeBrainstormOpportunity(Program& program);
void removeBrainstormThreat(Program& program);

}  // namespace orvanta
