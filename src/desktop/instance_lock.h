#pragma once

#include <QString>

namespace orvanta::desktop {

/// The right to use a folder's temporary files, which one running program has at a time. The
/// system takes it back when the program ends, however it ends.
class InstanceLock {
public:
    enum class Holder {
        ThisProgram,   // also where the folder takes no lock: better two programs than none
        OwnProgram,    // another one of this user's, which can be raised
        OtherProgram,  // one that this user can't reach
    };

    InstanceLock() = default;
    ~InstanceLock();
    InstanceLock(const InstanceLock&) = delete;
    InstanceLock& operator=(const InstanceLock&) = delete;

    /// Takes the lock of a folder, in place of one held before, and tells who has it now.
    Holder take(const QString& folder);

    /// Asks the program that has the lock to come to the front.
    void raiseHolder() const;

private:
    void release();

    int m_file = -1;
    int m_holder = 0;  // the process that has it; 0 for this one
};

}  // namespace orvanta::desktop
