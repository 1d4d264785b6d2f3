#pragma once

#include <QKeySequence>
#include <string_view>

class QWidget;

namespace orvanta {
struct Program;
}

namespace orvanta::desktop {

/// Gives each list of the main window in which something can be done to a row a menu, at a right
/// click, the menu key or Shift+F10; and its commands their keys.
void offerListCommands(Program& program, QWidget& window);

/// The keys of a command or shortcut of the logic, told as "Ctrl+M".
QKeySequence keysFrom(std::string_view keys);

}  // namespace orvanta::desktop
