#include "view/windows1252.h"

#include <algorithm>
#include <array>
#include <cstdint>

namespace orvanta {

namespace {

/// The characters of the bytes 80 to 9F; all others are their own number.
constexpr std::array<char32_t, 32> upperControls{
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char32_t characterOf(unsigned char byte) {
    return byte >= 0x80 && byte < 0xA0 ? upperControls[byte - 0x80u] : byte;
}

char byteOf(char32_t character) {
    if (character < 0x80 || (character >= 0xA0 && character < 0x100))
        return static_cast<char>(character);
    const auto found = std::ranges::find(upperControls, character);
    if (found == upperControls.end()) return '?';
    return static_cast<char>(0x80 + (found - upperControls.begin()));
}

void appendUtf8(std::string& out, char32_t character) {
    if (character < 0x80) {
        out += static_cast<char>(character);
    } else if (character < 0x800) {
        out += static_cast<char>(0xC0 | character >> 6);
        out += static_cast<char>(0x80 | (character & 0x3F));
    } else {
        out += static_cast<char>(0xE0 | character >> 12);
        out += static_cast<char>(0x80 | (character >> 6 & 0x3F));
        out += static_cast<char>(0x80 | (character & 0x3F));
    }
}

constexpr char32_t noCharacter = 0xFFFD;

/// Takes the next character off the front; noCharacter for bytes that are no UTF-8.
char32_t takeCharacter(std::string_view& utf8) {
    const auto lead = static_cast<unsigned char>(utf8.front());
    utf8.remove_prefix(1);
    if (lead < 0x80) return lead;
    const std::size_t following = lead >= 0xF0 ? 3 : lead >= 0xE0 ? 2 : 1;
    char32_t character = lead & (0x3Fu >> following);
    std::size_t taken = 0;
    while (taken < following && taken < utf8.size() && (utf8[taken] & 0xC0) == 0x80)
        character = character << 6 | (static_cast<unsigned char>(utf8[taken++]) & 0x3Fu);
    utf8.remove_prefix(taken);
    constexpr std::array<char32_t, 4> smallest{0, 0x80, 0x800, 0x10000};
    const bool whole = lead >= 0xC0 && taken == following && character >= smallest[following];
    return whole ? character : noCharacter;
}

}  // namespace

std::string utf8From1252(std::string_view bytes) {
    std::string utf8;
    utf8.reserve(bytes.size());
    for (const char byte : bytes) appendUtf8(utf8, characterOf(static_cast<unsigned char>(byte)));
    return utf8;
}

std::string windows1252From(std::string_view utf8) {
    std::string bytes;
    bytes.reserve(utf8.size());
    while (!utf8.empty()) bytes += byteOf(takeCharacter(utf8));
    return bytes;
}

}  // namespace orvanta
