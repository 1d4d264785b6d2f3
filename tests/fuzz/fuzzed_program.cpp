#include "fuzzed_program.h"

#include <set>

#include "core/statement_lists.h"
#include "core/text.h"

namespace orvanta::fuzz {

namespace {

void requireSound(const StatementList& list) {
    std::set<std::string_view> keys;
    for (int position = 1; position <= list.count(); ++position) {
        const std::string& key = list.row(position).key;
        if (key.empty()) continue;
        require(keys.insert(key).second, "a key stands once in its list");
        require(list.positionOf(key) == position, "a row is found by its key where it stands");
    }
    require(list.selected() >= 0 && list.selected() <= list.count(),
            "what is selected is a row of the list");
}

}  // namespace

std::vector<std::string> textsOf(const StatementList& list) {
    std::vector<std::string> texts;
    for (int position = 1; position <= list.count(); ++position)
        texts.push_back(list.row(position).text);
    return texts;
}

void requireSoundLists(const FrmMain& form) {
    for (const ListMember member : statementLists) requireSound(form.*member);
}

std::string withLineEnds(std::string_view bytes, std::string_view end) {
    std::string result;
    LineSource lines(bytes);
    while (const auto line = lines.next()) result.append(*line).append(end);
    return result;
}

}  // namespace orvanta::fuzz
