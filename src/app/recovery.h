#pragma once

#include "core/session_state.h"

namespace orvanta {

/// Brings back on screen the session that a temporary file holds, which is there only if the
/// program ended badly; the brainstorm session comes first. Each failing step is passed over.
void recoverSession(Program& program);

}  // namespace orvanta
