#include "analyze/row_description.h"

#include "core/mapping_keys.h"
#include "core/statement_kind.h"

namespace orvanta {

namespace {

/// The name in a label "[name]: ".
std::string_view nameIn(std::string_view label) {
    const auto end = label.rfind(']');
    if (!label.starts_with('[') || end == std::string_view::npos) return label;
    return label.substr(1, end - 1);
}

std::string counted(int number, std::string_view one, std::string_view several) {
    return std::to_string(number) + ' ' + std::string(number == 1 ? one : several);
}

std::string parentOf(const StatementList& list, const Row& row) {
    const int parent = list.positionOf(mappingKeyFrom(row.key).parent);
    return parent ? ", under: " + list.row(parent).text : std::string();
}

}  // namespace

std::string describeRow(const StatementList& list, int position, const MappingCounts* counts) {
    const Row& row = list.row(position);
    std::string words;
    if (const auto kind = kindOfImage(row.image)) words = std::string(nameOf(*kind)) + ", ";
    words += "row " + std::to_string(position) + " of " + std::to_string(list.count());
    if (const auto name = nameIn(row.subItem); !name.empty())
        words.append(", said by ").append(name);
    if (!counts) return words;
    if (mappingKeyFrom(row.key).isMapped) return words + parentOf(list, row);
    const auto [strengths, weaknesses] = counts->of(row.key);
    return words + ", " + counted(strengths, "strength", "strengths") + " and " +
           counted(weaknesses, "weakness", "weaknesses") + " under it";
}

}  // namespace orvanta
