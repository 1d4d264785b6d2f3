#include "desktop/sound/decoder.h"

#include <algorithm>
#include <array>

#include "desktop/sound/codec_handles.h"

namespace orvanta::sound {

namespace {

AVCodecID codecOf(Coding coding) {
    switch (coding) {
        case Coding::Pcm8:
            return AV_CODEC_ID_PCM_U8;
        case Coding::Pcm16:
            return AV_CODEC_ID_PCM_S16LE;
        case Coding::Adpcm:
            return AV_CODEC_ID_ADPCM_SWF;
        case Coding::Mp3:
            return AV_CODEC_ID_MP3;
        case Coding::Nellymoser:
            return AV_CODEC_ID_NELLYMOSER;
    }
    return AV_CODEC_ID_NONE;
}

/// Brings decoded frames into the form that is played.
class Playable {
public:
    explicit Playable(const MovieSound& sound)
        : m_skipped(sound.skipped), m_wanted(sound.samples) {}

    bool isFull() const { return m_samples.size() >= most; }

    void add(const AVFrame& frame) {
        if (!adaptTo(frame)) return;
        const int room =
            static_cast<int>((most - std::min(m_samples.size(), most)) *
                             static_cast<std::size_t>(frame.sample_rate) / samplesOfASecond) +
            1;
        convert(const_cast<const std::uint8_t**>(frame.extended_data),
                std::min(frame.nb_samples, room));
    }

    Samples take() {
        finishForm();
        const std::size_t start = std::min(inPlayed(m_skipped), m_samples.size());
        m_samples.erase(m_samples.begin(), m_samples.begin() + static_cast<std::ptrdiff_t>(start));
        std::size_t end = std::min(m_samples.size(), most);
        if (m_wanted) end = std::min(end, inPlayed(*m_wanted));
        m_samples.resize(end);
        return std::move(m_samples);
    }

private:
    static constexpr std::size_t samplesOfASecond = std::size_t{playedRate} * playedChannels;
    static constexpr std::size_t most = maximumSeconds * samplesOfASecond;

    std::size_t inPlayed(std::size_t samples) const {
        if (m_rate == 0) return 0;
        return samples * playedRate / static_cast<std::size_t>(m_rate) * playedChannels;
    }

    /// A damaged stream can change its form from frame to frame. False if this one can't be
    /// converted.
    bool adaptTo(const AVFrame& frame) {
        const int channels = frame.ch_layout.nb_channels;
        if (m_converter && frame.sample_rate == m_rate && channels == m_channels &&
            frame.format == m_format)
            return true;
        finishForm();
        if (channels < 1 || channels > 2 || frame.sample_rate < 1) return false;
        AVChannelLayout from, to;
        av_channel_layout_default(&from, channels);
        av_channel_layout_default(&to, playedChannels);
        SwrContext* made = nullptr;
        swr_alloc_set_opts2(&made, &to, AV_SAMPLE_FMT_S16, playedRate, &from,
                            static_cast<AVSampleFormat>(frame.format), frame.sample_rate, 0,
                            nullptr);
        m_converter.reset(made);
        // Left to itself the library takes 3 dB off a single channel that goes to both sides.
        constexpr std::array<double, playedChannels> fullOnBoth{1, 1};
        if (made && channels == 1) swr_set_matrix(made, fullOnBoth.data(), 1);
        if (!made || swr_init(made) < 0) {
            m_converter.reset();
            return false;
        }
        m_rate = frame.sample_rate;
        m_channels = channels;
        m_format = frame.format;
        return true;
    }

    void convert(const std::uint8_t** input, int count) {
        const int room = swr_get_out_samples(m_converter.get(), count);
        if (room <= 0) return;
        const std::size_t before = m_samples.size();
        m_samples.resize(before + static_cast<std::size_t>(room) * playedChannels);
        auto* output = reinterpret_cast<std::uint8_t*>(m_samples.data() + before);
        const int made = swr_convert(m_converter.get(), &output, room, input, count);
        m_samples.resize(before + static_cast<std::size_t>(std::max(made, 0)) * playedChannels);
    }

    /// Takes what the converter holds back.
    void finishForm() {
        if (m_converter) convert(nullptr, 0);
        m_converter.reset();
    }

    std::uint32_t m_skipped;
    std::optional<std::uint32_t> m_wanted;
    Converter m_converter;
    int m_rate = 0, m_channels = 0, m_format = AV_SAMPLE_FMT_NONE;
    Samples m_samples;
};

class Decoding {
public:
    explicit Decoding(const MovieSound& sound) : m_sound(sound), m_playable(sound) {}

    Samples run() {
        if (!open()) return {};
        if (m_sound.coding == Coding::Mp3)
            decodeStream();
        else
            for (const ByteView piece : m_sound.pieces) decode(piece.first(usable(piece.size())));
        avcodec_send_packet(m_context.get(), nullptr);
        takeFrames();
        return m_playable.take();
    }

private:
    bool open() {
        av_log_set_level(AV_LOG_QUIET);  // a broken clip is silence, and nobody reads its faults
        const AVCodec* codec = avcodec_find_decoder(codecOf(m_sound.coding));
        if (!codec) return false;
        m_context.reset(avcodec_alloc_context3(codec));
        if (!m_context || !m_packet || !m_frame) return false;
        m_context->thread_count = 1;
        m_context->sample_rate = m_sound.rate;
        av_channel_layout_default(&m_context->ch_layout, m_sound.channels);
        return avcodec_open2(m_context.get(), codec, nullptr) >= 0;
    }

    /// No coding needs more than two bytes for a sample, so that what is longer isn't heard.
    std::size_t usable(std::size_t size) const {
        const auto most = maximumSeconds * static_cast<std::size_t>(m_sound.rate) *
                          static_cast<std::size_t>(m_sound.channels) * 2;
        return std::min(size, most);
    }

    /// Frames of MP3 may lie across two pieces.
    void decodeStream() {
        const Parser parser(av_parser_init(AV_CODEC_ID_MP3));
        if (!parser) return;
        Bytes all;
        for (const ByteView piece : m_sound.pieces)
            all.insert(all.end(), piece.begin(), piece.end());
        all.resize(all.size() + AV_INPUT_BUFFER_PADDING_SIZE);
        ByteView rest = ByteView(all).first(all.size() - AV_INPUT_BUFFER_PADDING_SIZE);
        while (!m_playable.isFull()) {
            std::uint8_t* frame = nullptr;
            int size = 0;
            const int used =
                av_parser_parse2(parser.get(), m_context.get(), &frame, &size, rest.data(),
                                 static_cast<int>(rest.size()), AV_NOPTS_VALUE, AV_NOPTS_VALUE, 0);
            if (size > 0) decode({frame, static_cast<std::size_t>(size)});
            if (rest.empty() || used < 0) break;  // an empty rest asked for the last frame
            rest = rest.subspan(static_cast<std::size_t>(used));
        }
    }

    void decode(ByteView bytes) {
        if (bytes.empty() || m_playable.isFull()) return;
        av_packet_unref(m_packet.get());
        if (av_new_packet(m_packet.get(), static_cast<int>(bytes.size())) < 0) return;
        std::ranges::copy(bytes, m_packet->data);
        avcodec_send_packet(m_context.get(), m_packet.get());
        takeFrames();
    }

    void takeFrames() {
        while (!m_playable.isFull() && avcodec_receive_frame(m_context.get(), m_frame.get()) >= 0)
            m_playable.add(*m_frame);
    }

    const MovieSound& m_sound;
    Playable m_playable;
    Context m_context;
    Packet m_packet{av_packet_alloc()};
    Frame m_frame{av_frame_alloc()};
};

}  // namespace

Samples decoded(const MovieSound& sound) { return Decoding(sound).run(); }

Samples samplesOfMovie(ByteView file) {
    const Bytes tags = movieTags(file);
    const auto sound = soundOfMovie(tags);
    return sound ? decoded(*sound) : Samples();
}

}  // namespace orvanta::sound
