#pragma once

#include <string>
#include <string_view>

namespace orvanta {

// The edge between the program's Windows-1252 bytes and the UTF-8 of everything around it. The
// bytes 81, 8D, 8F, 90 and 9D, which the code page leaves open, stand for U+0081 and so on.

std::string utf8From1252(std::string_view bytes);

/// A character that the code page does not hold becomes one "?", and so does each run of bytes
/// that is no UTF-8.
std::string windows1252From(std::string_view utf8);

}  // namespace orvanta
