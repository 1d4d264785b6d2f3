#pragma once

#include <string>
#include <string_view>

// Names as Windows takes them. Within the program they are UTF-8.

namespace orvanta::native {

/// What is no UTF-8 becomes U+FFFD.
std::wstring wideFrom(std::string_view utf8);
/// Half of a surrogate pair becomes U+FFFD.
std::string utf8From(std::wstring_view wide);

/// The whole path in the form to which no limit of length applies. A name that the system keeps for
/// a device, as NUL, gives that device.
std::wstring longName(const std::string& name);
bool isDevice(std::wstring_view longName);
/// The path as a person knows it.
std::string usualName(std::wstring_view longName);

}  // namespace orvanta::native
