#pragma once

#include "core/session_state.h"
#include "json.h"

namespace orvanta::driver {

/// All that the protocol tells of the program.
Json stateOf(const Program& program);

}  // namespace orvanta::driver
