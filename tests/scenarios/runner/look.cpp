#include "look.h"

#include <algorithm>

namespace orvanta::scenarios {

namespace {

const Json nothing = "nothing here";

bool isNumber(const std::string& word) {
    return !word.empty() && word.size() < 6 && std::ranges::all_of(word, [](char character) {
        return character >= '0' && character <= '9';
    });
}

}  // namespace

Json lookedAt(const Json& value, const std::string& path) {
    if (path.empty()) return value;
    const std::size_t point = path.find('.');
    const std::string word = path.substr(0, point);
    const std::string rest = point == std::string::npos ? "" : path.substr(point + 1);
    if (value.is_object()) {
        const auto member = value.find(word);
        return member == value.end() ? nothing : lookedAt(*member, rest);
    }
    if (!value.is_array()) return nothing;
    if (word == "*") {
        Json gathered = Json::array();
        for (const Json& element : value) gathered.push_back(lookedAt(element, rest));
        return gathered;
    }
    if (!isNumber(word) || std::stoul(word) >= value.size()) return nothing;
    return lookedAt(value[std::stoul(word)], rest);
}

}  // namespace orvanta::scenarios
