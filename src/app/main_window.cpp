#include "app/main_window.h"

#include "app/recovery.h"
#include "core/constants.h"
#include "core/files.h"
#include "core/modules.h"
#include "questions/bank_reader.h"

namespace orvanta {

namespace {

constexpr Twips optionSpacing{360};

void offerModules(Program& program) {
    FrmMain& form = program.frmMain;
    Twips top = form.optGBS.bounds().top;
    for (const ModuleId id : offeredModules) {
        if (!fileExists(program, bankPath(program.appPath, modules[id].code))) continue;
        Option& option = form.*modules[id].option;
        option.setVisible(true);
        if (id != offeredModules.front()) {  // that one keeps its place
            Bounds bounds = option.bounds();
            bounds.top = top;
            option.setBounds(bounds);
        }
        top = top + optionSpacing;
    }
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

}  // namespace orvanta
