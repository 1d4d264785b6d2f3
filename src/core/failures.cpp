#include "core/failures.h"

#include "core/messages.h"

namespace orvanta {

void reportFailure(MessageBoxes& messages, const Failure& failure) {
    refuse(messages,
           "[" + std::to_string(failure.number) + "] " + std::string(failure.description));
}

}  // namespace orvanta
