#pragma once

#include <QAbstractButton>
#include <QKeyEvent>
#include <functional>

namespace orvanta::desktop {

/// Calls `act` at each click of a button that no dialog stands before. Qt keeps the mouse and the
/// keyboard away from a window behind a dialog, but not the presses of assistive programs: these
/// would change a session under the question that is being asked about it.
void whenClicked(QAbstractButton& button, std::function<void()> act);

/// True if Enter was pressed that presses a button; with Ctrl it is the window's.
bool isPressByEnter(const QKeyEvent& event);

}  // namespace orvanta::desktop
