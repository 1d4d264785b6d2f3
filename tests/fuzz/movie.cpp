// A movie of any bytes is unpacked within its limit, and its sound lies inside what was unpacked.
// What is played comes in pairs of samples, for a minute at most, and is the same each time. The
// tags of a movie, put into a new file, are its tags again.

#include "desktop/sound/decoder.h"
#include "target.h"

namespace orvanta::fuzz {

namespace {

sound::Bytes movieOf(const sound::Bytes& tags) {
    // A signature, a stage without a size, and the pictures.
    sound::Bytes file{'F', 'W', 'S', 9, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    file.insert(file.end(), tags.begin(), tags.end());
    return file;
}

void requireInside(const sound::MovieSound& sound, const sound::Bytes& tags) {
    require(sound.rate > 0 && (sound.channels == 1 || sound.channels == 2),
            "a sound has one of the known forms");
    const std::uint8_t* last = tags.data();
    for (const sound::ByteView piece : sound.pieces) {
        require(piece.data() >= last && piece.data() + piece.size() <= tags.data() + tags.size(),
                "the pieces lie in the movie, one behind the other");
        last = piece.data() + piece.size();
    }
}

}  // namespace

void tryInput(std::string_view bytes) {
    const sound::ByteView file(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
    const sound::Bytes tags = sound::movieTags(file);
    require(tags.size() <= sound::maximumMovieSize, "a movie is unpacked within its limit");
    if (!tags.empty())
        require(sound::movieTags(movieOf(tags)) == tags, "the tags are the tags of a new file");
    if (const auto sound = sound::soundOfMovie(tags)) requireInside(*sound, tags);
    const sound::Samples samples = sound::samplesOfMovie(file);
    require(samples.size() % sound::playedChannels == 0, "samples come in pairs");
    require(samples.size() <=
                sound::maximumSeconds * std::size_t{sound::playedRate} * sound::playedChannels,
            "nothing plays for more than a minute");
    require(sound::samplesOfMovie(file) == samples, "a movie sounds the same each time");
}

}  // namespace orvanta::fuzz
