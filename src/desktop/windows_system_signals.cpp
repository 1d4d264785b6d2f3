#include <windows.h>

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QWinEventNotifier>

#include "desktop/system_signals.h"

namespace orvanta::desktop {

namespace {

/// Each window is told; what must be done has to be done before the last of them answers.
class EndOfSessionFilter : public QObject, public QAbstractNativeEventFilter {
public:
    EndOfSessionFilter(std::function<void()> end, QObject* owner)
        : QObject(owner), m_end(std::move(end)) {
        QCoreApplication::instance()->installNativeEventFilter(this);
    }

    bool nativeEventFilter(const QByteArray&, void* message, qintptr*) override {
        const auto& told = *static_cast<MSG*>(message);
        if (told.message == WM_ENDSESSION && told.wParam) m_end();
        return false;
    }

private:
    std::function<void()> m_end;
};

}  // namespace

SystemSignals::SystemSignals(std::function<void()> end, std::function<void()> raise)
    : m_end(std::move(end)), m_raise(std::move(raise)) {
    new EndOfSessionFilter([this] { m_end(); }, this);
    m_event = CreateEventW(nullptr, FALSE, FALSE, raiseEvent(GetCurrentProcessId()).c_str());
    if (!m_event) return;
    auto* notifier = new QWinEventNotifier(m_event, this);
    connect(notifier, &QWinEventNotifier::activated, this, [this] { take(); });
}

SystemSignals::~SystemSignals() {
    delete findChild<QWinEventNotifier*>();  // waits for the event for as long as it lives
    if (m_event) CloseHandle(m_event);
}

std::wstring SystemSignals::raiseEvent(unsigned long process) {
    return L"Local\\orvanta-raise-" + std::to_wstring(process);
}

void SystemSignals::take() { m_raise(); }

}  // namespace orvanta::desktop
