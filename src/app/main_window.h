#pragma once

#include "core/session_state.h"

namespace orvanta {

/// Form load: scales for the display, offers the modules whose bank files exist and brings an
/// interrupted session back. Each failing step is passed over.
void loadMainWindow(Program& program);

}  // namespace orvanta
