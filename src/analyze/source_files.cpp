#include "analyze/source_files.h"

#include <algorithm>

#include "core/constants.h"
#include "core/failures.h"
#include "core/kind_controls.h"
#include "core/messages.h"
#include "core/workspace.h"
#include "sessionfiles/brainstorm_file.h"

namespace orvanta {

namespace {

void copyRows(FrmMain& form, const KindControls& controls) {
    const StatementList& source = form.*controls.analyzeList;
    const int image = imageOf(controls.kind);
    for (int position = 1; position <= source.count(); ++position) {
        const Row& row = source.row(position);
        const Row copy{.key = letterOf(controls.kind) + std::to_string(position),
                       .text = row.text,
                       .image = image,
                       .largeImage = image,
                       .subItem = row.subItem};
        forEachCompanion(form, controls, [&](StatementList& list) { list.add(copy); });
    }
}

}  // namespace

void addAnalyzeSourceFile(Program& program) {
    FrmMain& form = program.frmMain;
    form.cd.initialPath = form.lastPathBSM;
    form.cd.filter = brainstormFilter;
    form.cd.fileName.clear();
    const CarryOn step;
    if (!step([&] { form.cd.showOpen(); })) return;
    const std::string path = form.cd.fileName;
    if (!fileExists(program, path)) return;
    // Ahead of the test for duplicates: a path that is refused below is remembered all the same.
    rememberPath(program, lastSavedPathBSM, &FrmMain::lastPathBSM, path);
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
    for (const KindControls& controls : kindControls)
        forEachCompanion(form, controls, [](StatementList& list) { list.clear(); });
    for (const KindControls& controls : kindControls) copyRows(form, controls);
    return true;
}

}  // namespace orvanta
