#include "sessionfiles/saving.h"

#include "core/constants.h"
#include "core/failures.h"
#include "core/files.h"
#include "core/messages.h"
#include "core/remembered_paths.h"
#include "core/session.h"
#include "sessionfiles/analyze_file.h"
#include "sessionfiles/brainstorm_file.h"

namespace orvanta {

namespace {

/// What differs between the two sessions.
struct SavedSession {
    RememberedPath path;
    std::string_view filter;
    void (*save)(Program&, const std::string&, bool);
    std::string (Program::*temporaryFile)() const;
    std::string_view doneMessage, savePrompt;
};

constexpr PerSession<SavedSession> savedSessions{{
    {Session::Brainstorm,
     {.path = brainstormPath,
      .filter = brainstormFilter,
      .save = saveBrainstormData,
      .temporaryFile = &Program::brainstormTemporaryFile,
      .doneMessage = "Your brainstorming session completed.",
      .savePrompt = "Do you want to save changes in brainstorm session?"}},
    {Session::Analyze,
     {.path = analyzePath,
      .filter = analyzeFilter,
      .save = saveAnalyzeData,
      .temporaryFile = &Program::analyzeTemporaryFile,
      .doneMessage = "Your analyze session completed.",
      .savePrompt = "Do you want to save changes in analyze session?"}},
}};

auto& editFlag(auto& form, Session session) { return form.*sessionControls[session].editFlag; }

bool writeChosenFile(Program& program, const SavedSession& session) {
    FrmMain& form = program.frmMain;
    const std::string path = form.cd.askToSave(session.filter, form.*session.path.member);
    if (fileExists(program, path) &&
        !mayOverwrite(program.platform.messages, std::string(appTitle)))
        return false;
    rememberPath(program, session.path, path);
    session.save(program, path, false);
    return true;
}

void deleteTemporaryFile(Program& program, Session session) {
    const BestEffort step;
    step([&] { deleteIfThere(program, (program.*savedSessions[session].temporaryFile)()); });
}

bool saveDialog(Program& program, Session session) {
    const BestEffort step;
    bool written = false;
    step([&] { written = writeChosenFile(program, savedSessions[session]); });
    if (!written) return false;
    deleteTemporaryFile(program, session);
    inform(program.platform.messages, savedSessions[session].doneMessage);
    deleteTemporaryFile(program, session);  // a tick behind the box may have made it anew
    // For both sessions; the Analyze wizard hides its own panel.
    program.frmMain.fraBrainstorm.hide();
    editFlag(program.frmMain, session) = false;
    clearJournal(program);
    return true;
}

bool promptSave(Program& program, Session session) {
    bool& unsaved = editFlag(program.frmMain, session);
    if (unsaved) {
        const MessageAnswer answer =
            program.platform.messages.show({.text = std::string(savedSessions[session].savePrompt),
                                            .icon = MessageIcon::Question,
                                            .buttons = MessageButtons::YesNoCancel,
                                            .defaultAnswer = MessageAnswer::Yes});
        if (answer == MessageAnswer::Cancel) return false;
        if (answer == MessageAnswer::Yes && !saveDialog(program, session)) return false;
        unsaved = false;
    }
    deleteTemporaryFile(program, session);
    return true;
}

}  // namespace

bool saveBrainstormDialog(Program& program) { return saveDialog(program, Session::Brainstorm); }
bool saveAnalyzeDialog(Program& program) { return saveDialog(program, Session::Analyze); }
bool promptSaveBrainstorm(Program& program) { return promptSave(program, Session::Brainstorm); }
bool promptSaveAnalyze(Program& program) { return promptSave(program, Session::Analyze); }

bool mayLeaveSessions(Program& program) {
    return promptSaveBrainstorm(program) && promptSaveAnalyze(program);
}

PerSession<bool> unsavedSessions(const FrmMain& form) {
    PerSession<bool> unsaved;
    for (const Session session : allOf<Session>) unsaved[session] = editFlag(form, session);
    return unsaved;
}

void stayWithSessions(Program& program, const PerSession<bool>& unsavedBefore) {
    FrmMain& form = program.frmMain;
    for (const Session session : allOf<Session>)
        if (unsavedBefore[session] && (form.*sessionControls[session].panel).isVisible())
            editFlag(form, session) = true;
    copyUnsavedSession(program);
}

std::optional<std::string> copyUnsavedSession(Program& program) {
    const FrmMain& form = program.frmMain;
    if (!form.editFlag && !form.editAFlag) return std::nullopt;
    // A changed brainstorm session comes first, also when it is off the screen.
    const Session session = form.editFlag ? Session::Brainstorm : Session::Analyze;
    if (!(form.*sessionControls[session].panel).isVisible()) return std::nullopt;
    std::string path = (program.*savedSessions[session].temporaryFile)();
    savedSessions[session].save(program, path, true);
    return path;
}

void tickAutoSave(Program& program) {
    FrmMain& form = program.frmMain;
    const auto path = copyUnsavedSession(program);
    if (!path || form.autoSaveFailed || fileExists(program, *path)) return;
    refuse(program.platform.messages,
           "Warning! Could not create autosave file. Auto Save feature is disabled.");
    form.autoSaveFailed = true;
}

}  // namespace orvanta
