#pragma once

#include "core/session_state.h"

namespace orvanta {

void brainstormNext(Program& program);
void brainstormBack(Program& program);
void brainstormQuit(Program& program);

}  // namespace orvanta
