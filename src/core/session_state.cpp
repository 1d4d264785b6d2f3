#include "core/session_state.h"

#include <limits>

#include "core/constants.h"
#include "core/failures.h"
#include "core/kind_controls.h"
#include "core/modules.h"

namespace orvanta {

namespace {

constexpr std::array<std::int32_t FrmMain::*, 4> keyCounts{
    &FrmMain::keyCountS, &FrmMain::keyCountW, &FrmMain::keyCountO, &FrmMain::keyCountT};

constexpr std::array<StatementList FrmMain::*, 10> analyzeLists{
    &FrmMain::lvAStrength,   &FrmMain::lvAWeakness,  &FrmMain::lvAOpportunity, &FrmMain::lvAThreat,
    &FrmMain::lvOpportunity, &FrmMain::lvStrengthOp, &FrmMain::lvWeaknessOp,   &FrmMain::lvThreat,
    &FrmMain::lvStrengthTh,  &FrmMain::lvWeaknessTh};

}  // namespace

const std::string& questionAt(const std::vector<std::string>& questions, int number) {
    if (number < 1 || number > static_cast<int>(questions.size()))
        throw Failure(ErrorNumber::SubscriptOutOfRange);
    return questions[static_cast<std::size_t>(number) - 1];
}

Program::Program(Platform& platform, std::string appPath, std::string scratchPath)
    : platform(platform),
      appPath(std::move(appPath)),
      scratchPath(std::move(scratchPath)),
      frmMain(platform.fileDialogs) {}

std::int32_t& keyCount(FrmMain& form, StatementKind kind) { return form.*keyCounts[indexOf(kind)]; }

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
    for (const KindControls& controls : kindControls) {
        (form.*controls.answerBox).setText({});
        (form.*controls.brainstormList).clear();
    }
    form.buttons[Button::BNext].label.setCaption("Next>>");
    form.editFlag = false;
    form.cd.filter = brainstormFilter;
    clearJournal(program);
    resetKeys(program);
}

void clearAnalye(Program& program) {
    FrmMain& form = program.frmMain;
    for (const auto list : analyzeLists) (form.*list).clear();
    form.buttons[Button::ANext].label.setCaption("Next>>");
    form.editAFlag = false;
    // Meant here too: an analysis begins by adding brainstorm files.
    form.cd.filter = brainstormFilter;
    clearJournal(program);
    resetKeys(program);
}

}  // namespace orvanta
