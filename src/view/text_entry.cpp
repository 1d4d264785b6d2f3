#include "view/text_entry.h"

#include <algorithm>
#include <cassert>

#include "view/windows1252.h"

namespace orvanta {

namespace {

/// How many characters ahead of the cursor were not there before.
std::size_t lengthEntered(std::string_view before, const EnteredText& now) {
    const std::size_t behind = now.text.size() - now.cursor;
    const std::size_t most = before.size() > behind ? before.size() - behind : 0;
    const std::string_view ahead = std::string_view(now.text).substr(0, now.cursor);
    const auto shared = std::ranges::mismatch(ahead, before.substr(0, most)).in1;
    return static_cast<std::size_t>(ahead.end() - shared);
}

}  // namespace

std::string singleLineFrom(std::string_view utf8) {
    std::string line;
    char before = 0;
    for (const char byte : windows1252From(utf8)) {
        const bool secondOfPair = byte == '\n' && before == '\r';
        before = byte;
        if (!secondOfPair) line += byte == '\r' || byte == '\n' ? ' ' : byte;
    }
    return line;
}

EnteredText withinLimit(std::string_view before, EnteredText now, std::size_t limit) {
    assert(now.cursor <= now.text.size());
    const bool grew = now.text.size() > before.size();
    if (limit == 0 || now.text.size() <= limit || !grew) return now;
    const std::size_t cut = std::min(lengthEntered(before, now), now.text.size() - limit);
    now.cursor -= cut;
    now.text.erase(now.cursor, cut);
    return now;
}

}  // namespace orvanta
