#include "core/text.h"

#include <charconv>

namespace orvanta {

std::string_view trimBlanks(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::vector<std::string_view> splitAt(std::string_view text, std::string_view delimiter) {
    std::vector<std::string_view> parts;
    std::size_t start = 0;
    for (std::size_t at; (at = text.find(delimiter, start)) != std::string_view::npos;) {
        parts.push_back(text.substr(start, at - start));
        start = at + delimiter.size();
    }
    parts.push_back(text.substr(start));
    return parts;
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
    std::string result;
    std::size_t start = 0;
    for (std::size_t at; (at = text.find(from, start)) != std::string_view::npos;) {
        result.append(text.substr(start, at - start)).append(to);
        start = at + from.size();
    }
    result.append(text.substr(start));
    return result;
}

std::optional<int> positionFrom(std::string_view text) {
    int value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return value;
}

std::optional<std::string_view> LineSource::next() {
    if (m_rest.empty()) return std::nullopt;
    const auto end = m_rest.find_first_of("\r\n");
    const std::string_view line = m_rest.substr(0, end);
    if (end == std::string_view::npos) {
        m_rest = {};
        return line;
    }
    const bool pair = m_rest.substr(end, 2) == "\r\n";
    m_rest.remove_prefix(end + (pair ? 2 : 1));
    return line;
}

}  // namespace orvanta
