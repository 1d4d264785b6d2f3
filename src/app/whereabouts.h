#pragma once

#include <string>

#include "core/session_state.h"
#include "core/statement_kind.h"

namespace orvanta {

/// Where a person stands in a wizard and what has been collected there.
struct Whereabouts {
    std::string place{};  // "Step 2 of 5: Strengths, question 1 of 7"; empty while none is open
    PerKind<int> counts;  // of the statements in the wizard's lists

    friend bool operator==(const Whereabouts&, const Whereabouts&) = default;
};

/// "Strengths 2, Weaknesses 0" and so on.
std::string countsInWords(const Whereabouts& whereabouts);
/// All of it for those who do not see the pictures.
std::string inWords(const Whereabouts& whereabouts);

/// Takes the same time however long the lists are.
Whereabouts whereaboutsOf(const Program& program);

}  // namespace orvanta
