#pragma once

class QWidget;

namespace orvanta {
struct Program;
}

namespace orvanta::desktop {

/// Gives each list of the main window in which something can be done to a row a menu, at a right
/// click, the menu key or Shift+F10; and Delete as the key of its Remove.
void offerListCommands(Program& program, QWidget& window);

}  // namespace orvanta::desktop
