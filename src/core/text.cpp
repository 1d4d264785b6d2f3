#include "core/text.h"

#include <algorithm>
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

bool splitInto(std::span<std::string_view> parts, std::string_view text,
               std::string_view delimiter) {
    for (std::string_view& part : parts.first(parts.size() - 1)) {
        const auto at = text.find(delimiter);
        if (at == std::string_view::npos) return false;
        part = text.substr(0, at);
        text.remove_prefix(at + delimiter.size());
    }
    parts.back() = text;
    return text.find(delimiter) == std::string_view::npos;
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
    if (m_at == m_text.size()) return std::nullopt;
    // Looked for once each: a file whose lines end in CR may hold none up to its far end.
    if (m_at == 0 || m_lineFeed < m_at)
        m_lineFeed = std::min(m_text.find('\n', m_at), m_text.size());
    std::string_view line = m_text.substr(m_at, m_lineFeed - m_at);
    line = line.substr(0, line.find('\r'));
    m_at += line.size();
    const bool pair = m_text.substr(m_at, 2) == "\r\n";
    m_at = std::min(m_at + (pair ? 2 : 1), m_text.size());
    return line;
}

}  // namespace orvanta
