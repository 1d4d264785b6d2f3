#pragma once

#include <string>
#include <unordered_map>

#include "view/statement_list.h"

namespace orvanta {

/// How many strengths and weaknesses are mapped under each row of a mapping list. Kept in step
/// with the rows, so that asking takes the same time however long the list is.
class MappingCounts : public StatementListObserver {
public:
    struct Count {
        int strengths = 0, weaknesses = 0;

        friend bool operator==(const Count&, const Count&) = default;
    };

    /// The list must outlive the counts. Keys of its rows may not change.
    explicit MappingCounts(StatementList& list);

    Count of(const std::string& parentKey) const;

private:
    void rowInserted(int position) override { count(position, 1); }
    void rowAboutToBeRemoved(int position) override { count(position, -1); }
    void cleared() override { m_counts.clear(); }
    void count(int position, int change);

    const StatementList& m_list;
    std::unordered_map<std::string, Count> m_counts;  // by the parents' keys
};

}  // namespace orvanta
