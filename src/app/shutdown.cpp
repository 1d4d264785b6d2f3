#include "app/shutdown.h"

#include "questions/narration.h"
#include "sessionfiles/saving.h"

namespace orvanta {

void quitProgram(Program& program) {
    if (mayLeaveSessions(program)) program.platform.lifetime.end();
}

bool closeMainWindow(Program& program) {
    stopNarration(program);
    if (!mayLeaveSessions(program)) return false;
    program.platform.lifetime.end();
    return true;
}

}  // namespace orvanta
