#pragma once

#include <string_view>

namespace orvanta::fuzz {

/// What one input is tried on; each target defines it for itself. It ends the program where what
/// the target claims does not hold.
void tryInput(std::string_view bytes);

/// Ends the program, with the claim on the error stream, where the claim does not hold.
void require(bool holds, std::string_view claim);

}  // namespace orvanta::fuzz
