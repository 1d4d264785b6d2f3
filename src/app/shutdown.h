#pragma once

#include "core/session_state.h"

namespace orvanta {

/// The Quit button: ends the program if both save prompts let it go on.
void quitProgram(Program& program);

/// The main window is being closed. True if it may close; the program then ends.
bool closeMainWindow(Program& program);

}  // namespace orvanta
