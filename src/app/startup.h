#pragma once

#include "core/session_state.h"

namespace orvanta {

/// Makes the working folders, loads and shows the main window, and brings an interrupted
/// session back. Runs once; each failing step is passed over.
void startProgram(Program& program);

/// The main window became active: takes up the remembered paths.
void activateMainWindow(Program& program);

}  // namespace orvanta
