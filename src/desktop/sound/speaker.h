#pragma once

#include <functional>
#include <memory>

#include "desktop/sound/decoder.h"

namespace orvanta::sound {

/// Sound that people hear. It is made, used and deleted on one thread, and a call may take as
/// long as the system's sound takes to answer.
class Speaker {
public:
    virtual ~Speaker() = default;
    /// Plays these samples, which are not empty, in place of whatever plays. It doesn't wait for
    /// their end.
    virtual void start(Samples samples) = 0;
    virtual void stop() = 0;
};

using SpeakerMaker = std::function<std::unique_ptr<Speaker>()>;

/// The system's sound; silence where there is none.
std::unique_ptr<Speaker> makeSystemSpeaker();

}  // namespace orvanta::sound
