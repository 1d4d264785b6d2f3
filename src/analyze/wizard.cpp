#include "analyze/wizard.h"

#include <algorithm>
#include <optional>

#include "analyze/source_files.h"
#include "analyze/statements.h"
#include "core/analyze_steps.h"
#include "core/answer_prompt.h"
#include "core/constants.h"
#include "core/failures.h"
#include "core/files.h"
#include "core/kind_controls.h"
#include "questions/narration.h"
#include "sessionfiles/saving.h"

namespace orvanta {

namespace {

constexpr AnalyzeStep firstReview = AnalyzeStep::Strengths, lastReview = AnalyzeStep::Threats;
constexpr AnalyzeStep firstMapping = AnalyzeStep::OpportunityMapping,
                      lastMapping = AnalyzeStep::ThreatMapping;

Panel& panelOf(FrmMain& form, AnalyzeStep step) { return form.*stepControls[step].panel; }

/// The first of some steps whose panel is visible; the source files where none is.
template <class Iterator>
AnalyzeStep firstStepShown(const FrmMain& form, Iterator first, Iterator last) {
    const auto shown = std::find_if(first, last, [&](AnalyzeStep step) {
        const auto panel = stepControls[step].panel;
        return panel && (form.*panel).isVisible();
    });
    return shown == last ? AnalyzeStep::SourceFiles : *shown;
}

constexpr auto& allSteps = allOf<AnalyzeStep>;

void enter(Program& program, AnalyzeStep step) {
    panelOf(program.frmMain, step).show();
    narrate(program, std::string(stepControls[step].clip));
    clearJournal(program);
}

void setNextCaption(FrmMain& form) {
    form.buttons[Button::ANext].label.setCaption(std::string(nextCaption));
}

bool finish(Program& program) {
    FrmMain& form = program.frmMain;
    form.cd.filter = analyzeFilter;
    if (!saveAnalyzeDialog(program)) return false;
    form.fraAnalyze.hide();
    clearJournal(program);
    return true;
}

void addTypedAnswer(Program& program, StatementKind kind) {
    TextBox& box = program.frmMain.*controlsOf(Session::Analyze, kind).box;
    if (wantsAnswerAdded(program, box)) addAnalyzeStatement(program, kind);
}

/// False if the wizard stays where it is.
bool goOnFrom(Program& program, AnalyzeStep step) {
    FrmMain& form = program.frmMain;
    if (step == lastMapping) return finish(program);
    if (const auto kind = stepControls[step].kind) addTypedAnswer(program, *kind);
    panelOf(form, step).hide();
    enter(program, following(step));
    if (step == lastReview) showUndoRedo(form, false);
    if (step == firstMapping) setNextCaption(form);
    return true;
}

bool startReview(Program& program) {
    if (!consolidateSourceFiles(program)) return false;
    enter(program, firstReview);
    return true;
}

void narrateOnReturn(Program& program, const StepControls& step) {
    if (program.frmMain.chkMute.isOn()) return;
    if (fileExists(program, narrationPath(program, std::string(step.clip))))
        playNarration(program, narrationPath(program, std::string(step.clipOnReturn)));
}

void goBackFrom(Program& program, AnalyzeStep step) {
    FrmMain& form = program.frmMain;
    panelOf(form, step).hide();
    if (step == firstReview) return form.picABack.hide();
    panelOf(form, preceding(step)).show();
    narrateOnReturn(program, stepControls[preceding(step)]);
    if (step == firstMapping) showUndoRedo(form, true);
    if (step == lastMapping) setNextCaption(form);
}

}  // namespace

void analyzeNext(Program& program) {
    reportingFailures(program.platform.messages, [&] {
        stopNarration(program);
        const AnalyzeStep step = firstStepShown(program.frmMain, allSteps.begin(), allSteps.end());
        const bool moved =
            step == AnalyzeStep::SourceFiles ? startReview(program) : goOnFrom(program, step);
        if (moved) program.frmMain.picABack.show();
    });
}

void analyzeBack(Program& program) {
    reportingFailures(program.platform.messages, [&] {
        stopNarration(program);
        // With two panels visible Next takes the first one and Back the last.
        const AnalyzeStep step =
            firstStepShown(program.frmMain, allSteps.rbegin(), allSteps.rend());
        if (step == AnalyzeStep::SourceFiles) return;
        goBackFrom(program, step);
        clearJournal(program);
    });
}

void analyzeQuit(Program& program) {
    reportingFailures(program.platform.messages, [&] {
        stopNarration(program);
        if (!promptSaveAnalyze(program)) return;
        program.frmMain.fraAnalyze.hide();
        showUndoRedo(program.frmMain, false);
    });
}

}  // namespace orvanta
