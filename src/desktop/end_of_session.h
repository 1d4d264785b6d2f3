#pragma once

#include <QSessionManager>

#include "core/session_state.h"

namespace orvanta::desktop {

/// The session that the person has with the system is about to end, and the program with it. On
/// POSIX the program's session is copied. On Windows the person is asked as when the window closes
/// and may call the end off; the copy comes with the end, from SystemSignals. Where the end is
/// called off, what was given up and is on screen still is unsaved again.
void prepareForEndOfSession(Program& program, QSessionManager& manager);

}  // namespace orvanta::desktop
