#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "movie_writer.h"

// Damaged movies come from failing disks and broken downloads. Whatever they hold, the decoder
// gives sound of the played form within its limits; the sanitizers look at the rest.

namespace orvanta::sound::test {

namespace {

constexpr std::size_t mostSamples = maximumSeconds * playedRate * playedChannels;

struct Seed {
    const char* name;
    Bytes file;
};

/// Short, so that each byte can be tried.
std::vector<Seed> seeds() {
    std::vector<Seed> all;
    const auto add = [&](const char* name, const Form& form) {
        const Samples samples = tone(440, form.rate, form.channels, 0.06);
        const MovieWriter stream = MovieWriter().stream(form, samples);
        const MovieWriter event = MovieWriter().defineSound(1, form, samples).startSound(1);
        all.push_back({name, stream.file()});
        all.push_back({name, stream.file(Packing::Zlib)});
        all.push_back({name, event.file()});
        all.push_back({name, event.file(Packing::Zlib)});
        all.push_back({name, MovieWriter().sprite(stream).file()});
    };
    add("PCM of 8 bits", {Coding::Pcm8, 5512, 1});
    add("PCM of 16 bits", {Coding::Pcm16, 5512, 2});
    add("ADPCM", {Coding::Adpcm, 11025, 2, 3});
    add("MP3", {Coding::Mp3, 22050, 1});
    add("Nellymoser", {Coding::Nellymoser, 11025, 1});
    return all;
}

class Damage {
public:
    explicit Damage(unsigned seed) : m_random(seed) {}

    Bytes doneTo(Bytes file, const Bytes& other) {
        for (std::size_t i = 0, times = 1 + below(4); i < times && !file.empty(); ++i)
            doOnce(file, other);
        return file;
    }

private:
    void doOnce(Bytes& file, const Bytes& other) {
        const std::size_t place = below(file.size());
        switch (below(6)) {
            case 0:
                file[place] ^= static_cast<std::uint8_t>(1 << below(8));
                break;
            case 1:
                file[place] = static_cast<std::uint8_t>(below(256));
                break;
            case 2:  // a length, a number or the code of a tag
                for (std::size_t k = place; k < std::min(place + 4, file.size()); ++k)
                    file[k] = below(2) == 0 ? 0xFF : 0x7F;
                break;
            case 3:
                file.resize(place);
                break;
            case 4: {  // what stands there stands there twice
                const Bytes again(file.begin() + at(place), file.end());
                file.insert(file.end(), again.begin(), again.end());
                break;
            }
            default:  // the rest is of another movie
                file.resize(place);
                file.insert(file.end(), other.begin() + at(std::min(place, other.size())),
                            other.end());
        }
    }

    static std::ptrdiff_t at(std::size_t place) { return static_cast<std::ptrdiff_t>(place); }
    std::size_t below(std::size_t end) { return m_random() % end; }

    std::mt19937 m_random;
};

}  // namespace

TEST(DamagedMovie, CutOffAnywhereGivesNoMoreThanTheWhole) {
    for (const Seed& seed : seeds()) {
        SCOPED_TRACE(seed.name);
        // What ends amid a piece may give the silence that the coding puts behind.
        const std::size_t whole = samplesOfMovie(seed.file).size() + playedRate / 10;
        for (std::size_t size = 0; size < seed.file.size(); ++size)
            ASSERT_LE(samplesOfMovie(ByteView(seed.file).first(size)).size(), whole) << size;
    }
}

TEST(DamagedMovie, CutOffAnywhereIsHeardUpToThere) {
    const Form form{Coding::Pcm16, 44100, 2};
    const Samples samples = tone(440, form.rate, form.channels, 0.02);
    const Bytes file = MovieWriter().stream(form, samples).file();
    constexpr std::size_t aheadOfSound = 8 + 13 + 6 + 6, bytesOfAMoment = 4;
    for (std::size_t size = aheadOfSound; size + 4 < file.size(); ++size) {
        Samples heard = samples;
        heard.resize((size - aheadOfSound) / bytesOfAMoment * playedChannels);
        ASSERT_EQ(samplesOfMovie(ByteView(file).first(size)), heard) << size;
    }
}

TEST(DamagedMovie, OfTwoThousandGivesNoMoreThanTheLimit) {
    const std::vector<Seed> all = seeds();
    constexpr int mutants = 2000;
    for (unsigned i = 0; i < mutants; ++i) {
        const Seed& seed = all[i % all.size()];
        const Bytes& other = all[(i / all.size()) % all.size()].file;
        const Samples played = samplesOfMovie(Damage(i).doneTo(seed.file, other));
        ASSERT_LE(played.size(), mostSamples) << seed.name << ", mutant " << i;
        ASSERT_EQ(played.size() % playedChannels, 0U) << seed.name << ", mutant " << i;
    }
}

}  // namespace orvanta::sound::test
