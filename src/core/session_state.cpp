#include "core/session_state.h"

#include <limits>

#include "core/constants.h"
#include "core/failures.h"
#include "core/kind_controls.h"
#include "core/mapping_side.h"
#include "core/modules.h"

namespace orvanta {

namespace {

constexpr PerKind<std::int32_t FrmMain::*> keyCounts{{
    {StatementKind::Strength, &FrmMain::keyCountS},
    {StatementKind::Weakness, &FrmMain::keyCountW},
    {StatementKind::Opportunity, &FrmMain::keyCountO},
    {StatementKind::Threat, &FrmMain::keyCountT},
}};

}  // namespace

Program::Program(Platform& platform, std::string appPath, std::string scratchPath)
    : platform(platform),
      appPath(std::move(appPath)),
      scratchPath(std::move(scratchPath)),
      frmMain(platform.fileDialogs) {}

std::int32_t& keyCount(FrmMain& form, StatementKind kind) { return form.*keyCounts[kind]; }

std::string getNextKey(Program& program, StatementKind kind) {
    std::int32_t& count = keyCount(program.frmMain, kind);
    if (count == std::numeric_limits<std::int32_t>::max()) throw Failure(ErrorNumber::Overflow);
    return letterOf(kind) + std::to_string(++count);
}

std::string getNextKey(Program& program, std::string_view section) {
    for (const StatementKind kind : statementKinds)
        if (section == std::string(1, letterOf(kind))) return getNextKey(program, kind);
    return {};
}

void resetKeys(Program& program) {
    for (const auto count : keyCounts) program.frmMain.*count = 0;
}

void clearJournal(Program& program) {
    program.frmMain.undoRecords.fill({});
    program.frmMain.redoRecords.fill({});
}

void clearBrainstorm(Program& program) {
    FrmMain& form = program.frmMain;
    form.txtName.setText({});
    for (const Module& module : modules) (form.*module.option).setOn(false);
    for (const StatementKind kind : statementKinds) {
        (form.*controlsOf(Session::Brainstorm, kind).box).setText({});
        listOf(form, Session::Brainstorm, kind).clear();
    }
    form.buttons[Button::BNext].label.setCaption(std::string(nextCaption));
    form.editFlag = false;
    form.cd.filter = brainstormFilter;
    clearJournal(program);
    resetKeys(program);
}

void clearAnalye(Program& program) {
    FrmMain& form = program.frmMain;
    for (const StatementKind kind : statementKinds) {
        listOf(form, Session::Analyze, kind).clear();
        forEachCompanion(form, kind, [](StatementList& list) { list.clear(); });
    }
    form.buttons[Button::ANext].label.setCaption(std::string(nextCaption));
    form.editAFlag = false;
    // Meant here too: an analysis begins by adding brainstorm files.
    form.cd.filter = brainstormFilter;
    clearJournal(program);
    resetKeys(program);
}

}  // namespace orvanta
