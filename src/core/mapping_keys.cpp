#include "core/mapping_keys.h"

namespace orvanta {

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

void setTextOfMappedRows(StatementList& mappingList, std::string_view childKey,
                         const std::string& text) {
    for (int position = 1; position <= mappingList.count(); ++position) {
        const MappingKey key = mappingKeyFrom(mappingList.row(position).key);
        if (key.isMapped && key.child == childKey) mappingList.setText(position, text);
    }
}

void setTextOfKey(StatementList& list, std::string_view key, const std::string& text) {
    for (int position = 1; position <= list.count(); ++position)
        if (list.row(position).key == key) list.setText(position, text);
}

}  // namespace orvanta
