#include "questions/clip_texts.h"

#include "core/analyze_steps.h"
#include "core/modules.h"
#include "core/text.h"
#include "questions/bank_reader.h"
#include "questions/clip_names.h"

namespace orvanta {

namespace {

void addText(std::vector<ClipText>& clips, std::string clip, std::string_view text) {
    const std::string_view spoken = trimBlanks(text);
    if (!spoken.empty()) clips.push_back({std::move(clip), std::string(spoken)});
}

void addModule(std::vector<ClipText>& clips, std::string_view code, const QuestionBanks& banks) {
    for (const StatementKind kind : statementKinds) {
        const BankList list = bankListOf(kind);
        for (int number = 1; number <= banks.*list.count; ++number)
            addText(clips, clipName(code, kind, number), questionAt(banks.*list.questions, number));
    }
}

}  // namespace

std::vector<ClipText> clipTexts(const Disk& disk, const std::string& appPath) {
    std::vector<ClipText> clips;
    QuestionBanks banks;
    for (const Module& module : modules) {
        loadQuestionBank(disk, bankPath(appPath, module.code), banks);
        addModule(clips, module.code, banks);
    }
    readAnalyzeHeadings(disk, appPath, banks.analyzeQuestions);
    for (const AnalyzeStep step : allOf<AnalyzeStep>)
        if (stepControls[step].heading)
            addText(clips, std::string(stepControls[step].clip),
                    banks.analyzeQuestions[headingIndexOf(step)]);
    return clips;
}

}  // namespace orvanta
