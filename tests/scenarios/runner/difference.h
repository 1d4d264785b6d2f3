#pragma once

#include <string>
#include <vector>

#include "look.h"

namespace orvanta::scenarios {

/// One line for each place where two values differ, such as
/// `events[1].text: expected "a", got "b"`; empty when they are equal.
std::vector<std::string> differences(const Json& expected, const Json& got);

}  // namespace orvanta::scenarios
