#pragma once

#include <cstdint>
#include <limits>

#include "view/platform.h"
#include "view/within_memory.h"

namespace orvanta {

// The three ways of dealing with a failure. A routine that holds neither of the first two
// passes a failure on to its caller. Too little memory is a failure like any other: the session in
// it must not end with the work that asked for more.

/// Shows the message of a failure, as "[53] File not found".
void reportFailure(MessageBoxes& messages, const Failure& failure);

/// Runs the steps up to the first failure and reports that one. What was done stands.
template <class Steps>
void reportingFailures(MessageBoxes& messages, Steps steps) {
    try {
        withinMemory(steps);
    } catch (const Failure& failure) {
        reportFailure(messages, failure);
    }
}

/// At the edge: runs what an event leads to. A failure that nothing has caught by then ends the
/// event alone.
template <class Steps>
void endingEventOnFailure(Lifetime& lifetime, Steps steps) {
    try {
        withinMemory(steps);
    } catch (const Failure& failure) {
        lifetime.reportUnhandled(failure);
    }
}

/// Runs each step that it is given; a failing one is passed over and nothing is said.
class BestEffort {
public:
    /// True if the step went through.
    template <class Step>
    bool operator()(Step step) const {
        try {
            withinMemory(step);
            return true;
        } catch (const Failure&) {
            return false;
        }
    }
};

/// The value in a narrower type; fails with Overflow where it does not fit.
template <class Narrow, class Wide>
Narrow narrowed(Wide value) {
    if (value > std::numeric_limits<Narrow>::max()) throw Failure(ErrorNumber::Overflow);
    return static_cast<Narrow>(value);
}

}  // namespace orvanta
