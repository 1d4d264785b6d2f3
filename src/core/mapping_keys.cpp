#include "core/mapping_keys.h"

namespace orvanta {

namespace {

/// Position of the first row, from this position on, whose key ends so and fits; 0 if there is
/// none.
template <class Fits>
int findKey(const StatementList& list, std::string_view ending, int from, Fits fits) {
    int position = list.findKeyEnding(ending, from);
    while (position != 0 && !fits(list.row(position).key))
        position = list.findKeyEnding(ending, position + 1);
    return position;
}

}  // namespace

MappingKey mappingKeyFrom(std::string_view key) {
    const auto cut = key.find('-');
    if (cut == std::string_view::npos || key.find('-', cut + 1) != std::string_view::npos)
        return {false, {}, {}};
    return {true, key.substr(0, cut), key.substr(cut + 1)};
}

StatementKind mappedKindOf(std::string_view key) {
    const auto cut = key.find('-');
    const bool strength = cut != std::string_view::npos && key.substr(cut + 1).starts_with('S');
    return strength ? StatementKind::Strength : StatementKind::Weakness;
}

std::string mappingRowKey(std::string_view parent, std::string_view child) {
    return std::string(parent).append("-").append(child);
}

bool hasMappedRows(const StatementList& mappingList, std::string_view parentKey) {
    const std::string start = std::string(parentKey) + "-";
    for (int position = 1; position <= mappingList.count(); ++position)
        if (mappingList.row(position).key.find(start) != std::string::npos) return true;
    return false;
}

int findMappedRow(const StatementList& mappingList, std::string_view childKey, int from) {
    return findKey(mappingList, childKey, from, [&](std::string_view rowKey) {
        const MappingKey key = mappingKeyFrom(rowKey);
        return key.isMapped && key.child == childKey;
    });
}

int findTopRow(const StatementList& mappingList, std::string_view key, int from) {
    return findKey(mappingList, key, from, [&](std::string_view rowKey) { return rowKey == key; });
}

void setTextOfMappedRows(StatementList& mappingList, std::string_view childKey,
                         const std::string& text) {
    for (int position = 0; (position = findMappedRow(mappingList, childKey, position + 1)) != 0;)
        mappingList.setText(position, text);
}

void setTextOfTopRows(StatementList& mappingList, std::string_view key, const std::string& text) {
    for (int position = 0; (position = findTopRow(mappingList, key, position + 1)) != 0;)
        mappingList.setText(position, text);
}

}  // namespace orvanta
