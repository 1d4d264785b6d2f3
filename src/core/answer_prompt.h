#pragma once

#include <optional>
#include <string>

#include "core/session_state.h"

namespace orvanta {

/// Asks about an answer that was typed and not added. True if it is to be added; No empties the
/// box. Blanks count as an answer; an empty box is not asked about.
bool wantsAnswerAdded(Program& program, TextBox& box);

/// The answer in a kind's box without blanks at its ends. Where nothing is left of it the person
/// is told, gets the keyboard back in the box, and there is none.
std::optional<std::string> answerIn(Program& program, TextBox& box, StatementKind kind);

/// Makes the box ready for the next answer.
void emptyForNextAnswer(TextBox& box);

}  // namespace orvanta
