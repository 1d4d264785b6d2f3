#include "analyze/wizard.h"

#include <algorithm>

#include "analyze/source_files.h"
#include "analyze/statements.h"
#include "core/answer_prompt.h"
#include "core/constants.h"
#include "core/failures.h"
#include "core/kind_controls.h"
#include "core/main_window.h"
#include "core/workspace.h"
#include "questions/narration.h"
#include "sessionfiles/analyze_file.h"
#include "sessionfiles/saving.h"

namespace orvanta {

namespace {

/// One of the six screens behind the source files, in the order of the wizard.
struct Step {
    Panel FrmMain::*panel;
    std::string_view clip;        // spoken when the step comes up
    const KindControls* reviews;  // the statements weeded here; null on the mapping steps
};

constexpr std::array<Step, 6> steps{{
    {&FrmMain::fraASSummary, analyzeClips[0], &controlsOf(StatementKind::Strength)},
    {&FrmMain::fraAWeakness, analyzeClips[1], &controlsOf(StatementKind::Weakness)},
    {&FrmMain::fraAOpportunity, analyzeClips[2], &controlsOf(StatementKind::Opportunity)},
    {&FrmMain::fraAThreats, analyzeClips[3], &controlsOf(StatementKind::Threat)},
    {&FrmMain::fraAnalyzeOpportunity, analyzeClips[4], nullptr},
    {&FrmMain::fraAnalyzeThreat, analyzeClips[5], nullptr},
}};

constexpr std::size_t lastStatementStep = 3;
constexpr std::size_t opportunityMappingStep = 4;

bool isShown(const FrmMain& form, const Step& step) { return (form.*step.panel).isVisible(); }

void enter(Program& program, const Step& step) {
    (program.frmMain.*step.panel).show();
    narrate(program, std::string(step.clip));
    clearJournal(program);
}

void setNextCaption(FrmMain& form) { form.buttons[Button::ANext].label.setCaption("Next>>"); }

bool finish(Program& program) {
    FrmMain& form = program.frmMain;
    form.cd.filter = analyzeFilter;
    if (!saveAnalyzeDialog(program)) return false;
    form.fraAnalyze.hide();
    clearJournal(program);
    return true;
}

/// False if the wizard stays where it is.
bool goOnFrom(Program& program, std::size_t index) {
    FrmMain& form = program.frmMain;
    if (index + 1 == steps.size()) return finish(program);
    const Step& step = steps[index];
    if (step.reviews && wantsAnswerAdded(program, form.*step.reviews->reviewBox))
        addAnalyzeStatement(program, step.reviews->kind);
    (form.*step.panel).hide();
    enter(program, steps[index + 1]);
    if (index == lastStatementStep) showUndoRedo(form, false);
    if (index == opportunityMappingStep) setNextCaption(form);
    return true;
}

bool startReview(Program& program) {
    if (!consolidateSourceFiles(program)) return false;
    enter(program, steps.front());
    return true;
}

/// Going back from the opportunity mapping tests for one clip and plays another. Meant so.
void narrateThreatsOnReturn(Program& program) {
    if (program.frmMain.chkMute.isOn()) return;
    const auto pathOf = [&](const Step& step) {
        return narrationPath(program, std::string(step.clip));
    };
    if (fileExists(program, pathOf(steps[lastStatementStep])))
        playNarration(program, pathOf(steps.back()));
}

void goBackFrom(Program& program, std::size_t index) {
    FrmMain& form = program.frmMain;
    (form.*steps[index].panel).hide();
    if (index == 0) return form.picABack.hide();
    const Step& previous = steps[index - 1];
    (form.*previous.panel).show();
    if (index == opportunityMappingStep) {
        narrateThreatsOnReturn(program);
        showUndoRedo(form, true);
        return;
    }
    narrate(program, std::string(previous.clip));
    if (index + 1 == steps.size()) setNextCaption(form);
}

}  // namespace

void analyzeNext(Program& program) {
    reportingFailures(program.platform.messages, [&] {
        stopNarration(program);
        const FrmMain& form = program.frmMain;
        const auto shown =
            std::ranges::find_if(steps, [&](const Step& step) { return isShown(form, step); });
        const bool moved = shown == steps.end()
                               ? startReview(program)
                               : goOnFrom(program, static_cast<std::size_t>(shown - steps.begin()));
        if (moved) program.frmMain.picABack.show();
    });
}

void analyzeBack(Program& program) {
    reportingFailures(program.platform.messages, [&] {
        stopNarration(program);
        for (std::size_t index = steps.size(); index-- > 0;) {
            if (!isShown(program.frmMain, steps[index])) continue;
            goBackFrom(program, index);
            clearJournal(program);
            return;
        }
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

void openAnalyzeFile(Program& program) {
    FrmMain& form = program.frmMain;
    const bool unsaved = form.editAFlag;
    if (!promptSaveAnalyze(program)) return;
    const CarryOn step;
    const bool opened = step([&] {
        form.cd.initialPath = form.lastPathAZE;
        form.cd.filter = analyzeFilter;
        form.cd.fileName.clear();
        form.cd.showOpen();
        rememberPath(program, lastSavedPathAZE, &FrmMain::lastPathAZE, form.cd.fileName);
        clearAnalye(program);
        loadAnalyzeData(program, form.cd.fileName, false);
        form.fraASSummary.show();
        form.editAFlag = false;
    });
    if (!opened) form.editAFlag = unsaved;
}

}  // namespace orvanta
