#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <set>
#include <string>

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

std::set<std::string> wantedClips() {
    std::set<std::string> names;
    for (const ClipText& clip : clipTexts(FileDisk(), ORVANTA_DATA)) names.insert(clip.clip);
    return names;
}

Samples samplesOfClip(const std::string& name) {
    return samplesOfMovie(bytesOf(fs::path(ORVANTA_SOUNDS) / (name + ".swf")));
}

double secondsOf(const Samples& samples) {
    return static_cast<double>(samples.size()) / playedChannels / playedRate;
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
        EXPECT_NEAR(secondsOf(samplesOfClip(name)), secondsOfWave(name), 0.15) << name;
}

TEST(MadeClips, AreLoudAndNotOverdriven) {
    for (const std::string& name : wantedClips()) {
        const Samples samples = samplesOfClip(name);
        const auto louder = [](std::int16_t a, std::int16_t b) {
            return std::abs(a) < std::abs(b);
        };
        const auto peak = std::max_element(samples.begin(), samples.end(), louder);
        ASSERT_NE(peak, samples.end()) << name;
        EXPECT_GT(std::abs(*peak), 15000) << name;
        EXPECT_LT(std::abs(*peak), 32767) << name;
    }
}

}  // namespace orvanta::sound::test
