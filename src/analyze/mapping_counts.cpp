#include "analyze/mapping_counts.h"

#include "core/mapping_keys.h"

namespace orvanta {

MappingCounts::MappingCounts(StatementList& list) : m_list(list) {
    for (int position = 1; position <= list.count(); ++position) count(position, 1);
    list.watch(*this);
}

MappingCounts::Count MappingCounts::of(const std::string& parentKey) const {
    const auto found = m_counts.find(parentKey);
    return found == m_counts.end() ? Count{} : found->second;
}

void MappingCounts::count(int position, int change) {
    const std::string& rowKey = m_list.row(position).key;
    const MappingKey key = mappingKeyFrom(rowKey);
    if (!key.isMapped) return;
    Count& count = m_counts[std::string(key.parent)];
    const bool strength = mappedKindOf(rowKey) == StatementKind::Strength;
    (strength ? count.strengths : count.weaknesses) += change;
}

}  // namespace orvanta
