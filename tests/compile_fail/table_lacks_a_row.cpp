// A fifth kind without a row of its own in the tables.
// error: static.assert.*a table has one row for each enumerator

#include <string_view>

#include "core/per_enum.h"

enum class Kind {
    Strength,
    Weakness,
#ifndef CONTROL
    Wish,
#endif
    Count
};

constexpr orvanta::PerEnum<Kind, std::string_view> names{{
    {Kind::Strength, "Strength"},
    {Kind::Weakness, "Weakness"},
}};

static_assert(names[Kind::Weakness] == "Weakness");
