#pragma once

#include <functional>

#include "desktop/sound/speaker.h"

namespace orvanta::sound {

/// What it takes to be heard: a decoder and the system's sound. Both need many libraries, which
/// load longer than the window takes to come up, so they lie in a module of their own.
struct SoundModule {
    /// The sound of a movie file; empty for silence.
    std::function<Samples(ByteView movie)> samplesOf = [](ByteView) { return Samples(); };
    /// Not called before there is a sound to play.
    SpeakerMaker makeSpeaker;
};

using SoundModuleLoader = std::function<SoundModule()>;

/// The module that lies beside the program file; a silent one where that can't be loaded.
SoundModule loadSoundModule();

// The name of the module's file, without what the platform adds, and that of its entry.
constexpr const char* soundModuleName = "orvanta-sound";
constexpr const char* soundModuleEntry = "orvantaSoundModule";
using SoundModuleEntry = void (*)(SoundModule& filled);

}  // namespace orvanta::sound
