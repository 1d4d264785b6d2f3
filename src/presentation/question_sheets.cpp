#include "presentation/question_sheets.h"

#include <algorithm>

#include "core/failures.h"
#include "core/messages.h"
#include "core/text.h"
#include "questions/bank_reader.h"
#include "questions/narration.h"

namespace orvanta {

bool isEmpty(const QuestionSheets& sheets) {
    return std::ranges::all_of(statementKinds,
                               [&](StatementKind kind) { return sheets.questions[kind].empty(); });
}

std::string documentNameOf(const QuestionSheets& sheets) {
    constexpr std::string_view separators = "/\\:*?\"<>|";
    std::string name(trimBlanks(sheets.title));
    std::ranges::replace_if(
        name, [&](char character) { return separators.find(character) != separators.npos; }, '-');
    return name;
}

QuestionSheets questionSheetsOf(const Program& program, const Module& module) {
    QuestionBanks banks;    // a copy of its own: the wizard's questions stay as they are
    const BestEffort step;  // what can be read of a damaged bank is printed all the same
    const std::string bank = bankPath(program.appPath, module.code);
    step([&] { loadQuestionBank(program.platform.disk, bank, banks); });
    QuestionSheets sheets{std::string(module.code),
                          replaceAll((program.frmMain.*module.option).caption(), "&&", "&"),
                          {},
                          bank};
    for (const StatementKind kind : statementKinds) {
        const BankList list = bankListOf(kind);
        const auto count = static_cast<std::size_t>(banks.*list.count);
        for (std::size_t i = 0; i < count && i < (banks.*list.questions).size(); ++i)
            sheets.questions[kind].emplace_back(trimBlanks((banks.*list.questions)[i]));
    }
    return sheets;
}

void printQuestions(Program& program) {
    stopNarration(program);
    const Module* module = chosenModule(program.frmMain);
    if (!module) {
        refuse(program.platform.messages, noModuleMessage);
        return;
    }
    program.platform.questionPrinter.print(questionSheetsOf(program, *module));
}

}  // namespace orvanta
