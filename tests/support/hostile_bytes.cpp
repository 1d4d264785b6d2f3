#include "hostile_bytes.h"

#include <array>

namespace orvanta::test {

namespace {

/// What the readers look for, and what lies close to it.
const std::array<std::string, 32> morsels{
    "<STEP>",
    "</STEP>",
    "<NAME>",
    "</NAME>",
    "<MODULE>",
    "</MODULE>",
    "<STRENGTH>",
    "</STRENGTH>",
    "<WEAKNESS>",
    "<OPPORTUNITY>",
    "</OPPORTUNITY>",
    "<THREATS>",
    "</THREATS>",
    "<OPPORTUNITYMAPPING>",
    "</OPPORTUNITYMAPPING>",
    "<THREATMAPPING>",
    "<strength>",
    "<!-SWOT-!>",
    "<!-SWOT-!><!-SWOT-!>",
    "<!-SW",
    "S1<!-SWOT-!><!-SWOT-!>twin",
    "S99999999999999999999<!-SWOT-!><!-SWOT-!>beyond counting",
    "W-1e308<!-SWOT-!><!-SWOT-!>below counting",
    "O1-S1-W1<!-SWOT-!><!-SWOT-!>three parts",
    "-<!-SWOT-!><!-SWOT-!>no parts",
    "<!-SWOT-!><!-SWOT-!>no key",
    "&lt;&lt;/STRENGTH>",
    "<<!~!>>",
    "[+][-]",
    "   ",
    std::string(3, '\0'),
    std::string(5000, '-'),
};

}  // namespace

std::string HostileBytes::noise() {
    std::string bytes(below(2000), '\0');
    for (char& byte : bytes) byte = static_cast<char>(below(256));
    return bytes;
}

std::string HostileBytes::morsel() {
    const std::array<std::string, 4> ends{"\r\n", "\r", "\n", ""};
    return ends[below(4)] + morsels[below(morsels.size())] + ends[below(4)];
}

void HostileBytes::spoil(std::string& bytes) {
    const std::size_t at = below(bytes.size() + 1);
    const std::size_t length = below(60);
    switch (below(6)) {
        case 0:
            bytes.resize(at);
            break;
        case 1:
            bytes.erase(at, length);
            break;
        case 2:
            bytes.insert(below(bytes.size() + 1), bytes.substr(at, length));
            break;
        case 3:
            if (at < bytes.size()) bytes[at] = static_cast<char>(below(256));
            break;
        default:
            bytes.insert(at, morsel());
    }
}

std::string HostileBytes::file() {
    if (below(8) == 0) return noise();
    std::string bytes = m_good;
    for (std::size_t times = 1 + below(20); times > 0; --times) spoil(bytes);
    return bytes;
}

}  // namespace orvanta::test
