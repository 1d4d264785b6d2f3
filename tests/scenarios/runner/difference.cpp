#include "difference.h"

#include <algorithm>

namespace orvanta::scenarios {

namespace {

void collect(const std::string& place, const Json* expected, const Json* got,
             std::vector<std::string>& found);

std::string written(const Json* value) { return value ? value->dump() : "nothing"; }

const Json* member(const Json& object, const std::string& name) {
    const auto found = object.find(name);
    return found == object.end() ? nullptr : &*found;
}

void collectMembers(const std::string& place, const Json& expected, const Json& got,
                    std::vector<std::string>& found) {
    const std::string prefix = place.empty() ? "" : place + ".";
    for (const auto& [name, value] : expected.items())
        collect(prefix + name, &value, member(got, name), found);
    for (const auto& [name, value] : got.items())
        if (!expected.contains(name)) collect(prefix + name, nullptr, &value, found);
}

void collectElements(const std::string& place, const Json& expected, const Json& got,
                     std::vector<std::string>& found) {
    for (std::size_t i = 0; i < std::max(expected.size(), got.size()); ++i)
        collect(place + "[" + std::to_string(i) + "]", i < expected.size() ? &expected[i] : nullptr,
                i < got.size() ? &got[i] : nullptr, found);
}

void collect(const std::string& place, const Json* expected, const Json* got,
             std::vector<std::string>& found) {
    if (expected && got && *expected == *got) return;
    if (expected && got && expected->is_object() && got->is_object()) {
        const std::size_t before = found.size();
        collectMembers(place, *expected, *got, found);
        // Equal but for the order of the fields, which tells nothing.
        if (found.size() == before) return;
    } else if (expected && got && expected->is_array() && got->is_array()) {
        collectElements(place, *expected, *got, found);
    } else {
        found.push_back((place.empty() ? "the line" : place) + ": expected " + written(expected) +
                        ", got " + written(got));
    }
}

}  // namespace

std::vector<std::string> differences(const Json& expected, const Json& got) {
    std::vector<std::string> found;
    collect("", &expected, &got, found);
    return found;
}

}  // namespace orvanta::scenarios
