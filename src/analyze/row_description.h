#pragma once

#include <string>

#include "analyze/mapping_counts.h"

namespace orvanta {

/// What a row shows besides its text, in words: kind, place, who said it, what it is mapped
/// under, and what is mapped under it where the list has counts of that.
std::string describeRow(const StatementList& list, int position, const MappingCounts* counts);

}  // namespace orvanta
