#pragma once

#include <string_view>
#include <vector>

#include "core/session_state.h"

namespace orvanta {

/// Presses a skinned button and lets it go, as a person does without the mouse.
void clickButton(Program& program, Button button);

/// A key that works wherever the keyboard is in the main window, unless what has it needs the key
/// itself.
struct Shortcut {
    std::string_view keys;     // as "Ctrl+Return"
    const Control* control;    // what it presses: the picture of a skinned button, or Undo or Redo
    void (*choose)(Program&);  // an event of the main window
    bool goesOn = false;       // to another question or screen
};

/// All of them; each is to be chosen only while its control can be reached.
std::vector<Shortcut> shortcutsOf(const FrmMain& form);

}  // namespace orvanta
