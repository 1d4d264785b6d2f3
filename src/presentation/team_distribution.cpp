#include "presentation/team_distribution.h"

#include "core/messages.h"
#include "core/modules.h"
#include "core/web_host.h"

namespace orvanta {

void distributeToTeam(Program& program) {
    const std::string code = chosenCode(program.frmMain);
    if (code.empty()) {
        refuse(program.platform.messages, noModuleMessage);
        return;
    }
    // The escapes are part of the link, so that it survives in the body of a mail; the blank at
    // the end keeps what follows it apart.
    program.platform.shell.open(
        "mailto:?subject=Invitation for Brainstorming Session&body=Download link%3A http%3A%2F%2F" +
        std::string(webHost()) + "%2Fdownload.php?type%3D" + code + " ");
}

}  // namespace orvanta
