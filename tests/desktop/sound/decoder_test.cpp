#include "desktop/sound/decoder.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <tuple>

#include "tones.h"

namespace orvanta::sound::test {

namespace {

std::string nameOf(Coding coding) {
    switch (coding) {
        case Coding::Pcm8:
            return "Pcm8";
        case Coding::Pcm16:
            return "Pcm16";
        case Coding::Adpcm:
            return "Adpcm";
        case Coding::Mp3:
            return "Mp3";
        case Coding::Nellymoser:
            return "Nellymoser";
    }
    return "";
}

std::string nameOf(const Form& form) {
    const std::string bits =
        form.coding == Coding::Adpcm ? std::to_string(form.adpcmBits) + "Bits" : "";
    return nameOf(form.coding) + "At" + std::to_string(form.rate) +
           (form.channels == 2 ? "Stereo" : "Mono") + bits;
}

enum class Manner { Stream, Event };
enum class Place { Movie, Sprite };

using Kind = std::tuple<Coding, Manner, Packing, Place>;

std::string nameOf(const Kind& kind) {
    const auto [coding, manner, packing, place] = kind;
    return nameOf(coding) + (manner == Manner::Stream ? "Stream" : "Event") +
           (packing == Packing::Zlib ? "Packed" : "Plain") +
           (place == Place::Sprite ? "InASprite" : "");
}

Bytes movieOf(const Kind& kind) {
    const auto [coding, manner, packing, place] = kind;
    const Form form{coding, 22050, 1};
    const Samples samples = tone(pitch, form.rate, form.channels, seconds);
    MovieWriter movie, timeline;
    if (manner == Manner::Event) movie.defineSound(3, form, samples);
    MovieWriter& sounding = place == Place::Sprite ? timeline : movie;
    if (manner == Manner::Event)
        sounding.startSound(3);
    else
        sounding.stream(form, samples);
    if (place == Place::Sprite) movie.sprite(timeline);
    return movie.file(packing);
}

}  // namespace

class MovieOfEachKind : public testing::TestWithParam<Kind> {};

TEST_P(MovieOfEachKind, IsHeardInItsLength) {
    // A stream doesn't tell how much of its last piece is sound.
    const double atMostLonger = std::get<Manner>(GetParam()) == Manner::Stream ? 0.15 : 0.001;
    const double length = lengthOf(samplesOfMovie(movieOf(GetParam())));
    EXPECT_GE(length, seconds - 0.001);
    EXPECT_LE(length, seconds + atMostLonger);
}

TEST_P(MovieOfEachKind, IsHeardAtItsPitchOnBothSides) {
    const Samples played = samplesOfMovie(movieOf(GetParam()));
    EXPECT_GT(shareOf(pitch, played, 0), 0.8);
    EXPECT_GT(shareOf(pitch, played, 1), 0.8);
}

INSTANTIATE_TEST_SUITE_P(All, MovieOfEachKind,
                         testing::Combine(testing::Values(Coding::Pcm8, Coding::Pcm16,
                                                          Coding::Adpcm, Coding::Mp3,
                                                          Coding::Nellymoser),
                                          testing::Values(Manner::Stream, Manner::Event),
                                          testing::Values(Packing::None, Packing::Zlib),
                                          testing::Values(Place::Movie, Place::Sprite)),
                         [](const auto& of) { return nameOf(of.param); });

class MovieOfEachForm : public testing::TestWithParam<Form> {};

TEST_P(MovieOfEachForm, KeepsLeftAndRightApart) {
    const Form form = GetParam();
    const Samples samples = tone(pitch, form.rate, form.channels, seconds);
    const Samples played =
        samplesOfMovie(MovieWriter().defineSound(1, form, samples).startSound(1).file());
    EXPECT_NEAR(lengthOf(played), seconds, 0.001);
    EXPECT_GT(shareOf(pitch, played, 0), 0.8);
    EXPECT_GT(shareOf(form.channels == 2 ? fifth : pitch, played, 1), 0.8);
}

INSTANTIATE_TEST_SUITE_P(
    All, MovieOfEachForm,
    testing::Values(Form{Coding::Pcm8, 5512, 2}, Form{Coding::Pcm8, 11025, 2},
                    Form{Coding::Pcm16, 5512, 1}, Form{Coding::Pcm16, 44100, 2},
                    Form{Coding::Mp3, 11025, 1}, Form{Coding::Mp3, 22050, 2},
                    Form{Coding::Mp3, 44100, 2}, Form{Coding::Adpcm, 44100, 2, 2},
                    Form{Coding::Adpcm, 44100, 1, 3}, Form{Coding::Adpcm, 5512, 2, 4},
                    Form{Coding::Adpcm, 11025, 2, 5}, Form{Coding::Nellymoser, 8000, 1},
                    Form{Coding::Nellymoser, 16000, 1}, Form{Coding::Nellymoser, 11025, 1}),
    [](const auto& of) { return nameOf(of.param); });

TEST(Movie, OfThePlayedFormIsHeardSampleBySample) {
    const Samples samples = tone(pitch, 44100, 2, seconds);
    EXPECT_EQ(samplesOfMovie(MovieWriter().stream(pcm44, samples).file(Packing::Zlib)), samples);
}

TEST(Movie, OfOneChannelIsFullyHeardOnBothSides) {
    const Samples samples = tone(pitch, 44100, 1, seconds);
    Samples both;
    for (const std::int16_t sample : samples) both.insert(both.end(), 2, sample);
    EXPECT_EQ(samplesOfMovie(MovieWriter().stream({Coding::Pcm16, 44100, 1}, samples).file()),
              both);
}

TEST(Movie, SkipsTheLeadInOfTheCoding) {
    const Form form{Coding::Mp3, 44100, 1};
    Samples click(44100);
    click[22050] = 30000;
    for (const Bytes& file : {MovieWriter().defineSound(1, form, click).startSound(1).file(),
                              MovieWriter().stream(form, click).file()}) {
        const Samples played = samplesOfMovie(file);
        const auto loudest = std::ranges::max_element(played) - played.begin();
        EXPECT_NEAR(static_cast<double>(loudest) / playedChannels, 22050, 2);
    }
}

TEST(Movie, WhoseNellymoserClaimsTwoChannelsIsHeardAsTheOneThatItIs) {
    const Form form{Coding::Nellymoser, 16000, 1};
    MovieWriter movie;
    movie.streamHead({Coding::Nellymoser, 16000, 2});
    for (const Bytes& piece : codedInPieces(tone(pitch, 16000, 1, seconds), form))
        movie.streamBlock(form, piece);
    const Samples played = samplesOfMovie(movie.file());
    EXPECT_NEAR(lengthOf(played), seconds, 0.15);
    EXPECT_GT(shareOf(pitch, played, 0), 0.8);
}

TEST(Movie, IsCutAtAMinute) {
    const Form form{Coding::Pcm8, 5512, 1};
    const Bytes event =
        MovieWriter().defineSound(1, form, tone(pitch, 5512, 1, 61)).startSound(1).file();
    const Bytes stream = MovieWriter().stream(form, tone(pitch, 5512, 1, 61)).file();
    EXPECT_EQ(lengthOf(samplesOfMovie(event)), 60);
    EXPECT_EQ(lengthOf(samplesOfMovie(stream)), 60);
}

}  // namespace orvanta::sound::test
