#include "movie_writer.h"

#include <zlib.h>

#include <stdexcept>

namespace orvanta::sound::test {

namespace {

std::uint8_t formByte(const Form& form) {
    int coding = 0;
    switch (form.coding) {
        case Coding::Pcm8:
        case Coding::Pcm16:
            coding = 3;
            break;
        case Coding::Adpcm:
            coding = 1;
            break;
        case Coding::Mp3:
            coding = 2;
            break;
        case Coding::Nellymoser:
            coding = form.rate == 16000 ? 4 : form.rate == 8000 ? 5 : 6;
            break;
    }
    int rate = 0;
    while (rate < 3 && 5512 << rate < form.rate - 100) ++rate;
    const int wide = form.coding == Coding::Pcm8 ? 0 : 2;
    return static_cast<std::uint8_t>((coding << 4) | (rate << 2) | wide | (form.channels - 1));
}

Bytes packed(const Bytes& body) {
    uLongf size = compressBound(static_cast<uLong>(body.size()));
    Bytes bytes(size);
    if (compress(bytes.data(), &size, body.data(), static_cast<uLong>(body.size())) != Z_OK)
        throw std::runtime_error("zlib refuses");
    bytes.resize(size);
    return bytes;
}

}  // namespace

Bytes littleEndian(std::uint32_t value, int size) {
    Bytes bytes;
    for (int i = 0; i < size; ++i, value >>= 8) bytes.push_back(value & 0xFF);
    return bytes;
}

Bytes joined(std::initializer_list<Bytes> parts) {
    Bytes all;
    for (const Bytes& part : parts) all.insert(all.end(), part.begin(), part.end());
    return all;
}

MovieWriter& MovieWriter::tag(int code, const Bytes& body) {
    const auto head = static_cast<std::uint32_t>(code) << 6;
    const auto size = static_cast<std::uint32_t>(body.size());
    m_tags = joined({m_tags,
                     size < 0x3F ? littleEndian(head | size, 2)
                                 : joined({littleEndian(head | 0x3F, 2), littleEndian(size, 4)}),
                     body});
    return *this;
}

MovieWriter& MovieWriter::streamHead(const Form& form, int skipped) {
    const std::uint8_t kind = formByte(form);
    Bytes body{kind, kind};
    const auto samples = static_cast<std::uint32_t>(form.rate / 12);
    body = joined({body, littleEndian(samples, 2)});
    if (form.coding == Coding::Mp3)
        body = joined({body, littleEndian(static_cast<std::uint32_t>(skipped), 2)});
    return tag(form.coding == Coding::Mp3 ? 18 : 45, body);
}

MovieWriter& MovieWriter::streamBlock(const Form& form, const Bytes& coded) {
    const Bytes place = form.coding == Coding::Mp3 ? Bytes(4) : Bytes();
    return tag(19, joined({place, coded})).tag(1, {});
}

MovieWriter& MovieWriter::stream(const Form& form, const Samples& samples) {
    streamHead(form, form.coding == Coding::Mp3 ? leadIn(form) : 0);
    for (const Bytes& piece : codedInPieces(samples, form)) streamBlock(form, piece);
    return *this;
}

MovieWriter& MovieWriter::defineSound(int id, const Form& form, const Samples& samples) {
    const auto count =
        static_cast<std::uint32_t>(samples.size()) / static_cast<std::uint32_t>(form.channels);
    const Bytes seek = form.coding == Coding::Mp3
                           ? littleEndian(static_cast<std::uint32_t>(leadIn(form)), 2)
                           : Bytes();
    return tag(14, joined({littleEndian(static_cast<std::uint32_t>(id), 2),
                           {formByte(form)},
                           littleEndian(count, 4),
                           seek,
                           codedWhole(samples, form)}));
}

MovieWriter& MovieWriter::startSound(int id, int flags) {
    return tag(15, joined({littleEndian(static_cast<std::uint32_t>(id), 2),
                           {static_cast<std::uint8_t>(flags)}}))
        .tag(1, {});
}

MovieWriter& MovieWriter::sprite(const MovieWriter& inside) {
    return tag(39, joined({littleEndian(7, 2), littleEndian(1, 2), inside.m_tags, Bytes(2)}));
}

Bytes MovieWriter::file(Packing packing) const {
    return movieFile(joined({m_tags, Bytes(2)}), packing);
}

Bytes movieFile(const Bytes& tags, Packing packing) {
    // 5 bits tell that a side of the stage takes 15 bits; then 12 pictures a second, one of them.
    const Bytes header{0x78, 0, 0x05, 0x5F, 0, 0, 0x0F, 0xA0, 0, 0, 12, 1, 0};
    const Bytes body = joined({header, tags});
    const Bytes size = littleEndian(static_cast<std::uint32_t>(body.size() + 8), 4);
    const std::uint8_t letter = packing == Packing::Zlib ? 'C' : 'F';
    return joined({{letter, 'W', 'S', 6}, size, packing == Packing::Zlib ? packed(body) : body});
}

}  // namespace orvanta::sound::test
