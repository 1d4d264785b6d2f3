#pragma once

#include <QObject>
#include <functional>
#include <string>

namespace orvanta::desktop {

/// What the system's signals ask of the program. The handlers are in place once this is made, so
/// that from then on none of these signals ends the program by itself; there is one of it at most.
class SystemSignals : public QObject {
public:
    /// `end` runs for SIGTERM, SIGHUP and SIGINT, `raise` for the signal of a second start. Both
    /// run from the event loop, that of a dialog included, never inside a handler. On Windows `end`
    /// runs when the person's session with the system ends.
    SystemSignals(std::function<void()> end, std::function<void()> raise);
    ~SystemSignals() override;

#ifdef _WIN32
    /// The name of the event that a second start sets for the first one, which is this process.
    static std::wstring raiseEvent(unsigned long process);
#else
    /// The signal that a second start sends to the first one.
    static int raiseSignal();
#endif

private:
    void take();

    std::function<void()> m_end, m_raise;
#ifdef _WIN32
    void* m_event = nullptr;
#endif
};

}  // namespace orvanta::desktop
