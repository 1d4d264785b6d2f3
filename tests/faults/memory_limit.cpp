#include "memory_limit.h"

#include <malloc.h>

#include <cstdlib>
#include <limits>
#include <new>

namespace {

constexpr std::size_t unlimited = std::numeric_limits<std::size_t>::max();

std::size_t held = 0;
std::size_t most = unlimited, largest = unlimited;

}  // namespace

void* operator new(std::size_t size) {
    const bool refused = size > largest || size > most - held;
    void* const memory = refused ? nullptr : std::malloc(size);
    if (!memory) throw std::bad_alloc();
    held += ::malloc_usable_size(memory);
    return memory;
}

void operator delete(void* memory) noexcept {
    if (memory) held -= ::malloc_usable_size(memory);
    std::free(memory);
}

void operator delete(void* memory, std::size_t) noexcept { operator delete(memory); }

namespace orvanta::test {

MemoryLimit::MemoryLimit(std::size_t more) { most = held + more; }

MemoryLimit::~MemoryLimit() { most = unlimited; }

RequestLimit::RequestLimit(std::size_t largest) { ::largest = largest; }

RequestLimit::~RequestLimit() { largest = unlimited; }

}  // namespace orvanta::test
