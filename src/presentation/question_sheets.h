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
    std::string bankPath{};                       // the file that they come from
};

/// True if there is not one question.
bool isEmpty(const QuestionSheets& sheets);
/// The title as a file can be called in every system.
std::string documentNameOf(const QuestionSheets& sheets);

/// The questions of a module as its bank holds them; what can't be read of the bank is missing.
QuestionSheets questionSheetsOf(const Program& program, const Module& module);

/// Prints the questions of the chosen module.
void printQuestions(Program& program);

}  // namespace orvanta
