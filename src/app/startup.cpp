#include "app/startup.h"

#include "app/main_window.h"
#include "core/failures.h"
#include "core/files.h"
#include "core/remembered_paths.h"
#include "presentation/splash.h"
#include "questions/question_banks.h"

namespace orvanta {

namespace {

void makeFolderIfMissing(Program& program, const std::string& path) {
    if (!folderExists(program, path)) program.platform.disk.makeFolder(path);
}

}  // namespace

void startProgram(Program& program) {
    const BestEffort step;
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
    takeUpPath(program, brainstormPath);
    takeUpPath(program, analyzePath);
}

}  // namespace orvanta
