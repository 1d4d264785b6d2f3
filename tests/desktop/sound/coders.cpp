#include "coders.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <complex>
#include <numbers>
#include <stdexcept>

#include "desktop/sound/codec_handles.h"

namespace orvanta::sound::test {

namespace {

constexpr int picturesPerSecond = 12;

/// The samples of one channel.
Samples channelOf(const Samples& samples, int channels, int channel) {
    Samples own;
    for (auto i = static_cast<std::size_t>(channel); i < samples.size();
         i += static_cast<std::size_t>(channels))
        own.push_back(samples[i]);
    return own;
}

Bytes pcm(const Samples& samples, Coding coding) {
    Bytes bytes;
    for (const std::int16_t sample : samples) {
        const int high = (sample >> 8) & 0xFF;
        if (coding == Coding::Pcm16) bytes.push_back(static_cast<std::uint8_t>(sample & 0xFF));
        bytes.push_back(static_cast<std::uint8_t>(coding == Coding::Pcm8 ? high ^ 0x80 : high));
    }
    return bytes;
}

class BitWriter {
public:
    void add(int value, int bits) {
        for (int bit = bits - 1; bit >= 0; --bit) {
            if (m_used == 0) m_bytes.push_back(0);
            if ((value >> bit) & 1) m_bytes.back() |= static_cast<std::uint8_t>(0x80 >> m_used);
            m_used = (m_used + 1) % 8;
        }
    }
    const Bytes& bytes() const { return m_bytes; }

private:
    Bytes m_bytes;
    int m_used = 0;  // bits of the last byte
};

constexpr std::array adpcmSteps{
    7,     8,     9,     10,    11,    12,    13,    14,    16,    17,    19,   21,    23,
    25,    28,    31,    34,    37,    41,    45,    50,    55,    60,    66,   73,    80,
    88,    97,    107,   118,   130,   143,   157,   173,   190,   209,   230,  253,   279,
    307,   337,   371,   408,   449,   494,   544,   598,   658,   724,   796,  876,   963,
    1060,  1166,  1282,  1411,  1552,  1707,  1878,  2066,  2272,  2499,  2749, 3024,  3327,
    3660,  4026,  4428,  4871,  5358,  5894,  6484,  7132,  7845,  8630,  9493, 10442, 11487,
    12635, 13899, 15289, 16818, 18500, 20350, 22385, 24623, 27086, 29794, 32767};

/// One channel of ADPCM, on both sides of the line.
class AdpcmChannel {
public:
    explicit AdpcmChannel(int bits) : m_bits(bits) {}

    void start(std::int16_t sample, BitWriter& out) {
        m_value = sample;
        m_index = std::min(m_index, 63);  // six bits hold no more
        out.add(sample, 16);
        out.add(m_index, 6);
    }

    void add(std::int16_t sample, BitWriter& out) {
        const int top = 1 << (m_bits - 2);
        int step = adpcmSteps[static_cast<std::size_t>(m_index)];
        int distance = std::abs(sample - m_value);
        int magnitude = 0, change = 0;
        for (int bit = top; bit > 0; bit >>= 1, step >>= 1) {
            if (distance < step) continue;
            magnitude |= bit;
            change += step;
            distance -= step;
        }
        change += step;
        const bool down = sample < m_value;
        out.add(magnitude | (down ? top << 1 : 0), m_bits);
        m_value = std::clamp(m_value + (down ? -change : change), -32768, 32767);
        m_index = std::clamp(m_index + indexChange(magnitude), 0, 88);
    }

private:
    int indexChange(int magnitude) const {
        static constexpr std::array<std::array<int, 16>, 4> changes{{
            {-1, 2},
            {-1, -1, 2, 4},
            {-1, -1, -1, -1, 2, 4, 6, 8},
            {-1, -1, -1, -1, -1, -1, -1, -1, 1, 2, 4, 6, 8, 10, 13, 16},
        }};
        return changes[static_cast<std::size_t>(m_bits - 2)][static_cast<std::size_t>(magnitude)];
    }

    int m_bits, m_value = 0, m_index = 0;
};

Bytes adpcm(const Samples& samples, const Form& form) {
    constexpr std::size_t samplesOfAPacket = 4096;
    BitWriter out;
    out.add(form.adpcmBits - 2, 2);
    std::vector<AdpcmChannel> channels(static_cast<std::size_t>(form.channels),
                                       AdpcmChannel(form.adpcmBits));
    for (std::size_t i = 0; i < samples.size(); ++i) {
        AdpcmChannel& channel = channels[i % channels.size()];
        if (i / channels.size() % samplesOfAPacket == 0)
            channel.start(samples[i], out);
        else
            channel.add(samples[i], out);
    }
    return out.bytes();
}

void require(bool holds, const char* what) {
    if (!holds) throw std::runtime_error(what);
}

/// MP3 and Nellymoser, by the library's encoders.
class LibraryCoder {
public:
    explicit LibraryCoder(const Form& form) {
        const bool mp3 = form.coding == Coding::Mp3;
        const AVCodec* codec = avcodec_find_encoder(mp3 ? AV_CODEC_ID_MP3 : AV_CODEC_ID_NELLYMOSER);
        require(codec, "the library has no such encoder");
        m_context.reset(avcodec_alloc_context3(codec));
        m_context->sample_rate = form.rate;
        m_context->sample_fmt = mp3 ? AV_SAMPLE_FMT_FLTP : AV_SAMPLE_FMT_FLT;
        m_context->bit_rate = 64000;
        av_channel_layout_default(&m_context->ch_layout, form.channels);
        require(avcodec_open2(m_context.get(), codec, nullptr) >= 0, "the encoder won't start");
    }

    int leadIn() const { return m_context->initial_padding; }

    /// Frame by frame.
    std::vector<Bytes> code(const Samples& samples) {
        const auto channels = static_cast<std::size_t>(m_context->ch_layout.nb_channels);
        const auto step = static_cast<std::size_t>(m_context->frame_size) * channels;
        for (std::size_t i = 0; i < samples.size(); i += step) {
            Samples part(
                samples.begin() + static_cast<std::ptrdiff_t>(i),
                samples.begin() + static_cast<std::ptrdiff_t>(std::min(i + step, samples.size())));
            part.resize(step);
            send(part);
        }
        avcodec_send_frame(m_context.get(), nullptr);
        takePackets();
        return std::move(m_coded);
    }

private:
    void send(const Samples& part) {
        av_frame_unref(m_frame.get());
        m_frame->nb_samples = m_context->frame_size;
        m_frame->format = m_context->sample_fmt;
        av_channel_layout_copy(&m_frame->ch_layout, &m_context->ch_layout);
        require(av_frame_get_buffer(m_frame.get(), 0) >= 0, "no memory for a frame");
        const int channels = m_context->ch_layout.nb_channels;
        for (int channel = 0; channel < channels; ++channel)
            std::ranges::transform(
                channelOf(part, channels, channel),
                reinterpret_cast<float*>(m_frame->extended_data[channel]),
                [](std::int16_t sample) { return static_cast<float>(sample) / 32768.0F; });
        require(avcodec_send_frame(m_context.get(), m_frame.get()) >= 0, "a frame is refused");
        takePackets();
    }

    void takePackets() {
        while (avcodec_receive_packet(m_context.get(), m_packet.get()) >= 0)
            m_coded.emplace_back(m_packet->data, m_packet->data + m_packet->size);
    }

    Context m_context;
    Packet m_packet{av_packet_alloc()};
    Frame m_frame{av_frame_alloc()};
    std::vector<Bytes> m_coded;
};

bool isOfLibrary(Coding coding) { return coding == Coding::Mp3 || coding == Coding::Nellymoser; }

}  // namespace

Samples tone(double frequency, int rate, int channels, double seconds) {
    constexpr double loudness = 32767 / 1.5, fifth = 1.5;
    Samples samples;
    for (int i = 0; i < static_cast<int>(seconds * rate); ++i)
        for (int channel = 0; channel < channels; ++channel) {
            const double hertz = channel == 0 ? frequency : frequency * fifth;
            const double angle = 2 * std::numbers::pi * hertz * i / rate;
            samples.push_back(static_cast<std::int16_t>(std::lround(loudness * std::sin(angle))));
        }
    return samples;
}

Bytes codedWhole(const Samples& samples, const Form& form) {
    if (form.coding == Coding::Adpcm) return adpcm(samples, form);
    if (!isOfLibrary(form.coding)) return pcm(samples, form.coding);
    Bytes all;
    for (const Bytes& frame : LibraryCoder(form).code(samples))
        all.insert(all.end(), frame.begin(), frame.end());
    return all;
}

std::vector<Bytes> codedInPieces(const Samples& samples, const Form& form) {
    if (isOfLibrary(form.coding)) return LibraryCoder(form).code(samples);
    std::vector<Bytes> pieces;
    const auto step = static_cast<std::size_t>(form.rate / picturesPerSecond) *
                      static_cast<std::size_t>(form.channels);
    for (std::size_t i = 0; i < samples.size(); i += step) {
        const auto start = samples.begin() + static_cast<std::ptrdiff_t>(i);
        const auto size = static_cast<std::ptrdiff_t>(std::min(step, samples.size() - i));
        pieces.push_back(codedWhole(Samples(start, start + size), form));
    }
    return pieces;
}

int leadIn(const Form& form) { return isOfLibrary(form.coding) ? LibraryCoder(form).leadIn() : 0; }

double shareOf(double frequency, const Samples& played, int channel) {
    const Samples samples = channelOf(played, playedChannels, channel);
    std::complex<double> sum;
    double energy = 0;
    for (std::size_t i = 0; i < samples.size(); ++i) {
        const double value = samples[i];
        const double angle = 2 * std::numbers::pi * frequency * static_cast<double>(i) / playedRate;
        sum += value * std::polar(1.0, angle);
        energy += value * value;
    }
    return energy == 0 ? 0 : 2 * std::norm(sum) / (energy * static_cast<double>(samples.size()));
}

}  // namespace orvanta::sound::test
