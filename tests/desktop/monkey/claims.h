#pragma once

#include <string>

#include "core/session_state.h"
#include "desktop/main_window.h"

namespace orvanta::monkey {

// What holds whatever a person does. Each gives what is wrong; an empty text if nothing is.

/// The lists that go with another hold what that one holds, and each mapped row stands under the
/// row that it is mapped onto. Not told once Undo or Redo was pressed: the lists may differ then.
std::string outOfStep(const FrmMain& form);

/// The journal's records fill it from its beginning.
std::string looseRecord(const FrmMain& form);

/// The widgets show what the models hold: texts, rows, what is chosen, what can be reached, and the
/// counts in the line at the head. No dialog stands, and all is at rest.
std::string wronglyShown(const Program& program, desktop::MainWindow& window);

}  // namespace orvanta::monkey
