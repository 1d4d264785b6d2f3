#pragma once

#include <cstdint>
#include <vector>

#include "desktop/sound/movie.h"

namespace orvanta::sound {

// The one form in which sound is played.
constexpr int playedRate = 44100;  // samples of a channel in a second
constexpr int playedChannels = 2;
constexpr std::size_t maximumSeconds = 60;

/// The channels take turns, the left one first.
using Samples = std::vector<std::int16_t>;

/// As much of a sound as can be understood, up to the maximum. Never fails.
Samples decoded(const MovieSound& sound);

/// The sound of a movie file; empty for silence.
Samples samplesOfMovie(ByteView file);

}  // namespace orvanta::sound
