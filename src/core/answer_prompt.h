#pragma once

#include "core/session_state.h"

namespace orvanta {

/// Asks about an answer that was typed and not added. True if it is to be added; No empties the
/// box. Blanks count as an answer; an empty box is not asked about.
bool wantsAnswerAdded(Program& program, TextBox& box);

}  // namespace orvanta
