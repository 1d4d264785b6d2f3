#pragma once

#include <string>

#include "view/platform.h"

namespace orvanta {

// A session in a file that a person named, or in a temporary one, which is the program's own.

inline std::string readSession(const Disk& disk, const std::string& fileName, bool temporary) {
    return temporary ? disk.readOwn(fileName) : disk.read(fileName);
}

inline void writeSession(Disk& disk, const std::string& fileName, std::string_view bytes,
                         bool temporary) {
    temporary ? disk.replaceOwn(fileName, bytes) : disk.replace(fileName, bytes);
}

}  // namespace orvanta
