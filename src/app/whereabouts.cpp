#include "app/whereabouts.h"

#include <string_view>

#include "core/analyze_steps.h"
#include "core/kind_controls.h"
#include "questions/bank_reader.h"

namespace orvanta {

namespace {

std::string stepWords(std::size_t number, std::size_t count, std::string_view name) {
    return "Step " + std::to_string(number) + " of " + std::to_string(count) + ": " +
           std::string(name);
}

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
    return ", question " + std::to_string(number) + " of " + std::to_string(count);
}

std::string brainstormPlace(const Program& program) {
    constexpr std::size_t stepCount = 1 + countOf<StatementKind>;
    const auto kind = askedKind(program.frmMain);
    if (!kind) return stepWords(1, stepCount, "Name and module");
    return stepWords(static_cast<std::size_t>(*kind) + 2, stepCount, nameOfSeveral(*kind)) +
           questionWords(program, *kind);
}

std::string analyzePlace(const FrmMain& form) {
    AnalyzeStep shown = AnalyzeStep::SourceFiles;
    for (const AnalyzeStep step : allOf<AnalyzeStep>)
        if (const auto panel = stepControls[step].panel;
            panel && form.analyzeSteps.top() == &(form.*panel))
            shown = step;
    return stepWords(static_cast<std::size_t>(shown) + 1, countOf<AnalyzeStep>,
                     stepControls[shown].name);
}

PerKind<int> countsOf(const FrmMain& form, Session session) {
    PerKind<int> counts;
    for (const StatementKind kind : statementKinds)
        counts[kind] = listOf(form, session, kind).count();
    return counts;
}

}  // namespace

std::string countsInWords(const Whereabouts& whereabouts) {
    std::string words;
    for (const StatementKind kind : statementKinds) {
        if (!words.empty()) words += ", ";
        words.append(nameOfSeveral(kind)) += " " + std::to_string(whereabouts.counts[kind]);
    }
    return words;
}

std::string inWords(const Whereabouts& whereabouts) {
    return whereabouts.place + ". " + countsInWords(whereabouts) + ".";
}

Whereabouts whereaboutsOf(const Program& program) {
    const FrmMain& form = program.frmMain;
    const Panel* module = form.moduleScreens.top();
    if (module == &form.fraBrainstorm)
        return {brainstormPlace(program), countsOf(form, Session::Brainstorm)};
    if (module == &form.fraAnalyze) return {analyzePlace(form), countsOf(form, Session::Analyze)};
    return {};
}

}  // namespace orvanta
