#pragma once

#include "core/session_state.h"

namespace orvanta {

/// Makes the working folders, loads and shows the main window, and brings an interrupted
/// session back. Runs once; each failing step is passed over.
void startProgram(Program& program);

/// The main window became active: takes up the remembered paths.
void activateMainWindow(Program& program);

/// The Quit button: ends the program if both save prompts let it go on.
void quitProgram(Program& program);

/// The main window is being closed. True if it may close; the program then ends.
bool closeMainWindow(Program& program);

}  // namespace orvanta
