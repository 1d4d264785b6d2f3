#pragma once

#include <array>
#include <string>
#include <string_view>

#include "core/session_state.h"

namespace orvanta {

/// The clip of a question of a module, numbered from 1.
std::string clipName(std::string_view code, StatementKind kind, int number);

/// The clips of the six Analyze screens, in the order of their headings.
inline constexpr std::array<std::string_view, 6> analyzeClips{
    "analyze_S", "analyze_W", "analyze_O", "analyze_T", "analyze_OM", "analyze_TM"};

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
