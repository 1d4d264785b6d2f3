#include "core/whereabouts.h"

#include <span>
#include <string_view>

#include "core/kind_controls.h"
#include "questions/question_banks.h"

namespace orvanta {

namespace {

struct Screen {
    Panel FrmMain::*panel;  // null: what the wizard begins with
    std::string_view name;
};

constexpr std::array<Screen, 5> brainstormScreens{{
    {nullptr, "Name and module"},
    {&FrmMain::fraStrength, nameOfSeveral(StatementKind::Strength)},
    {&FrmMain::fraWeakness, nameOfSeveral(StatementKind::Weakness)},
    {&FrmMain::fraOpportunity, nameOfSeveral(StatementKind::Opportunity)},
    {&FrmMain::fraThreats, nameOfSeveral(StatementKind::Threat)},
}};

constexpr std::array<Screen, 7> analyzeScreens{{
    {nullptr, "Source files"},
    {&FrmMain::fraASSummary, nameOfSeveral(StatementKind::Strength)},
    {&FrmMain::fraAWeakness, nameOfSeveral(StatementKind::Weakness)},
    {&FrmMain::fraAOpportunity, nameOfSeveral(StatementKind::Opportunity)},
    {&FrmMain::fraAThreats, nameOfSeveral(StatementKind::Threat)},
    {&FrmMain::fraAnalyzeOpportunity, "Mapping onto opportunities"},
    {&FrmMain::fraAnalyzeThreat, "Mapping onto threats"},
}};

std::string stepOn(const FrmMain& form, const PanelStack& stack, std::span<const Screen> screens) {
    std::size_t shown = 0;
    for (std::size_t i = 1; i < screens.size(); ++i)
        if (stack.top() == &(form.*screens[i].panel)) shown = i;
    return "Step " + std::to_string(shown + 1) + " of " + std::to_string(screens.size()) + ": " +
           std::string(screens[shown].name);
}

/// Empty where no question of a bank is on screen.
std::string questionOn(const Program& program) {
    const FrmMain& form = program.frmMain;
    for (const KindControls& kind : kindControls) {
        if (form.brainstormSteps.top() != &(form.*kind.questionPanel)) continue;
        const int count = program.questions.*bankListOf(kind.kind).count;
        if (form.questionStep < 1 || form.questionStep > count) return {};
        return ", question " + std::to_string(form.questionStep) + " of " + std::to_string(count);
    }
    return {};
}

std::array<int, 4> countsOf(const FrmMain& form, ListMember KindControls::*list) {
    std::array<int, 4> counts{};
    for (const KindControls& kind : kindControls)
        counts[indexOf(kind.kind)] = (form.*(kind.*list)).count();
    return counts;
}

}  // namespace

std::string countsInWords(const Whereabouts& whereabouts) {
    std::string words;
    for (const StatementKind kind : statementKinds) {
        if (!words.empty()) words += ", ";
        words.append(nameOfSeveral(kind)) +=
            " " + std::to_string(whereabouts.counts[indexOf(kind)]);
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
        return {stepOn(form, form.brainstormSteps, brainstormScreens) + questionOn(program),
                countsOf(form, &KindControls::brainstormList)};
    if (module == &form.fraAnalyze)
        return {stepOn(form, form.analyzeSteps, analyzeScreens),
                countsOf(form, &KindControls::analyzeList)};
    return {};
}

}  // namespace orvanta
