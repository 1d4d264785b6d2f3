#pragma once

#include <string_view>

#include "core/session_state.h"

namespace orvanta {

/// Reads the bank of a module into the session, as loadQuestionBank does.
bool loadModuleQuestions(Program& program, std::string_view code);

/// Reads the headings of the Analyze screens and shows them. A failure is told by its
/// description alone.
void loadAnalyzeQuestions(Program& program);

}  // namespace orvanta
