#pragma once

#include "core/session_state.h"

namespace orvanta {

// Each asks first about unsaved changes and ends where the person does not want to go on.

void openBrainstormModule(Program& program);
void openAnalyzeModule(Program& program);

/// A saved session in place of the one on screen. Where no file is chosen or it can't be read,
/// the changes that were unsaved before are so again.
void openBrainstormFile(Program& program);
void openAnalyzeFile(Program& program);

}  // namespace orvanta
