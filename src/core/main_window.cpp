#include "core/main_window.h"

#include <algorithm>
#include <initializer_list>

#include "core/constants.h"
#include "core/failures.h"
#include "core/kind_controls.h"
#include "core/modules.h"
#include "core/workspace.h"
#include "questions/narration.h"
#include "questions/question_banks.h"
#include "sessionfiles/analyze_file.h"
#include "sessionfiles/brainstorm_file.h"
#include "sessionfiles/saving.h"

namespace orvanta {

namespace {

/// The order on screen, which is not the one in which the options are tested.
constexpr std::array<Option FrmMain::*, 5> offeredOrder{
    &FrmMain::optGBS, &FrmMain::optMP, &FrmMain::optSBD, &FrmMain::optPSD, &FrmMain::optHRP};
constexpr Twips optionSpacing{360};

const Module& moduleOf(Option FrmMain::*option) {
    return *std::ranges::find(modules, option, &Module::option);
}

void offerModules(Program& program) {
    FrmMain& form = program.frmMain;
    Twips top = form.optGBS.bounds().top;
    for (const auto member : offeredOrder) {
        if (!fileExists(program, bankPath(program.appPath, moduleOf(member).code))) continue;
        Option& option = form.*member;
        option.setVisible(true);
        if (&option != &form.optGBS) {  // that one keeps its place
            Bounds bounds = option.bounds();
            bounds.top = top;
            option.setBounds(bounds);
        }
        top = top + optionSpacing;
    }
}

bool holdsRows(const FrmMain& form, std::initializer_list<StatementList FrmMain::*> lists) {
    return std::ranges::any_of(lists, [&](const auto list) { return (form.*list).count() > 0; });
}

void showRecoveredBrainstorm(Program& program) {
    const CarryOn step;
    FrmMain& form = program.frmMain;
    if (const Module* module = chosenModule(form)) {
        bool bankIsWhole = true;  // a bank that can't be read at all is passed over
        step([&] { bankIsWhole = loadModuleQuestions(program, module->code); });
        if (!bankIsWhole) return;
    }
    form.questionStep = 1;
    for (const KindControls& controls : kindControls) {
        const auto& questions = program.questions.*bankListOf(controls.kind).questions;
        step([&] { (form.*controls.question).setCaption(questionAt(questions, 1)); });
    }
    form.fraBrainstorm.show();
    form.editFlag = true;
    showUndoRedo(form, true);
}

void recoverSession(Program& program) {
    const CarryOn step;
    FrmMain& form = program.frmMain;
    if (fileExists(program, program.brainstormTemporaryFile())) {
        step([&] { loadBrainstormData(program, program.brainstormTemporaryFile(), "BS", true); });
        if (holdsRows(form, {&FrmMain::lvBStrength, &FrmMain::lvBWeakness, &FrmMain::lvBOpportunity,
                             &FrmMain::lvBThreat}))
            showRecoveredBrainstorm(program);
        return;
    }
    if (!fileExists(program, program.analyzeTemporaryFile())) return;
    step([&] { loadAnalyzeData(program, program.analyzeTemporaryFile(), true); });
    if (!holdsRows(form, {&FrmMain::lvAStrength, &FrmMain::lvAWeakness, &FrmMain::lvOpportunity,
                          &FrmMain::lvThreat}))
        return;
    form.fraAnalyze.show();
    form.editAFlag = true;
    showUndoRedo(form, true);
}

void hideAll(FrmMain& form, std::initializer_list<Panel FrmMain::*> panels) {
    for (const auto panel : panels) (form.*panel).hide();
}

}  // namespace

void loadMainWindow(Program& program) {
    FrmMain& form = program.frmMain;
    form.autoSaveFailed = false;
    shrinkForLargeFonts(form, program.platform.screen.twipsPerPixel());
    form.caption = appTitle;
    form.captionChanged();
    offerModules(program);
    recoverSession(program);
}

void openBrainstormModule(Program& program) {
    reportingFailures(program.platform.messages, [&] {
        FrmMain& form = program.frmMain;
        stopNarration(program);
        if (!promptSaveBrainstorm(program) || !promptSaveAnalyze(program)) return;
        clearBrainstorm(program);
        hideAll(form, {&FrmMain::fraAnalyze, &FrmMain::fraStrength, &FrmMain::fraWeakness,
                       &FrmMain::fraOpportunity, &FrmMain::fraThreats});
        form.fraBrainstorm.show();
        form.picBBack.hide();
        showUndoRedo(form, true);
        for (const Module& module : modules) (form.*module.option).setEnabled(true);
        form.narratedStrength = form.narratedWeakness = 0;
        form.narratedOpportunity = form.narratedThreat = 0;
        form.txtName.giveFocus();
    });
}

void openAnalyzeModule(Program& program) {
    reportingFailures(program.platform.messages, [&] {
        FrmMain& form = program.frmMain;
        stopNarration(program);
        if (!promptSaveBrainstorm(program) || !promptSaveAnalyze(program)) return;
        clearAnalye(program);
        hideAll(form, {&FrmMain::fraBrainstorm, &FrmMain::fraAnalyzeThreat,
                       &FrmMain::fraAnalyzeOpportunity, &FrmMain::fraASSummary,
                       &FrmMain::fraAWeakness, &FrmMain::fraAOpportunity, &FrmMain::fraAThreats});
        form.fraAnalyze.show();
        form.picABack.hide();
        showUndoRedo(form, true);
        form.lstFiles.clear();
    });
}

void showUndoRedo(FrmMain& form, bool visible) {
    form.cmdUndo.setVisible(visible);
    form.cmdRedo.setVisible(visible);
}

}  // namespace orvanta
