#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace orvanta::scenarios {

using Json = nlohmann::ordered_json;

/// What stands at a path of names joined by points, such as "lists.lvBStrength.rows.*.text".
/// "*" gathers the rest of the path for each element of an array, a number takes one, from 0.
/// A path that leads nowhere gives the text "nothing here".
Json lookedAt(const Json& value, const std::string& path);

}  // namespace orvanta::scenarios
