#pragma once

#include <string>

#include "core/session_state.h"
#include "questions/clip_names.h"

namespace orvanta {

std::string narrationPath(const Program& program, const std::string& clipName);

/// Plays a clip in place of whatever plays.
void playNarration(Program& program, const std::string& path);

/// Replaces whatever plays by silence.
void stopNarration(Program& program);

/// Plays a clip unless the sound is off or the clip is missing.
void narrate(Program& program, const std::string& clipName);

/// The sound switch was clicked into this state.
void clickMute(Program& program, bool on);

}  // namespace orvanta
