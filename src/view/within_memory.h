#pragma once

#include <new>

#include "view/failure.h"

namespace orvanta {

/// Does what takes as much memory as a file asks for. Fails with PathFileAccess where there is not
/// enough of it, so that a file can end the reading of itself but nothing more.
template <class Act>
auto withinMemory(Act act) {
    try {
        return act();
    } catch (const std::bad_alloc&) {
        throw Failure(ErrorNumber::PathFileAccess);
    }
}

}  // namespace orvanta
