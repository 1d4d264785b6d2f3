#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace orvanta::sound {

using Bytes = std::vector<std::uint8_t>;
using ByteView = std::span<const std::uint8_t>;

/// What a movie is after unpacking at most. A larger one counts as broken.
constexpr std::size_t maximumMovieSize = 32 << 20;

enum class Coding { Pcm8, Pcm16, Adpcm, Mp3, Nellymoser };

/// A sound as a movie holds it. The pieces point into the tags of the movie, which must outlive
/// it and follow each other in time. Each is coded on its own, but for MP3.
struct MovieSound {
    Coding coding;
    int rate;                              // samples of a channel in a second
    int channels;                          // 1 or 2
    std::uint32_t skipped = 0;             // samples of the decoder's start that are not heard
    std::optional<std::uint32_t> samples;  // heard at most, where the movie tells
    std::vector<ByteView> pieces;
};

/// The tags of a movie (.swf), unpacked. Empty for what is no movie or can't be unpacked; of a
/// file that was cut off, what is there.
Bytes movieTags(ByteView file);

/// The sound of a movie: its stream, else the stream of its first sprite that has one, else the
/// event sound that is started first. None where there is no sound of a known coding.
std::optional<MovieSound> soundOfMovie(ByteView tags);

}  // namespace orvanta::sound
