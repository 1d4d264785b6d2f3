#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace orvanta {

// What a person's keyboard and clipboard make of the text of a box of one line. Texts are
// Windows-1252 unless told otherwise.

/// The code that the Enter key stands for.
inline constexpr char enterKey = 13;

/// True for a character that a key puts into a box. The others are commands.
constexpr bool isPrintable(char character) {
    const auto code = static_cast<unsigned char>(character);
    return code >= 32 && code != 127;
}

/// What a box takes of a UTF-8 text that is pasted into it: each line break, CR LF, CR or LF,
/// becomes one blank.
std::string singleLineFrom(std::string_view utf8);

/// A text and the cursor in it, counted in characters from 0.
struct EnteredText {
    std::string text;
    std::size_t cursor = 0;
};

/// Cuts from what was just entered ahead of the cursor whatever exceeds the limit of the box, 0
/// for none. A longer text that was there before stays.
EnteredText withinLimit(std::string_view before, EnteredText now, std::size_t limit);

}  // namespace orvanta
