#pragma once

#include <QTimer>

#include "core/session_state.h"

namespace orvanta::desktop {

/// Ticks for the program's autosave while an event loop runs.
class AutoSaveTimer : public QTimer {
public:
    /// The program must outlive the timer.
    explicit AutoSaveTimer(Program& program);
};

}  // namespace orvanta::desktop
