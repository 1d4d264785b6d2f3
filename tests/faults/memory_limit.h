#pragma once

#include <cstddef>

namespace orvanta::test {

/// While it lives the program gets so many bytes of memory beyond what it holds. A request for more
/// fails as it does where the system has none left; what the program gives back counts again.
class MemoryLimit {
public:
    explicit MemoryLimit(std::size_t more);
    ~MemoryLimit();
    MemoryLimit(const MemoryLimit&) = delete;
    MemoryLimit& operator=(const MemoryLimit&) = delete;
};

}  // namespace orvanta::test
