#pragma once

#include <string>

namespace orvanta::readers {

/// An analyze file made up by chance, the same for the same seed: statements of 5 to 60 words or
/// of one long one, up to 40 of them mapped in a group, and for some seeds more than 100 in a list.
std::string inventedAnalysis(unsigned seed);

}  // namespace orvanta::readers
