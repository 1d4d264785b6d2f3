#pragma once

#include "core/session_state.h"

namespace orvanta {

/// The mouse went down on a button of the main window: it shows its pressed art.
void pressButton(Program& program, Button button);

/// The mouse was let go. The art returns to normal first, so that the button looks released
/// while its action runs.
void releaseButton(Program& program, Button button);

}  // namespace orvanta
