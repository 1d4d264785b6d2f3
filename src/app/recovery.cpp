#include "app/recovery.h"

#include <algorithm>

#include "core/failures.h"
#include "core/files.h"
#include "core/kind_controls.h"
#include "core/mapping_side.h"
#include "core/modules.h"
#include "questions/bank_reader.h"
#include "questions/question_banks.h"
#include "sessionfiles/analyze_file.h"
#include "sessionfiles/brainstorm_file.h"

namespace orvanta {

namespace {

bool holdsBrainstorm(FrmMain& form) {
    return std::ranges::any_of(statementKinds, [&](StatementKind kind) {
        return listOf(form, Session::Brainstorm, kind).count() > 0;
    });
}

/// For opportunities and threats the mapping lists count.
bool holdsAnalysis(FrmMain& form) {
    return std::ranges::any_of(statementKinds, [&](StatementKind kind) {
        const auto side = sideOfParents(kind);
        return (side ? mappingList(form, *side) : listOf(form, Session::Analyze, kind)).count() > 0;
    });
}

void showRecovered(FrmMain& form, Session session) {
    (form.*sessionControls[session].panel).show();
    form.*sessionControls[session].editFlag = true;
    showUndoRedo(form, true);
}

void showRecoveredBrainstorm(Program& program) {
    const BestEffort step;
    FrmMain& form = program.frmMain;
    if (const Module* module = chosenModule(form)) {
        bool bankIsWhole = true;  // a bank that can't be read at all is passed over
        step([&] { bankIsWhole = loadModuleQuestions(program, module->code); });
        if (!bankIsWhole) return;
    }
    form.questionStep = 1;
    for (const StatementKind kind : statementKinds) {
        const auto& questions = program.questions.*bankListOf(kind).questions;
        step([&] { (form.*kindControls[kind].question).setCaption(questionAt(questions, 1)); });
    }
    showRecovered(form, Session::Brainstorm);
}

}  // namespace

void recoverSession(Program& program) {
    const BestEffort step;
    FrmMain& form = program.frmMain;
    if (fileExists(program, program.brainstormTemporaryFile())) {
        step([&] { loadBrainstormData(program, program.brainstormTemporaryFile(), "BS", true); });
        if (holdsBrainstorm(form)) showRecoveredBrainstorm(program);
        return;
    }
    if (!fileExists(program, program.analyzeTemporaryFile())) return;
    step([&] { loadAnalyzeData(program, program.analyzeTemporaryFile(), true); });
    if (holdsAnalysis(form)) showRecovered(form, Session::Analyze);
}

}  // namespace orvanta
