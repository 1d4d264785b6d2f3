#include "desktop/instance_lock.h"

#include <fcntl.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>
#include <csignal>

#include "desktop/system_signals.h"

namespace orvanta::desktop {

namespace {

struct flock wholeFile() {
    struct flock lock {};
    lock.l_type = F_WRLCK;
    lock.l_whence = SEEK_SET;
    return lock;
}

}  // namespace

InstanceLock::~InstanceLock() { release(); }

InstanceLock::Holder InstanceLock::take(const QString& folder) {
    release();
    const QByteArray name = QFile::encodeName(folder + QStringLiteral("/orvanta.lock"));
    // In a folder that several users share the file is the first one's, and closed to the others.
    m_file = ::open(name.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600);
    if (m_file < 0) return errno == EACCES ? Holder::OtherProgram : Holder::ThisProgram;
    struct flock lock = wholeFile();
    if (::fcntl(m_file, F_SETLK, &lock) == 0) return Holder::ThisProgram;
    lock = wholeFile();
    if (::fcntl(m_file, F_GETLK, &lock) != 0 || lock.l_type == F_UNLCK || lock.l_pid <= 0)
        return Holder::ThisProgram;
    m_holder = lock.l_pid;
    return ::kill(m_holder, 0) == 0 ? Holder::OwnProgram : Holder::OtherProgram;
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
