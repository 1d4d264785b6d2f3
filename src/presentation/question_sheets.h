#pragma once

#include <array>
#include <string>
#include <vector>

#include "core/modules.h"
#include "core/session_state.h"

namespace orvanta {

/// What is printed: the questions of one module, to be answered on paper.
struct QuestionSheets {
    std::string code;                             // of the module
    std::string title;                            // its name
    PerKind<std::vector<std::string>> questions;  // in bank order
};

/// The questions of a module as its bank holds them; what can't be read of the bank is missing.
QuestionSheets questionSheetsOf(const Program& program, const Module& module);

/// Prints the questions of the chosen module.
void printQuestions(Program& program);

}  // namespace orvanta
