#pragma once

#include <string>
#include <string_view>

#include "core/statement_kind.h"

namespace orvanta {

/// The clip of a question of a module, numbered from 1.
inline std::string clipName(std::string_view code, StatementKind kind, int number) {
    return std::string(code) + '_' + letterOf(kind) + std::to_string(number);
}

}  // namespace orvanta
