#include <cstddef>
#include <cstdint>

#include "target.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    orvanta::fuzz::tryInput({reinterpret_cast<const char*>(bytes), size});
    return 0;
}
