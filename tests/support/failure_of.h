#pragma once

#include "view/failure.h"

namespace orvanta::test {

// What the numbered failures carry.
constexpr int noError = 0, invalidCall = 5, subscriptOutOfRange = 9, fileNotFound = 53,
              diskFull = 61, permissionDenied = 70, pathFileAccess = 75, pathNotFound = 76,
              indexOutOfBounds = 35600, keyNotUnique = 35602;

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
