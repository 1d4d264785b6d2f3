#include "sessionfiles/saving.h"

#include "core/constants.h"
#include "core/failures.h"
#include "core/main_window.h"
#include "core/messages.h"
#include "core/modules.h"
#include "core/workspace.h"
#include "sessionfiles/analyze_file.h"
#include "sessionfiles/brainstorm_file.h"

namespace orvanta {

namespace {

/// What differs between the two sessions.
struct Session {
    bool FrmMain::*flag;
    std::string FrmMain::*lastPath;
    std::string_view setting, filter;
    Panel FrmMain::*panel;
    void (*save)(Program&, const std::string&, bool);
    std::string (Program::*temporaryFile)() const;
    std::string_view doneMessage, savePrompt;
    bool (*dialog)(Program&);
};

constexpr Session brainstormSession{&FrmMain::editFlag,
                                    &FrmMain::lastPathBSM,
                                    lastSavedPathBSM,
                                    brainstormFilter,
                                    &FrmMain::fraBrainstorm,
                                    saveBrainstormData,
                                    &Program::brainstormTemporaryFile,
                                    "Your brainstorming session completed.",
                                    "Do you want to save changes in brainstorm session?",
                                    saveBrainstormDialog};

constexpr Session analyzeSession{&FrmMain::editAFlag,
                                 &FrmMain::lastPathAZE,
                                 lastSavedPathAZE,
                                 analyzeFilter,
                                 &FrmMain::fraAnalyze,
                                 saveAnalyzeData,
                                 &Program::analyzeTemporaryFile,
                                 "Your analyze session completed.",
                                 "Do you want to save changes in analyze session?",
                                 saveAnalyzeDialog};

bool writeChosenFile(Program& program, const Session& session) {
    FrmMain& form = program.frmMain;
    form.cd.initialPath = form.*session.lastPath;
    form.cd.filter = session.filter;
    form.cd.fileName.clear();
    form.cd.showSave();
    const std::string path = form.cd.fileName;
    if (fileExists(program, path) &&
        !mayOverwrite(program.platform.messages, std::string(appTitle)))
        return false;
    rememberPath(program, session.setting, session.lastPath, path);
    session.save(program, path, false);
    return true;
}

bool saveDialog(Program& program, const Session& session) {
    FrmMain& form = program.frmMain;
    const CarryOn step;
    bool written = false;
    step([&] { written = writeChosenFile(program, session); });
    if (!written) return false;
    step([&] { deleteIfThere(program, (program.*session.temporaryFile)()); });
    inform(program.platform.messages, session.doneMessage);
    form.fraBrainstorm.hide();  // for both sessions; the Analyze wizard hides its own panel
    form.*session.flag = false;
    clearJournal(program);
    return true;
}

bool promptSave(Program& program, const Session& session) {
    const CarryOn step;
    FrmMain& form = program.frmMain;
    if (form.*session.flag) {
        const MessageAnswer answer =
            program.platform.messages.show({.text = std::string(session.savePrompt),
                                            .icon = MessageIcon::Question,
                                            .buttons = MessageButtons::YesNoCancel,
                                            .defaultAnswer = MessageAnswer::Yes});
        if (answer == MessageAnswer::Cancel) return false;
        if (answer == MessageAnswer::Yes && !session.dialog(program)) return false;
        form.*session.flag = false;
    }
    step([&] { deleteIfThere(program, (program.*session.temporaryFile)()); });
    return true;
}

}  // namespace

bool saveBrainstormDialog(Program& program) { return saveDialog(program, brainstormSession); }
bool saveAnalyzeDialog(Program& program) { return saveDialog(program, analyzeSession); }
bool promptSaveBrainstorm(Program& program) { return promptSave(program, brainstormSession); }
bool promptSaveAnalyze(Program& program) { return promptSave(program, analyzeSession); }

void openBrainstormFile(Program& program) {
    FrmMain& form = program.frmMain;
    const bool unsaved = form.editFlag, unsavedAnalysis = form.editAFlag;
    if (!promptSaveBrainstorm(program) || !promptSaveAnalyze(program)) return;
    const CarryOn step;
    const bool opened = step([&] {
        form.cd.initialPath = form.lastPathBSM;
        form.cd.filter = brainstormFilter;
        form.cd.fileName.clear();
        form.cd.showOpen();
        const std::string path = form.cd.fileName;
        rememberPath(program, lastSavedPathBSM, &FrmMain::lastPathBSM, path);
        clearJournal(program);
        openBrainstormModule(program);
        loadBrainstormData(program, path, "BS", false);
        for (const Module& module : modules) (form.*module.option).setEnabled(false);
    });
    if (opened) return;
    form.editFlag = unsaved;
    form.editAFlag = unsavedAnalysis;
}

void tickAutoSave(Program& program) {
    FrmMain& form = program.frmMain;
    if (!form.editFlag && !form.editAFlag) return;
    // A changed brainstorm session comes first, also when it is off the screen.
    const Session& session = form.editFlag ? brainstormSession : analyzeSession;
    if (!(form.*session.panel).isVisible()) return;
    const std::string path = (program.*session.temporaryFile)();
    session.save(program, path, true);
    if (form.autoSaveFailed || fileExists(program, path)) return;
    refuse(program.platform.messages,
           "Warning! Could not create autosave file. Auto Save feature is disabled.");
    form.autoSaveFailed = true;
}

}  // namespace orvanta
