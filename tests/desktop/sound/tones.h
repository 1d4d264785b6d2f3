#pragma once

#include "desktop/sound/decoder.h"
#include "movie_writer.h"

namespace orvanta::sound::test {

// What the movies of the tests sound of, and in which forms.

inline constexpr double seconds = 0.7;
inline constexpr double pitch = 440, fifth = 660;
inline constexpr Form pcm44{Coding::Pcm16, 44100, 2};
inline constexpr Form pcm11{Coding::Pcm16, 11025, 1};

/// In seconds.
inline double lengthOf(const Samples& played) {
    return static_cast<double>(played.size()) / playedChannels / playedRate;
}

}  // namespace orvanta::sound::test
