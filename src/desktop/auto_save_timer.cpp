#include "desktop/auto_save_timer.h"

#include "app/window_events.h"
#include "sessionfiles/saving.h"

namespace orvanta::desktop {

AutoSaveTimer::AutoSaveTimer(Program& program) {
    connect(this, &QTimer::timeout, this, [&program] { autoSaveTicked(program); });
    start(autoSaveInterval);
}

}  // namespace orvanta::desktop
