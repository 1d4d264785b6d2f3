#pragma once

#include <string>

#include "presentation/question_sheets.h"

namespace orvanta::test {

/// Sheets with so many questions of each kind, all of one text.
inline QuestionSheets sheetsWith(int questions, const std::string& text = "What do we do well?") {
    QuestionSheets sheets{"mp", "Marketing", {}};
    for (const StatementKind kind : statementKinds)
        for (int i = 1; i <= questions; ++i)
            sheets.questions[kind].push_back(std::string(1, letterOf(kind)) + std::to_string(i) +
                                             ": " + text);
    return sheets;
}

}  // namespace orvanta::test
