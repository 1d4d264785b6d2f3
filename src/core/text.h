#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace orvanta {

/// The text without blanks (code 32, nothing else) at both ends.
std::string_view trimBlanks(std::string_view text);

/// The parts between the delimiters, always one more than there are delimiters. The parts view
/// the text.
std::vector<std::string_view> splitAt(std::string_view text, std::string_view delimiter);

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to);

/// The decimal number, with or without a "-" in front, that the whole text is; none for any other.
std::optional<int> positionFrom(std::string_view text);

/// Gives the lines of a text one by one. CR LF, CR and LF each end a line; the last line needs
/// no end.
class LineSource {
public:
    /// The text must outlive the source.
    explicit LineSource(std::string_view text) : m_rest(text) {}

    /// The next line without its end; none behind the last.
    std::optional<std::string_view> next();

private:
    std::string_view m_rest;
};

}  // namespace orvanta
