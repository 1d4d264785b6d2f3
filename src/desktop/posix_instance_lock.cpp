#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QByteArray>
#include <QFileInfo>
#include <QThread>
#include <cerrno>
#include <csignal>

#include "desktop/instance_lock.h"
#include "desktop/system_signals.h"

namespace orvanta::desktop {

namespace {

/// The holder's process is told in the file.
void writeProcess(int file) {
    const QByteArray process = QByteArray::number(::getpid());
    if (::ftruncate(file, 0) == 0) (void)!::pwrite(file, process.constData(), process.size(), 0);
}

int processIn(int file) {
    char digits[16]{};
    return ::pread(file, digits, sizeof digits - 1, 0) > 0 ? QByteArray(digits).toInt() : 0;
}

/// True for a program of this user's that knows the signal; any other would be ended by it.
bool canBeRaised(int process) {
    if (process <= 0) return false;
    const QFileInfo told(QStringLiteral("/proc/%1").arg(process));
    const QFileInfo program(QFileInfo(told.filePath() + QStringLiteral("/exe")).symLinkTarget());
    return told.ownerId() == ::geteuid() &&
           program.fileName().startsWith(QStringLiteral("orvanta"));
}

/// Waits a moment for a holder that has just taken the lock to say who it is.
int holderToRaise(int file) {
    constexpr int tries = 50, milliseconds = 10;
    for (int i = 0; i < tries; ++i, QThread::msleep(milliseconds))
        if (const int process = processIn(file); canBeRaised(process)) return process;
    return 0;
}

}  // namespace

InstanceLock::~InstanceLock() { release(); }

InstanceLock::Holder InstanceLock::take(const std::string& folder) {
    release();
    // In a folder that several users share the file is the first one's, and closed to the others.
    m_file =
        ::open((folder + "/" + lockName).c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (m_file < 0) return errno == EACCES ? Holder::Nobody : Holder::ThisProgram;
    if (::flock(m_file, LOCK_EX | LOCK_NB) == 0) {
        writeProcess(m_file);
        return Holder::ThisProgram;
    }
    if (errno != EWOULDBLOCK) return Holder::ThisProgram;
    m_holder = holderToRaise(m_file);
    return m_holder ? Holder::OwnProgram : Holder::OtherProgram;
}

void InstanceLock::raiseHolder() const {
    if (m_holder) ::kill(m_holder, SystemSignals::raiseSignal());
}

void InstanceLock::release() {
    if (m_file >= 0) ::close(m_file);
    m_file = -1;
    m_holder = 0;
}

}  // namespace orvanta::desktop
