#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// The text without blanks (code 32, nothing else) at both ends.
std::string_view trimBlanks(std::string_view text);

/// The parts between the delimiters, always one more than there are delimiters. The parts view
/// the text.
std::vector<std::string_view> splitAt(std::string_view text, std::string_view delimiter);

/// Fills all parts; false if the text has more or fewer of them.
bool splitInto(std::span<std::string_view> parts, std::string_view text,
               std::string_view delimiter);
/// The parts of a text that has exactly so many.
template <std::size_t parts>
std::optional<std::array<std::string_view, parts>> partsOf(std::string_view text,
                                                           std::string_view delimiter) {
    std::array<std::string_view, parts> found;
    if (!splitInto(found, text, delimiter)) return std::nullopt;
    return found;
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);

/// The decimal number, with or without a "-" in front, that the whole text is; none for any other.
std::optional<int> positionFrom(std::string_view text);

/// Gives the lines of a text one by one. CR LF, CR and LF each end a line; the last line needs
/// no end.
class LineSource {
public:
    /// The text must outlive the source.
    explicit LineSource(std::string_view text) : m_text(text) {}

    /// The next line without its end; none behind the last.
    std::optional<std::string_view> next();

private:
    std::string_view m_text;
    std::size_t m_at = 0;
    std::size_t m_lineFeed = 0;  // the next one, from m_at on, once m_at was looked at
};

}  // namespace orvanta
