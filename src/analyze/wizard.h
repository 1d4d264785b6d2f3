#pragma once

#include "core/session_state.h"

namespace orvanta {

void analyzeNext(Program& program);
void analyzeBack(Program& program);
void analyzeQuit(Program& program);

}  // namespace orvanta
