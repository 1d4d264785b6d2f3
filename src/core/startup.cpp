#include "core/startup.h"

#include "core/constants.h"
#include "core/failures.h"
#include "core/main_window.h"
#include "core/workspace.h"
#include "presentation/splash.h"
#include "questions/narration.h"
#include "questions/question_banks.h"
#include "sessionfiles/saving.h"

namespace orvanta {

namespace {

void makeFolderIfMissing(Program& program, const std::string& path) {
    if (!folderExists(program, path)) program.platform.disk.makeFolder(path);
}

void takeUp(Program& program, std::string FrmMain::*member, std::string_view key) {
    std::string& path = program.frmMain.*member;
    if (path.empty()) path = program.platform.settings.read(settingsSection, key);
}

bool mayEnd(Program& program) {
    return promptSaveBrainstorm(program) && promptSaveAnalyze(program);
}

}  // namespace

void startProgram(Program& program) {
    const CarryOn step;
    step([&] { makeFolderIfMissing(program, program.scratchPath + pathSeparator + "System"); });
    // The window comes first and its folder second: an interrupted session is back on screen
    // before the splash, and while it loads workFolder is still empty.
    step([&] { loadMainWindow(program); });
    const std::string workFolder = program.platform.folders.documents() + pathSeparator + "My SWOT";
    step([&] { makeFolderIfMissing(program, workFolder); });
    program.workFolder = workFolder;
    step([&] { showSplash(program); });
    step([&] { loadAnalyzeQuestions(program); });
    program.frmMain.shown = true;
    program.frmMain.shownChanged();
}

void activateMainWindow(Program& program) {
    FrmMain& form = program.frmMain;
    takeUp(program, &FrmMain::lastPathBSM, lastSavedPathBSM);
    takeUp(program, &FrmMain::lastPathAZE, lastSavedPathAZE);
    if (form.lastPathBSM.empty()) form.lastPathBSM = program.workFolder;
    if (form.lastPathAZE.empty()) form.lastPathAZE = program.workFolder;
}

void quitProgram(Program& program) {
    if (mayEnd(program)) program.platform.lifetime.end();
}

bool closeMainWindow(Program& program) {
    stopNarration(program);
    if (!mayEnd(program)) return false;
    program.platform.lifetime.end();
    return true;
}

}  // namespace orvanta
