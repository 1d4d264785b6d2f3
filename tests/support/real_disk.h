#pragma once

#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <string>
#include <vector>

#include "failure_of.h"
#include "temporary_folder.h"
#include "view/file_disk.h"

namespace orvanta::test {

using Names = std::vector<std::string>;

constexpr int fileNotFound = 53, diskFull = 61, permissionDenied = 70, pathFileAccess = 75,
              pathNotFound = 76, noError = 0;

/// The system's user for whom nothing is meant.
constexpr unsigned nobody = 65534;

/// Becomes somebody whom permissions bind: nobody where the test runs as root, whom they don't.
/// False where that fails.
inline bool becomeOrdinaryUser() {
    return ::geteuid() != 0 || (::setgid(nobody) == 0 && ::setuid(nobody) == 0);
}

/// A folder of the real disk.
class RealDisk : public testing::Test {
protected:
    int errorOfReading(const std::string& path) {
        return failureOf([&] { disk.read(path); });
    }
    int errorOfReplacing(const std::string& path, const std::string& bytes = "new") {
        return failureOf([&] { disk.replace(path, bytes); });
    }

    /// The same, done by an ordinary user.
    template <class Act>
    static int errorAsOrdinaryUser(Act act) {
        const pid_t child = ::fork();
        if (child == 0) ::_exit(becomeOrdinaryUser() ? failureOf(act) : 255);
        int status = 0;
        ::waitpid(child, &status, 0);
        return WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    }

    struct stat statusOf(const std::string& name) const {
        struct stat status {};
        ::lstat((folder / name).c_str(), &status);
        return status;
    }
    mode_t modeOf(const std::string& name) const { return statusOf(name).st_mode & 07777; }

    TemporaryFolder folder;
    FileDisk disk;
};

}  // namespace orvanta::test
