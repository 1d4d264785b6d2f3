#pragma once

#include <algorithm>
#include <string>

#include "view/platform.h"

namespace orvanta::test {

/// A path as the system writes it, from one with slashes.
inline std::string systemPath(std::string path) {
    std::ranges::replace(path, '/', pathSeparator);
    return path;
}

/// A path as the tests write it, from one of the system.
inline std::string withSlashes(std::string path) {
    std::ranges::replace(path, pathSeparator, '/');
    return path;
}

}  // namespace orvanta::test
