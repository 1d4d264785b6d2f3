#include "app/whereabouts.h"

#include <string_view>

#include "core/analyze_steps.h"
#include "core/kind_controls.h"
#include "questions/bank_reader.h"

namespace orvanta {

namespace {

/// The kind whose questions are asked; none on the module choice screen.
std::optional<StatementKind> askedKind(const FrmMain& form) {
    for (const StatementKind kind : statementKinds)
        if (form.brainstormSteps.top() == &(form.*kindControls[kind].questionPanel)) return kind;
    return std::nullopt;
}

/// Empty where no question of a bank is on screen.
std::string questionWords(const Program& program, StatementKind kind) {
    const int number = program.frmMain.questionStep;
    const int count = program.questions.*bankListOf(kind).count;
    if (number < 1 || number > count) return {};
    return "question " + std::to_string(number) + " of " + std::to_string(count);
}

Whereabouts brainstormPlace(const Program& program) {
    constexpr int stepCount = 1 + static_cast<int>(countOf<StatementKind>);
    Whereabouts place{.step = 1, .stepCount = stepCount, .stepName = "Name and module"};
    place.kind = askedKind(program.frmMain);
    if (!place.kind) return place;
    place.step = static_cast<int>(*place.kind) + 2;
    place.stepName = nameOfSeveral(*place.kind);
    place.question = questionWords(program, *place.kind);
    return place;
}

/// The kind that an Analyze step weeds or maps onto; none for the source files.
std::optional<StatementKind> kindOf(const StepControls& step) {
    if (step.side) return sideControls[*step.side].parentKind;
    return step.kind;
}

Whereabouts analyzePlace(const FrmMain& form) {
    AnalyzeStep shown = AnalyzeStep::SourceFiles;
    for (const AnalyzeStep step : allOf<AnalyzeStep>)
        if (const auto panel = stepControls[step].panel;
            panel && form.analyzeSteps.top() == &(form.*panel))
            shown = step;
    return {.step = static_cast<int>(shown) + 1,
            .stepCount = static_cast<int>(countOf<AnalyzeStep>),
            .stepName = std::string(stepControls[shown].name),
            .kind = kindOf(stepControls[shown])};
}

PerKind<int> countsOf(const FrmMain& form, Session session) {
    PerKind<int> counts;
    for (const StatementKind kind : statementKinds)
        counts[kind] = listOf(form, session, kind).count();
    return counts;
}

}  // namespace

std::string placeInWords(const Whereabouts& whereabouts) {
    if (whereabouts.step == 0) return {};
    const std::string asked = whereabouts.question.empty() ? "" : ", " + whereabouts.question;
    return "Step " + std::to_string(whereabouts.step) + " of " +
           std::to_string(whereabouts.stepCount) + ": " + whereabouts.stepName + asked;
}

std::string countsInWords(const Whereabouts& whereabouts) {
    std::string words;
    for (const StatementKind kind : statementKinds) {
        if (!words.empty()) words += ", ";
        words.append(nameOfSeveral(kind)) += " " + std::to_string(whereabouts.counts[kind]);
    }
    return words;
}

std::string inWords(const Whereabouts& whereabouts) {
    return placeInWords(whereabouts) + ". " + countsInWords(whereabouts) + ".";
}

Whereabouts whereaboutsOf(const Program& program) {
    const FrmMain& form = program.frmMain;
    const Panel* module = form.moduleScreens.top();
    if (!module) return {};
    const bool brainstorming = module == &form.fraBrainstorm;
    Whereabouts place = brainstorming ? brainstormPlace(program) : analyzePlace(form);
    place.counts = countsOf(form, brainstorming ? Session::Brainstorm : Session::Analyze);
    return place;
}

}  // namespace orvanta
