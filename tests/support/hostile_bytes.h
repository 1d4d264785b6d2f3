#pragma once

#include <cstdint>
#include <random>
#include <string>

namespace orvanta::test {

/// Makes files that nobody would write: one from each seed, the same on every machine. Some are
/// noise; most are a good file that was cut, doubled, shuffled and sprinkled with tags, delimiters,
/// odd keys and odd bytes.
class HostileBytes {
public:
    HostileBytes(std::string good, std::uint32_t seed) : m_good(std::move(good)), m_random(seed) {}

    std::string file();

private:
    std::size_t below(std::size_t limit) { return m_random() % limit; }
    std::string noise();
    std::string morsel();
    void spoil(std::string& bytes);

    const std::string m_good;
    std::mt19937 m_random;
};

}  // namespace orvanta::test
