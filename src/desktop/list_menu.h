#pragma once

#include <QWidget>

#include "core/session_state.h"

namespace orvanta::desktop {

/// Gives a list the menu of its commands, on the right mouse button and the menu key, and the
/// commands that have a key of their own their key. All must outlive the widget's use.
void giveMenu(Program& program, Control& list, QWidget& widget);

}  // namespace orvanta::desktop
