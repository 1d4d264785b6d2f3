#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace orvanta::test {

/// What the program asked of the system. Paths are whole, without links.
struct FileCall {
    std::string name;      // "fsync" or "rename"
    std::string path;      // of a rename: the former one
    std::string target{};  // of a rename: the new one
    off_t size = 0;        // of the file at that moment
};

/// The calls since the last time of asking, in their order.
std::vector<FileCall> takeFileCalls();

}  // namespace orvanta::test
