// A type size is no length on the design grid: neither stands where the other is wanted.
// error: (cannot|could not) convert .*Points.* to .*Twips|no viable conversion from .*Points

#include "view/units.h"

constexpr orvanta::Points size{9.75};

#ifdef CONTROL
constexpr orvanta::Twips height{size.value};
#else
constexpr orvanta::Twips height = size;
#endif

static_assert(height.value > 0);
