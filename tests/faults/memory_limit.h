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

/// While it lives a request for more bytes than this at once fails, smaller ones go through: memory
/// that is in pieces, of which there is enough to tell what happened.
class RequestLimit {
public:
    explicit RequestLimit(std::size_t largest);
    ~RequestLimit();
    RequestLimit(const RequestLimit&) = delete;
    RequestLimit& operator=(const RequestLimit&) = delete;
};

}  // namespace orvanta::test
