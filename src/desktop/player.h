#pragma once

#include <memory>

#include "view/platform.h"

namespace orvanta::desktop {

class DesktopPlayer : public Player {
public:
    /// Ends the sound for good and waits for that a moment at most. False if the system's sound
    /// doesn't answer: what is left of it would then hold up an orderly end of the program.
    virtual bool end() = 0;
};

/// The voice; silent where the sound's module is not there.
std::unique_ptr<DesktopPlayer> makePlayer();

}  // namespace orvanta::desktop
