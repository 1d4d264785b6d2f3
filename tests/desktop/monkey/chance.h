#pragma once

#include <cstdint>
#include <random>

namespace orvanta::monkey {

/// Chances that come of a seed, the same on every machine.
class Chance {
public:
    explicit Chance(std::uint32_t seed) : m_random(seed) {}

    /// From 0 to limit - 1.
    int below(int limit) { return static_cast<int>(m_random() % static_cast<unsigned>(limit)); }
    bool oneIn(int count) { return below(count) == 0; }
    /// One of a container that is not empty.
    template <class Container>
    auto& pick(Container& from) {
        return from[static_cast<std::size_t>(below(static_cast<int>(from.size())))];
    }

private:
    std::mt19937 m_random;
};

}  // namespace orvanta::monkey
