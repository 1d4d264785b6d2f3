#pragma once

#include <string>

namespace orvanta::benchmarks {

/// An analyze file of about so many rows: three tenths of them statements to map, two tenths
/// opportunities and threats, and on the mapping side these again with three statements to two
/// of them.
std::string analysisOf(int rows);

}  // namespace orvanta::benchmarks
