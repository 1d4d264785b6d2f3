#pragma once

#include <sys/stat.h>

#include <string>

#include "ordinary_user.h"
#include "real_disk.h"

namespace orvanta::test {

/// What only POSIX has on a disk: modes, and tests that go on as another user.
class PosixDisk : public RealDisk {
protected:
    /// What comes of it when it is done by an ordinary user.
    template <class Act>
    static int errorAsOrdinaryUser(Act act) {
        return asOrdinaryUser([&] { return failureOf(act); });
    }

    struct stat statusOf(const std::string& name) const {
        struct stat status {};
        ::lstat((folder / name).c_str(), &status);
        return status;
    }
    mode_t modeOf(const std::string& name) const { return statusOf(name).st_mode & 07777; }
};

}  // namespace orvanta::test
