#include <cstdio>
#include <cstdlib>

#include "target.h"

namespace orvanta::fuzz {

void require(bool holds, std::string_view claim) {
    if (holds) return;
    std::fprintf(stderr, "does not hold: %.*s\n", static_cast<int>(claim.size()), claim.data());
    std::abort();
}

}  // namespace orvanta::fuzz
