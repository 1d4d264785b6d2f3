#include <windows.h>

#include <QWinEventNotifier>

#include "desktop/system_signals.h"

namespace orvanta::desktop {

SystemSignals::SystemSignals(std::function<void()> end, std::function<void()> raise)
    : m_end(std::move(end)), m_raise(std::move(raise)) {
    m_event = CreateEventW(nullptr, FALSE, FALSE, raiseEvent(GetCurrentProcessId()).c_str());
    if (!m_event) return;
    auto* notifier = new QWinEventNotifier(m_event, this);
    connect(notifier, &QWinEventNotifier::activated, this, [this] { take(); });
}

SystemSignals::~SystemSignals() {
    if (m_event) CloseHandle(m_event);
}

std::wstring SystemSignals::raiseEvent(unsigned long process) {
    return L"Local\\orvanta-raise-" + std::to_wstring(process);
}

void SystemSignals::take() { m_raise(); }

}  // namespace orvanta::desktop
