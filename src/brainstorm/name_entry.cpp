#include "brainstorm/name_entry.h"

#include <string_view>

namespace orvanta {

bool isAllowedInName(char character) {
    return std::string_view("<|>/\\:*?\"").find(character) == std::string_view::npos;
}

}  // namespace orvanta
