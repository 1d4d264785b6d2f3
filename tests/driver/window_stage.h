#pragma once

#include <memory>

#include "stage.h"

namespace orvanta::driver {

/// The real window, acted on by events sent to its widgets. What the window system itself sends,
/// such as moves of the real mouse pointer, does not count. Nothing waits for a clock.
std::unique_ptr<Stage> makeWindowStage(int& argc, char** argv);

}  // namespace orvanta::driver
