#include <windows.h>

#include <QAbstractNativeEventFilter>
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

/// Any program that is asked later can call the end off. The system tells each window whether the
/// end comes; then this is gone.
class CalledOffEnd : public QObject, public QAbstractNativeEventFilter {
public:
    explicit CalledOffEnd(Program& program)
        : QObject(QCoreApplication::instance()),
          m_program(program),
          m_unsaved(unsavedSessions(program.frmMain)) {
        QCoreApplication::instance()->installNativeEventFilter(this);
    }

    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override {
        const auto& told = *static_cast<MSG*>(message);
        if (told.message != WM_ENDSESSION) return false;
        if (!told.wParam) stayWithSessions(m_program, m_unsaved);
        deleteLater();
        return false;
    }

private:
    Program& m_program;
    PerSession<bool> m_unsaved;
};

}  // namespace

void prepareForEndOfSession(Program& program, QSessionManager& manager) {
    copyUnsavedSession(program);  // the system may not wait for the answer
    // What an open dialog asks is not answered yet; the copy comes back at the next start.
    if (dialogIsOpen() || !manager.allowsInteraction()) return;
    new CalledOffEnd(program);
    if (!mayLeaveSessions(program)) manager.cancel();
    manager.release();
}

}  // namespace orvanta::desktop
