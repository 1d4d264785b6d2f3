#include "questions/question_banks.h"

#include "core/analyze_steps.h"
#include "questions/bank_reader.h"

namespace orvanta {

bool loadModuleQuestions(Program& program, std::string_view code) {
    return loadQuestionBank(program.platform.disk, bankPath(program.appPath, code),
                            program.questions);
}

void loadAnalyzeQuestions(Program& program) {
    try {
        auto& headings = program.questions.analyzeQuestions;
        readAnalyzeHeadings(program.platform.disk, program.appPath, headings);
        for (const AnalyzeStep step : allOf<AnalyzeStep>)
            if (const auto label = stepControls[step].heading)
                (program.frmMain.*label).setCaption(headings[headingIndexOf(step)]);
    } catch (const Failure& failure) {
        // The one report in the program that gives the description alone.
        program.platform.messages.show({.text = std::string(failure.description)});
    }
}

}  // namespace orvanta
