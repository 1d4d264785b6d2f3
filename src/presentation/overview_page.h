#pragma once

#include "core/session_state.h"

namespace orvanta {

/// Shows the overview presentation in the browser. The narration goes on.
void openOverviewPage(Program& program);

}  // namespace orvanta
