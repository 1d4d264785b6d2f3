#pragma once

#include <string>

namespace orvanta::desktop {

constexpr const char* lockName = "orvanta.lock";

/// The right to use a folder's temporary files, which one running program has at a time. The
/// system takes it back when the program ends, however it ends. On POSIX it belongs to an open
/// file: a file dialog that opens and closes the lock's file, as it does to tell the types of
/// files, keeps it. On Windows it is a mutex named after the folder.
class InstanceLock {
public:
    enum class Holder {
        ThisProgram,   // also where the folder takes no lock: better two programs than none
        OwnProgram,    // another one of this user's, which can be raised
        OtherProgram,  // one that can't be raised: another user's, or one that can't be seen
        Nobody,        // the file is another user's, and closed to this one
    };

    InstanceLock() = default;
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    /// Takes the lock of a folder (its name as the system has it), in place of one held before,
    /// and tells who has it now.
    Holder take(const std::string& folder);

    /// Asks the program that has the lock to come to the front.
    void raiseHolder() const;

private:
    void release();

#ifdef _WIN32
    void* m_mutex = nullptr;
    void* m_told = nullptr;  // where others read who holds it
    unsigned long m_holder = 0;
#else
    int m_file = -1;
    int m_holder = 0;  // the process of OwnProgram
#endif
};

}  // namespace orvanta::desktop
