#include "questions/narration.h"

#include "core/files.h"

namespace orvanta {

std::string narrationPath(const Program& program, const std::string& clipName) {
    return program.appPath + pathSeparator + "Sounds" + pathSeparator + clipName + ".swf";
}

void playNarration(Program& program, const std::string& path) {
    Player& flaOverview = program.platform.player;
    flaOverview.setMovie(path);
    flaOverview.play();
}

void stopNarration(Program& program) {
    // The player has no stop of its own: a name that is no movie replaces the running one.
    playNarration(program, "STOP");
}

void narrate(Program& program, const std::string& clipName) {
    if (program.frmMain.chkMute.isOn()) return;
    const std::string path = narrationPath(program, clipName);
    if (fileExists(program, path)) playNarration(program, path);
}

void clickMute(Program& program, bool on) {
    program.frmMain.chkMute.setOn(on);
    if (on) stopNarration(program);
}

}  // namespace orvanta
