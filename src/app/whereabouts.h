#pragma once

#include <optional>
#include <string>

#include "core/session_state.h"
#include "core/statement_kind.h"

namespace orvanta {

/// Where a person stands in a wizard and what has been collected there.
struct Whereabouts {
    int step = 0;  // of the open wizard, from 1; 0 while none is open
    int stepCount = 0;
    std::string stepName{};               // "Strengths"
    std::optional<StatementKind> kind{};  // that the step is about
    std::string question{};               // "question 1 of 7"; empty where none is asked
    PerKind<int> counts{};                // of the statements in the wizard's lists

    friend bool operator==(const Whereabouts&, const Whereabouts&) = default;
};

/// "Step 2 of 5: Strengths, question 1 of 7"; empty while no wizard is open.
std::string placeInWords(const Whereabouts& whereabouts);
/// "Strengths 2, Weaknesses 0" and so on.
std::string countsInWords(const Whereabouts& whereabouts);
/// All of it for those who do not see the pictures.
std::string inWords(const Whereabouts& whereabouts);

/// Takes the same time however long the lists are.
Whereabouts whereaboutsOf(const Program& program);

}  // namespace orvanta
