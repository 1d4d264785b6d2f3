#include "desktop/main_layout.h"

#include <algorithm>

#include "core/analyze_steps.h"
#include "core/design_grid.h"
#include "core/kind_controls.h"

namespace orvanta::desktop {

namespace {

constexpr Twips widestText = gridLength(760), widestBox = gridLength(900);

bool isStep(const FrmMain& form, const PanelStack* stack) {
    return stack == &form.brainstormSteps || stack == &form.analyzeSteps;
}

/// Its three lists share the whole width.
bool isMapping(const FrmMain& form, const Panel& panel) {
    return std::ranges::any_of(stepControls, [&](const StepControls& step) {
        return step.side && &(form.*step.panel) == &panel;
    });
}

bool hasStack(const Control& control) {
    return control.is<Panel>() && static_cast<const Panel&>(control).stack();
}

/// True for what a person works at on a step, which is neither its panel nor the row at its foot.
bool isContent(const FrmMain& form, const Control& control) {
    const Panel* panel = control.container();
    if (!panel) return false;
    if (isStep(form, panel->stack())) return !isMapping(form, *panel);
    return isStep(form, control.coveredBy()) && !hasStack(control);
}

}  // namespace

bool isHeading(const FrmMain& form, const Control& control) {
    const auto isOf = [&](StatementKind kind) {
        return &(form.*kindControls[kind].question) == &control;
    };
    const auto isAt = [&](const StepControls& step) {
        return step.heading && &(form.*step.heading) == &control;
    };
    return &form.Label16 == &control || std::ranges::any_of(statementKinds, isOf) ||
           std::ranges::any_of(stepControls, isAt);
}

Reach reachOf(const FrmMain& form, const Control& control) {
    Reach reach;
    if (isContent(form, control)) reach.growth = widestBox - form.lvBStrength.bounds().width;
    if (control.is<Label>() && control.container()) reach.width = widestText;
    return reach;
}

}  // namespace orvanta::desktop
