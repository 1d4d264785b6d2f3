#pragma once

#include <QObject>
#include <functional>

class QCoreApplication;

namespace orvanta::desktop {

/// Copies the session when the toolkit ends the process by itself, as it does where the display
/// goes away: nothing is unwound then, and no routine of the program is asked.
class LastCopy : public QObject {
public:
    /// Holds as long as the application and this live.
    LastCopy(QCoreApplication& application, std::function<void()> copy);
    ~LastCopy() override;

    void make() const { m_copy(); }

private:
    std::function<void()> m_copy;
};

}  // namespace orvanta::desktop
