#include "analyze/source_files.h"

#include <algorithm>

#include "core/constants.h"
#include "core/failures.h"
#include "core/files.h"
#include "core/kind_controls.h"
#include "core/mapping_side.h"
#include "core/messages.h"
#include "core/remembered_paths.h"
#include "sessionfiles/analyze_file.h"
#include "sessionfiles/brainstorm_file.h"

namespace orvanta {

namespace {

/// The values of the shared dialog as it has them where a person chooses this path.
void prepareDialog(FrmMain& form, const std::string& path) {
    form.cd.filter = brainstormFilter;
    form.cd.initialPath = form.lastPathBSM;
    form.cd.fileName = path;
}

/// Copies are to have keys that count up from 1, and so have the rows that were just read.
void copyRows(FrmMain& form, StatementKind kind) {
    const StatementList& source = listOf(form, Session::Analyze, kind);
    forEachCompanion(form, kind, [&](StatementList& list) { list.addAll(source); });
}

}  // namespace

void addAnalyzeSourceFiles(Program& program) {
    const FileDialog& cd = program.frmMain.cd;
    prepareDialog(program.frmMain, {});
    const BestEffort step;
    std::vector<std::string> paths;
    step([&] {
        paths = program.platform.fileDialogs.chooseSeveral(
            {FileDialogMode::Open, cd.filter, cd.initialPath, cd.fileName});
    });
    for (const std::string& path : paths) addChosenSourceFile(program, path);
}

void addChosenSourceFile(Program& program, const std::string& path) {
    FrmMain& form = program.frmMain;
    prepareDialog(form, path);
    if (!fileExists(program, path)) return;
    // Ahead of the test for duplicates: a path that is refused below is remembered all the same.
    rememberPath(program, brainstormPath, path);
    if (std::ranges::find(form.lstFiles.items(), path) != form.lstFiles.items().end()) {
        refuse(program.platform.messages, "File already added.");
        return;
    }
    form.lstFiles.add(path);
}

void removeAnalyzeSourceFile(Program& program) {
    ListBox& files = program.frmMain.lstFiles;
    if (files.selectedIndex() >= 0) files.remove(files.selectedIndex());
}

bool consolidateSourceFiles(Program& program) {
    FrmMain& form = program.frmMain;
    if (form.lstFiles.items().empty()) {
        refuse(program.platform.messages, "No brainstorm files opened for analyze.");
        return false;
    }
    FailedSaves* const failedSaves = program.platform.failedSaves;
    if (failedSaves && form.editAFlag) failedSaves->analysisReplaced(analyzeBytes(form, false));
    clearAnalye(program);
    bool anyFound = false;
    for (const std::string& path : form.lstFiles.items()) {
        if (!fileExists(program, path)) continue;
        anyFound = true;
        loadBrainstormData(program, path, "AZ", false);
    }
    if (!anyFound) {
        refuse(program.platform.messages, "Brainstorming files does not exists.");
        form.lstFiles.clear();
        return false;
    }
    for (const StatementKind kind : statementKinds) {
        forEachCompanion(form, kind, [](StatementList& list) { list.clear(); });
        copyRows(form, kind);
    }
    return true;
}

}  // namespace orvanta
