#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <span>
#include <sstream>
#include <string>
#include <vector>

#include "desktop/sound/decoder.h"
#include "questions/clip_texts.h"
#include "view/file_disk.h"

// The clips that the build made of the supplied question files.

namespace orvanta::sound::test {

namespace {

namespace fs = std::filesystem;

Bytes bytesOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::vector<ClipText> texts() { return clipTexts(FileDisk(), ORVANTA_DATA); }

std::set<std::string> wantedClips() {
    std::set<std::string> names;
    for (const ClipText& clip : texts()) names.insert(clip.clip);
    return names;
}

Samples samplesOfClip(const std::string& name) {
    return samplesOfMovie(bytesOf(fs::path(ORVANTA_SOUNDS) / (name + ".swf")));
}

double secondsOf(std::size_t samples) {
    return static_cast<double>(samples) / playedChannels / playedRate;
}

bool isLoud(std::int16_t sample) { return std::abs(sample) > 200; }

/// From the first sound to the last.
std::span<const std::int16_t> speechIn(const Samples& samples) {
    const auto first = std::ranges::find_if(samples, isLoud);
    const auto last = std::find_if(samples.rbegin(), samples.rend(), isLoud).base();
    return {first, std::max(first, last)};
}

double wordsAMinute(const ClipText& clip) {
    std::istringstream text(clip.text);
    const auto words = std::distance(std::istream_iterator<std::string>(text), {});
    constexpr double secondsOfAMinute = 60;
    return static_cast<double>(words) * secondsOfAMinute /
           secondsOf(speechIn(samplesOfClip(clip.clip)).size());
}

/// Silences in which a speaker breathes.
std::ptrdiff_t breathsIn(std::span<const std::int16_t> speech) {
    constexpr double breath = 0.4;  // seconds
    std::ptrdiff_t breaths = 0;
    for (auto from = speech.begin(); from != speech.end();) {
        const auto to = std::find_if(from + 1, speech.end(), isLoud);
        if (secondsOf(static_cast<std::size_t>(to - from)) > breath) ++breaths;
        from = to;
    }
    return breaths;
}

/// The waves are of one channel, 16 bits and 22,050 samples a second, behind a head of 44 bytes.
double secondsOfWave(const std::string& name) {
    const auto size = fs::file_size(fs::path(ORVANTA_WAVES) / (name + ".wav"));
    return static_cast<double>(size - 44) / 2 / 22050;
}

}  // namespace

TEST(MadeClips, AreThereForEachTextAndForNothingElse) {
    std::set<std::string> names;
    for (const fs::directory_entry& file : fs::directory_iterator(ORVANTA_SOUNDS))
        names.insert(file.path().stem().string());
    EXPECT_EQ(names, wantedClips());
}

TEST(MadeClips, AreAsLongAsWhatWasSpoken) {
    for (const std::string& name : wantedClips())
        EXPECT_NEAR(secondsOf(samplesOfClip(name).size()), secondsOfWave(name), 0.15) << name;
}

TEST(MadeClips, AreSpokenAtThePaceOfAnEasyTalk) {
    std::vector<double> paces;
    for (const ClipText& clip : texts()) paces.push_back(wordsAMinute(clip));
    ASSERT_FALSE(paces.empty());
    std::ranges::sort(paces);
    EXPECT_GE(paces[paces.size() / 2], 150);
    EXPECT_LE(paces[paces.size() / 2], 160);
    // What has many short words.
    EXPECT_LE(paces.back(), 220);
}

TEST(MadeClips, TakeABreathBetweenSentences) {
    int sentenceEnds = 0;
    for (const ClipText& clip : texts()) {
        const auto ends = std::ranges::count(clip.text.substr(0, clip.text.size() - 1), '.');
        if (ends == 0) continue;
        EXPECT_EQ(breathsIn(speechIn(samplesOfClip(clip.clip))), ends) << clip.clip;
        sentenceEnds += static_cast<int>(ends);
    }
    EXPECT_GT(sentenceEnds, 0);
}

}  // namespace orvanta::sound::test
