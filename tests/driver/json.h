#pragma once

#include <nlohmann/json.hpp>
#include <string_view>

#include "view/windows1252.h"

namespace orvanta::driver {

using Json = nlohmann::ordered_json;

/// A Windows-1252 text of the program as a JSON string.
inline Json text(std::string_view bytes) { return utf8From1252(bytes); }

}  // namespace orvanta::driver
