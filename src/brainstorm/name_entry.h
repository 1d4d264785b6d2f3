#pragma once

namespace orvanta {

/// False for the characters that can't be part of a file name; the box for the name of a team
/// member does not take them.
bool isAllowedInName(char character);

}  // namespace orvanta
