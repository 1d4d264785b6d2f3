// error: .*(is not a constant expression|must be initialized by a constant expression)

#include "core/mapping_side.h"

using orvanta::MappingSide;

constexpr orvanta::PerSide<int> images{{
#ifdef CONTROL
    {MappingSide::Opportunities, 3},
    {MappingSide::Threats, 4},
#else
    {MappingSide::Threats, 4},
    {MappingSide::Opportunities, 3},
#endif
}};

static_assert(images[MappingSide::Threats] == 4);
