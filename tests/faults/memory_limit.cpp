#include "memory_limit.h"

#include <malloc.h>

#include <cstdlib>
#include <limits>
#include <new>

namespace {

std::size_t held = 0;
std::size_t most = std::numeric_limits<std::size_t>::max();

}  // namespace

void* operator new(std::size_t size) {
    void* const memory = size > most - held ? nullptr : std::malloc(size);
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

MemoryLimit::~MemoryLimit() { most = std::numeric_limits<std::size_t>::max(); }

}  // namespace orvanta::test
