#include "desktop/sound/movie.h"

#include <zlib.h>

#include <algorithm>
#include <array>
#include <map>
#include <utility>

namespace orvanta::sound {

namespace {

/// Reads numbers, lowest byte first, and never beyond the end: what is missing reads as 0.
class Reader {
public:
    explicit Reader(ByteView bytes) : m_rest(bytes) {}

    ByteView rest() const { return m_rest; }
    bool atEnd() const { return m_rest.empty(); }

    /// As many bytes as are there, this number at most.
    ByteView take(std::size_t count) {
        const ByteView taken = m_rest.first(std::min(count, m_rest.size()));
        m_rest = m_rest.subspan(taken.size());
        return taken;
    }
    std::uint8_t u8() { return static_cast<std::uint8_t>(number(1)); }
    std::uint16_t u16() { return static_cast<std::uint16_t>(number(2)); }
    std::uint32_t u32() { return number(4); }

private:
    std::uint32_t number(std::size_t size) {
        std::uint32_t value = 0;
        int shift = 0;
        for (const std::uint8_t byte : take(size)) {
            value |= static_cast<std::uint32_t>(byte) << shift;
            shift += 8;
        }
        return value;
    }

    ByteView m_rest;
};

constexpr std::size_t signatureSize = 8;  // three letters, version, length when unpacked

/// Empty where the bytes are damaged or would be larger than a movie may be.
Bytes inflated(ByteView packed) {
    z_stream stream{};
    if (inflateInit(&stream) != Z_OK) return {};
    stream.next_in = const_cast<Bytef*>(packed.data());  // zlib's interface knows no const
    stream.avail_in = static_cast<uInt>(packed.size());
    Bytes all;
    std::array<std::uint8_t, 1 << 16> block{};
    int result = Z_OK;
    while (result == Z_OK && all.size() <= maximumMovieSize) {
        stream.next_out = block.data();
        stream.avail_out = block.size();
        result = inflate(&stream, Z_NO_FLUSH);
        all.insert(all.end(), block.data(), stream.next_out);
    }
    inflateEnd(&stream);
    // Z_BUF_ERROR: the file was cut off.
    const bool usable = result == Z_STREAM_END || result == Z_BUF_ERROR;
    return usable && all.size() <= maximumMovieSize ? all : Bytes();
}

/// Passes by the size of the stage, the pictures per second and their number.
ByteView behindHeader(ByteView body) {
    Reader reader(body);
    const int bitsOfASide = reader.u8() >> 3;
    const int bits = 5 + 4 * bitsOfASide;
    reader.take(static_cast<std::size_t>((bits + 7) / 8 - 1));
    reader.take(4);
    return reader.rest();
}

enum class Tag {
    End = 0,
    DefineSound = 14,
    StartSound = 15,
    SoundStreamHead = 18,
    SoundStreamBlock = 19,
    DefineSprite = 39,
    SoundStreamHead2 = 45,
};

/// The form that stream heads and event sounds tell in one byte; none for an unknown coding.
std::optional<MovieSound> soundOfForm(std::uint8_t form) {
    constexpr std::array rates{5512, 11025, 22050, 44100};
    MovieSound sound{.coding = Coding::Mp3,
                     .rate = rates[(form >> 2) & 3],
                     .channels = (form & 1) + 1,
                     .samples = {},
                     .pieces = {}};
    const bool wide = (form & 2) != 0;
    switch (form >> 4) {
        case 0:  // in the order of the machine that made it, which is little-endian in practice
        case 3:
            sound.coding = wide ? Coding::Pcm16 : Coding::Pcm8;
            return sound;
        case 1:
            sound.coding = Coding::Adpcm;
            return sound;
        case 2:
            return sound;
        case 4:
        case 5:
        case 6:
            sound.coding = Coding::Nellymoser;
            sound.channels = 1;
            if (form >> 4 != 6) sound.rate = form >> 4 == 4 ? 16000 : 8000;
            return sound;
        default:
            return std::nullopt;
    }
}

/// The number of samples to skip, which decoders of MP3 leave out at the start.
std::uint32_t latencyOf(Reader& reader) {
    const auto seek = static_cast<std::int16_t>(reader.u16());
    return seek > 0 ? static_cast<std::uint32_t>(seek) : 0;
}

/// The stream sound of one timeline, the movie's or a sprite's.
class Stream {
public:
    void takeHead(ByteView tag) {
        if (m_sound) return;
        Reader reader(tag);
        reader.u8();  // what is advised for playing
        m_sound = soundOfForm(reader.u8());
        reader.u16();  // samples in a block, on average
        if (m_sound && m_sound->coding == Coding::Mp3) m_sound->skipped = latencyOf(reader);
    }

    void takeBlock(ByteView tag) {
        constexpr std::size_t mostBlocks = 65535;  // a movie has no more pictures
        if (!m_sound || m_sound->pieces.size() == mostBlocks) return;
        Reader reader(tag);
        if (m_sound->coding == Coding::Mp3) reader.take(4);  // samples, and where they belong
        if (!reader.atEnd()) m_sound->pieces.push_back(reader.rest());
    }

    bool isHeard() const { return m_sound && !m_sound->pieces.empty(); }
    std::optional<MovieSound> take() { return std::move(m_sound); }

private:
    std::optional<MovieSound> m_sound;
};

std::optional<MovieSound> soundOfEvent(ByteView definition) {
    Reader reader(definition);
    auto sound = soundOfForm(reader.u8());
    if (!sound) return std::nullopt;
    sound->samples = reader.u32();
    if (sound->coding == Coding::Mp3) sound->skipped = latencyOf(reader);
    if (reader.atEnd()) return std::nullopt;
    sound->pieces.push_back(reader.rest());
    return sound;
}

class MovieWalk {
public:
    void walk(ByteView tags) { walkTimeline(tags, m_stream, true); }

    std::optional<MovieSound> sound() {
        if (m_stream.isHeard()) return m_stream.take();
        if (m_spriteStream.isHeard()) return m_spriteStream.take();
        // A movie may start its sound by a script, which nobody runs here.
        const std::optional<ByteView>& event = m_started ? m_started : m_firstDefined;
        return event ? soundOfEvent(*event) : std::nullopt;
    }

private:
    void walkTimeline(ByteView tags, Stream& stream, bool mayHoldSprites) {
        Reader reader(tags);
        while (!reader.atEnd()) {
            constexpr std::uint32_t longForm = 0x3F;
            const std::uint16_t head = reader.u16();
            std::uint32_t length = head & longForm;
            if (length == longForm) length = reader.u32();
            const ByteView tag = reader.take(length);
            switch (static_cast<Tag>(head >> 6)) {
                case Tag::End:
                    return;
                case Tag::DefineSound:
                    define(tag);
                    break;
                case Tag::StartSound:
                    start(tag);
                    break;
                case Tag::SoundStreamHead:
                case Tag::SoundStreamHead2:
                    stream.takeHead(tag);
                    break;
                case Tag::SoundStreamBlock:
                    stream.takeBlock(tag);
                    break;
                case Tag::DefineSprite:
                    if (mayHoldSprites) walkSprite(tag);
                    break;
            }
        }
    }

    void walkSprite(ByteView tag) {
        Reader reader(tag);
        reader.take(4);  // its number and how many pictures it has
        Stream stream;
        walkTimeline(reader.rest(), stream, false);
        if (!m_spriteStream.isHeard()) m_spriteStream = std::move(stream);
    }

    void define(ByteView tag) {
        Reader reader(tag);
        const std::uint16_t id = reader.u16();
        m_defined.emplace(id, reader.rest());
        if (!m_firstDefined) m_firstDefined = reader.rest();
    }

    void start(ByteView tag) {
        constexpr std::uint8_t stops = 0x20;
        Reader reader(tag);
        const std::uint16_t id = reader.u16();
        if (m_started || (reader.u8() & stops) != 0) return;
        const auto found = m_defined.find(id);
        if (found != m_defined.end()) m_started = found->second;
    }

    Stream m_stream, m_spriteStream;
    std::map<std::uint16_t, ByteView> m_defined;  // by number: what follows it in the tag
    std::optional<ByteView> m_firstDefined, m_started;
};

}  // namespace

Bytes movieTags(ByteView file) {
    if (file.size() <= signatureSize || file.size() > maximumMovieSize) return {};
    const bool packed = file[0] == 'C';
    if ((!packed && file[0] != 'F') || file[1] != 'W' || file[2] != 'S') return {};
    const ByteView behindSignature = file.subspan(signatureSize);
    Bytes body =
        packed ? inflated(behindSignature) : Bytes(behindSignature.begin(), behindSignature.end());
    const auto tags = static_cast<std::ptrdiff_t>(behindHeader(body).size());
    body.erase(body.begin(), body.end() - tags);
    return body;
}

std::optional<MovieSound> soundOfMovie(ByteView tags) {
    MovieWalk walk;
    walk.walk(tags);
    return walk.sound();
}

}  // namespace orvanta::sound
