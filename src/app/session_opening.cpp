#include "app/session_opening.h"

#include "core/analyze_steps.h"
#include "core/constants.h"
#include "core/failures.h"
#include "core/kind_controls.h"
#include "core/modules.h"
#include "core/remembered_paths.h"
#include "questions/narration.h"
#include "sessionfiles/analyze_file.h"
#include "sessionfiles/brainstorm_file.h"
#include "sessionfiles/saving.h"

namespace orvanta {

namespace {

/// Asks about unsaved changes, with the narration stopped; runs `open` if the person goes on.
template <class Open>
void openModule(Program& program, Open open) {
    reportingFailures(program.platform.messages, [&] {
        stopNarration(program);
        if (!mayLeaveSessions(program)) return;
        open(program.frmMain);
        showUndoRedo(program.frmMain, true);
    });
}

void setModulesEnabled(FrmMain& form, bool enabled) {
    for (const Module& module : modules) (form.*module.option).setEnabled(enabled);
}

void hideBrainstormSteps(FrmMain& form) {
    for (const KindControls& kind : kindControls) (form.*kind.questionPanel).hide();
}

void hideAnalyzeSteps(FrmMain& form) {
    for (const StepControls& step : stepControls)
        if (step.panel) (form.*step.panel).hide();
}

}  // namespace

void openBrainstormModule(Program& program) {
    openModule(program, [&](FrmMain& form) {
        clearBrainstorm(program);
        form.fraAnalyze.hide();
        hideBrainstormSteps(form);
        form.fraBrainstorm.show();
        form.picBBack.hide();
        setModulesEnabled(form, true);
        for (const KindControls& kind : kindControls) form.*kind.narrated = 0;
        form.txtName.giveFocus();
    });
}

void openAnalyzeModule(Program& program) {
    openModule(program, [&](FrmMain& form) {
        clearAnalye(program);
        form.fraBrainstorm.hide();
        hideAnalyzeSteps(form);
        form.fraAnalyze.show();
        form.picABack.hide();
        form.lstFiles.clear();
    });
}

void openBrainstormFile(Program& program) {
    FrmMain& form = program.frmMain;
    const bool unsaved = form.editFlag, unsavedAnalysis = form.editAFlag;
    if (!mayLeaveSessions(program)) return;
    const BestEffort step;
    const bool opened = step([&] {
        const std::string path = form.cd.askToOpen(brainstormFilter, form.lastPathBSM);
        rememberPath(program, brainstormPath, path);
        clearJournal(program);
        openBrainstormModule(program);
        loadBrainstormData(program, path, "BS", false);
        setModulesEnabled(form, false);
    });
    if (opened) return;
    form.editFlag = unsaved;
    form.editAFlag = unsavedAnalysis;
}

void openAnalyzeFile(Program& program) {
    FrmMain& form = program.frmMain;
    const bool unsaved = form.editAFlag;
    if (!promptSaveAnalyze(program)) return;
    const BestEffort step;
    const bool opened = step([&] {
        const std::string path = form.cd.askToOpen(analyzeFilter, form.lastPathAZE);
        rememberPath(program, analyzePath, path);
        clearAnalye(program);
        loadAnalyzeData(program, path, false);
        form.fraASSummary.show();
        form.editAFlag = false;
    });
    if (!opened) form.editAFlag = unsaved;
}

}  // namespace orvanta
