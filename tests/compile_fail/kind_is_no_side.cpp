// A table by kind is not read by side.
// error: (no match for|no viable overloaded) .*operator\[\]

#include "core/kind_controls.h"
#include "core/mapping_side.h"

#ifdef CONTROL
constexpr auto which = orvanta::StatementKind::Threat;
#else
constexpr auto which = orvanta::MappingSide::Threats;
#endif

static_assert(orvanta::kindWords[which].letter == 'T');
