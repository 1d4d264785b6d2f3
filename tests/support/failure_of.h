#pragma once

#include "view/failure.h"

namespace orvanta::test {

/// The number of the failure that an act ends with; 0 if it goes through.
template <class Act>
int failureOf(Act act) {
    try {
        act();
    } catch (const Failure& failure) {
        return failure.number;
    }
    return 0;
}

}  // namespace orvanta::test
