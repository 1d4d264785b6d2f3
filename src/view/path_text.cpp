#include "view/path_text.h"

#include <algorithm>

#include "view/windows1252.h"

namespace orvanta {

namespace {

constexpr char opening = '\x81', closing = '\x8D';
constexpr std::string_view hexDigits = "0123456789ABCDEF";

/// The first character of a name, or bytes that are none.
std::string_view firstOf(std::string_view name) {
    const auto next = std::find_if(name.begin() + 1, name.end(),
                                   [](char byte) { return (byte & '\xC0') != '\x80'; });
    return name.substr(0, static_cast<std::size_t>(next - name.begin()));
}

std::string inHex(std::string_view bytes) {
    std::string hex;
    for (const char byte : bytes) {
        hex += hexDigits[static_cast<unsigned char>(byte) >> 4];
        hex += hexDigits[static_cast<unsigned char>(byte) & 0x0F];
    }
    return hex;
}

/// Empty for what is not in hex.
std::string fromHex(std::string_view hex) {
    std::string bytes;
    if (hex.size() % 2 != 0 || hex.find_first_not_of(hexDigits) != hex.npos) return bytes;
    for (std::size_t i = 0; i < hex.size(); i += 2)
        bytes += static_cast<char>(hexDigits.find(hex[i]) << 4 | hexDigits.find(hex[i + 1]));
    return bytes;
}

/// Takes the bytes in hex off the front; empty where there are none.
std::string takeBytes(std::string_view& path) {
    if (path.front() != opening) return {};
    const auto end = path.find(closing);
    if (end == path.npos) return {};
    std::string bytes = fromHex(path.substr(1, end - 1));
    if (!bytes.empty()) path.remove_prefix(end + 1);
    return bytes;
}

}  // namespace

std::string pathFromNative(std::string_view name) {
    std::string path;
    while (!name.empty()) {
        const std::string_view character = firstOf(name);
        const std::string text = windows1252From(character);
        const bool plain = utf8From1252(text) == character && text.front() != opening;
        path += plain ? text : opening + inHex(character) + closing;
        name.remove_prefix(character.size());
    }
    return path;
}

std::string nativeFromPath(std::string_view path) {
    std::string name;
    while (!path.empty()) {
        std::string bytes = takeBytes(path);
        if (bytes.empty()) {
            bytes = utf8From1252(path.substr(0, 1));
            path.remove_prefix(1);
        }
        name += bytes;
    }
    return name;
}

}  // namespace orvanta
