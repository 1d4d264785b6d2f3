#include "desktop/display_needed.h"

#include <QString>
#include <cstdio>
#include <cstdlib>

namespace orvanta::desktop {

namespace {

/// What the toolkit says of the failure ahead of it is left out: it names its plugins, not the
/// display. Its debug messages come only if asked for.
void tell(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtDebugMsg) std::fprintf(stderr, "%s\n", qPrintable(message));
    if (type != QtFatalMsg) return;
    std::fputs(
        "Orvanta can't show its window: no display answers. DISPLAY or WAYLAND_DISPLAY has to name "
        "one.\n",
        stderr);
    std::_Exit(EXIT_FAILURE);
}

}  // namespace

DisplayNeeded::DisplayNeeded() : m_usual(qInstallMessageHandler(tell)) {}

DisplayNeeded::~DisplayNeeded() { qInstallMessageHandler(m_usual); }

}  // namespace orvanta::desktop
