#include "desktop/sound/movie.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

#include "tones.h"

namespace orvanta::sound::test {

namespace {

/// The start of a whole is the part, sample by sample.
bool isStartOf(const Samples& part, const Samples& whole) {
    return part.size() <= whole.size() && std::equal(part.begin(), part.end(), whole.begin());
}

}  // namespace

TEST(Movie, KeepsToTheFirstHeadOfItsStream) {
    const Samples samples = tone(pitch, 44100, 2, seconds);
    const Bytes file = MovieWriter().stream(pcm44, samples).streamHead(pcm11).file();
    EXPECT_EQ(samplesOfMovie(file), samples);
}

TEST(Movie, PrefersItsStreamToAnEvent) {
    const Bytes file = MovieWriter()
                           .defineSound(1, pcm11, tone(900, 11025, 1, seconds))
                           .startSound(1)
                           .stream(pcm11, tone(pitch, 11025, 1, seconds))
                           .file();
    EXPECT_GT(shareOf(pitch, samplesOfMovie(file), 0), 0.8);
}

TEST(Movie, PrefersItsOwnStreamToThatOfASprite) {
    const MovieWriter sprite = MovieWriter().stream(pcm11, tone(900, 11025, 1, seconds));
    const Bytes file =
        MovieWriter().sprite(sprite).stream(pcm11, tone(pitch, 11025, 1, seconds)).file();
    EXPECT_GT(shareOf(pitch, samplesOfMovie(file), 0), 0.8);
}

TEST(Movie, PassesByAStreamThatIsOnlyAnnounced) {
    const Bytes file = MovieWriter()
                           .streamHead(pcm11)
                           .defineSound(1, pcm11, tone(pitch, 11025, 1, seconds))
                           .startSound(1)
                           .file();
    EXPECT_GT(shareOf(pitch, samplesOfMovie(file), 0), 0.8);
}

TEST(Movie, PlaysTheEventThatIsStartedAndNotOneThatIsStopped) {
    constexpr int stops = 0x20;
    const Bytes file = MovieWriter()
                           .defineSound(1, pcm11, tone(900, 11025, 1, seconds))
                           .defineSound(2, pcm11, tone(pitch, 11025, 1, seconds))
                           .startSound(1, stops)
                           .startSound(5)
                           .startSound(2)
                           .file();
    EXPECT_GT(shareOf(pitch, samplesOfMovie(file), 0), 0.8);
}

TEST(Movie, PlaysASoundThatOnlyAScriptWouldStart) {
    const Bytes file = MovieWriter().defineSound(1, pcm11, tone(pitch, 11025, 1, seconds)).file();
    EXPECT_GT(shareOf(pitch, samplesOfMovie(file), 0), 0.8);
}

TEST(Movie, EndsAtItsEndTag) {
    const Bytes file =
        MovieWriter().tag(0, {}).stream(pcm11, tone(pitch, 11025, 1, seconds)).file();
    EXPECT_EQ(samplesOfMovie(file), Samples());
}

TEST(Movie, OfAnUnknownCodingIsSilent) {
    const std::uint8_t speex = 0xB6;
    const Bytes file = MovieWriter().tag(45, {speex, speex, 0, 0}).tag(19, Bytes(300, 1)).file();
    EXPECT_EQ(samplesOfMovie(file), Samples());
}

TEST(Movie, WithoutSoundIsSilent) {
    EXPECT_EQ(samplesOfMovie(MovieWriter().tag(9, {1, 2, 3}).tag(1, {}).file()), Samples());
}

TEST(Movie, WithASpriteInASpriteIsSilent) {
    MovieWriter inside = MovieWriter().stream(pcm11, tone(pitch, 11025, 1, seconds));
    for (int depth = 0; depth < 100; ++depth) inside = MovieWriter().sprite(inside);
    EXPECT_EQ(samplesOfMovie(inside.file()), Samples());
}

TEST(Movie, ThatIsNoneIsSilent) {
    const std::string page = "<html><body>No movie was found here.</body></html>";
    EXPECT_EQ(samplesOfMovie(Bytes()), Samples());
    EXPECT_EQ(samplesOfMovie(Bytes(page.begin(), page.end())), Samples());
    Bytes lzma = MovieWriter().stream(pcm11, tone(pitch, 11025, 1, seconds)).file();
    lzma.front() = 'Z';
    EXPECT_EQ(samplesOfMovie(lzma), Samples());
}

TEST(Movie, ThatUnpacksToMoreThanTheLimitIsSilent) {
    MovieWriter movie;
    movie.stream(pcm11, tone(pitch, 11025, 1, seconds));
    const Bytes within = movie.file(Packing::Zlib);
    const Bytes beyond = movie.tag(777, Bytes(maximumMovieSize)).file(Packing::Zlib);
    EXPECT_LT(beyond.size(), 1U << 20);
    EXPECT_NE(samplesOfMovie(within), Samples());
    EXPECT_EQ(samplesOfMovie(beyond), Samples());
}

TEST(Movie, WhoseSoundClaimsMoreThanTheFileHoldsIsHeardAsFarAsItGoes) {
    const Samples samples = tone(pitch, 44100, 2, seconds);
    Bytes file = MovieWriter().defineSound(1, pcm44, samples).file();
    constexpr std::size_t lengthOfTag = 8 + 13 + 2, count = lengthOfTag + 4 + 3;
    for (int i = 0; i < 4; ++i) file[lengthOfTag + i] = file[count + i] = 0x7F;
    const Samples played = samplesOfMovie(file);
    EXPECT_TRUE(isStartOf(samples, played));
    EXPECT_LE(played.size(), samples.size() + 2);
}

TEST(Movie, OfVeryManySoundsIsHeard) {
    Bytes tags;
    const Bytes define = joined({littleEndian((14 << 6) | 8, 2), {5, 0, 0x30, 1, 0, 0, 0, 0x80}});
    const Bytes start = joined({littleEndian((15 << 6) | 3, 2), {9, 0, 0}});
    for (int i = 0; i < 300000; ++i) {
        const Bytes& tag = i % 2 == 0 ? define : start;
        tags.insert(tags.end(), tag.begin(), tag.end());
    }
    const Bytes last = MovieWriter().stream(pcm44, tone(pitch, 44100, 2, seconds)).file();
    tags.insert(tags.end(), last.begin() + 8 + 13, last.end());
    EXPECT_NEAR(lengthOf(samplesOfMovie(movieFile(tags, Packing::None))), seconds, 0.001);
}

}  // namespace orvanta::sound::test
