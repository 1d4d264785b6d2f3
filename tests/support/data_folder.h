#pragma once

#include <string>

namespace orvanta::test {

/// The folder of the banks and texts that the program ships with, with no separator at its end.
std::string dataFolder();

}  // namespace orvanta::test
