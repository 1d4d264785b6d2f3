// error: static.assert.*a table has one row for each enumerator

#include "core/mapping_side.h"

using orvanta::MappingSide;

constexpr orvanta::PerSide<int> images{{
    {MappingSide::Opportunities, 3},
    {MappingSide::Threats, 4},
#ifndef CONTROL
    {MappingSide::Threats, 4},
#endif
}};

static_assert(images[MappingSide::Threats] == 4);
