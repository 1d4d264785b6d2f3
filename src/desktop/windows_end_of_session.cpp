#include <windows.h>

#include <QApplication>
#include <QWidget>
#include <algorithm>

#include "desktop/end_of_session.h"
#include "sessionfiles/saving.h"

namespace orvanta::desktop {

namespace {

/// One of the toolkit's, or one of the system's, which disables the window that it belongs to.
bool dialogIsOpen() {
    return QApplication::activeModalWidget() ||
           std::ranges::any_of(QApplication::topLevelWidgets(), [](const QWidget* window) {
               return window->isVisible() &&
                      !IsWindowEnabled(reinterpret_cast<HWND>(window->winId()));
           });
}

}  // namespace

void prepareForEndOfSession(Program& program, QSessionManager& manager) {
    copyUnsavedSession(program);  // the system may not wait for the answer
    // What an open dialog asks is not answered yet; the copy comes back at the next start.
    if (dialogIsOpen() || !manager.allowsInteraction()) return;
    if (!mayLeaveSessions(program)) manager.cancel();
    manager.release();
}

}  // namespace orvanta::desktop
