#include <windows.h>

#include <QCryptographicHash>
#include <QDir>
#include <QThread>

#include "desktop/instance_lock.h"
#include "desktop/system_signals.h"

namespace orvanta::desktop {

namespace {

/// The same for every way to write the folder; a name of the system takes no backslash.
std::wstring nameOf(const std::string& folder) {
    const QString whole = QDir(QString::fromStdString(folder)).canonicalPath().toLower();
    const QByteArray hash =
        QCryptographicHash::hash(whole.toUtf8(), QCryptographicHash::Sha1).toHex();
    return L"orvanta-" + QString::fromLatin1(hash).toStdWString();
}

/// Seen by the programs of this session alone.
std::wstring toldNameOf(const std::string& folder) {
    return L"Local\\" + nameOf(folder) + L"-told";
}

/// Memory that goes with the last program that has it open.
HANDLE tellProcess(const std::string& folder) {
    const HANDLE told = CreateFileMappingW(INVALID_HANDLE_VALUE, nullptr, PAGE_READWRITE, 0,
                                           sizeof(DWORD), toldNameOf(folder).c_str());
    if (!told) return nullptr;
    if (void* const process = MapViewOfFile(told, FILE_MAP_WRITE, 0, 0, sizeof(DWORD))) {
        *static_cast<DWORD*>(process) = GetCurrentProcessId();
        UnmapViewOfFile(process);
    }
    return told;
}

DWORD toldProcess(const std::string& folder) {
    const HANDLE told = OpenFileMappingW(FILE_MAP_READ, FALSE, toldNameOf(folder).c_str());
    if (!told) return 0;
    DWORD process = 0;
    if (const void* const view = MapViewOfFile(told, FILE_MAP_READ, 0, 0, sizeof(DWORD))) {
        process = *static_cast<const DWORD*>(view);
        UnmapViewOfFile(view);
    }
    CloseHandle(told);
    return process;
}

/// Waits a moment for a holder that has just taken the lock to say who it is.
DWORD holderToRaise(const std::string& folder) {
    constexpr int tries = 50, milliseconds = 10;
    for (int i = 0; i < tries; ++i, QThread::msleep(milliseconds))
        if (const DWORD process = toldProcess(folder)) return process;
    return 0;
}

void closeAndForget(void*& handle) {
    if (handle) CloseHandle(handle);
    handle = nullptr;
}

}  // namespace

InstanceLock::~InstanceLock() { release(); }

InstanceLock::Holder InstanceLock::take(const std::string& folder) {
    release();
    m_mutex = CreateMutexW(nullptr, FALSE, (L"Global\\" + nameOf(folder)).c_str());
    const DWORD error = GetLastError();
    if (!m_mutex && error == ERROR_ACCESS_DENIED) return Holder::OtherProgram;
    if (!m_mutex) return Holder::ThisProgram;
    if (error != ERROR_ALREADY_EXISTS) {
        m_told = tellProcess(folder);
        return Holder::ThisProgram;
    }
    closeAndForget(m_mutex);
    m_holder = holderToRaise(folder);
    return m_holder ? Holder::OwnProgram : Holder::OtherProgram;
}

void InstanceLock::raiseHolder() const {
    AllowSetForegroundWindow(m_holder);
    const HANDLE event =
        OpenEventW(EVENT_MODIFY_STATE, FALSE, SystemSignals::raiseEvent(m_holder).c_str());
    if (!event) return;
    SetEvent(event);
    CloseHandle(event);
}

void InstanceLock::release() {
    closeAndForget(m_told);
    closeAndForget(m_mutex);
    m_holder = 0;
}

}  // namespace orvanta::desktop
