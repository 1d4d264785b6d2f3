#pragma once

#include <utility>

#include "view/notice.h"

namespace orvanta {

/// A dialog that can be closed once.
struct ModalForm {
    bool open = true;
    Notice closed;

    void close() {
        if (std::exchange(open, false)) closed();
    }
};

}  // namespace orvanta
