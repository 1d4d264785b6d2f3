#include "core/web_host.h"

#include <algorithm>
#include <array>

namespace orvanta {

namespace {

// RFC 2606 keeps these for examples and tests.
constexpr std::array<std::string_view, 7> reservedNames{
    "example", "invalid", "test", "localhost", "example.com", "example.net", "example.org"};

/// In small letters, without its port and the point that may end it.
std::string plainName(std::string_view host) {
    std::string name(host.substr(0, host.find(':')));
    if (name.ends_with('.')) name.pop_back();
    for (char& letter : name)
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter - 'A' + 'a');
    return name;
}

bool isWithin(std::string_view name, std::string_view domain) {
    return name == domain || name.ends_with("." + std::string(domain));
}

}  // namespace

std::string_view webHost() { return ORVANTA_WEB_HOST; }

std::string webAddress(std::string_view page, std::string_view host) {
    return "http://" + std::string(host) + std::string(page);
}

bool isReservedHost(std::string_view host) {
    const std::string name = plainName(host);
    return std::ranges::any_of(reservedNames,
                               [&](std::string_view domain) { return isWithin(name, domain); });
}

std::optional<std::string> installedCopy(std::string_view target, std::string_view host) {
    if (!isReservedHost(host)) return std::nullopt;
    for (const std::string_view page : {overviewPage, supportPage})
        if (target == webAddress(page, host)) return "site" + std::string(page) + "index.html";
    return std::nullopt;
}

}  // namespace orvanta
