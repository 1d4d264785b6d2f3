#pragma once

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <string>
#include <vector>

#include "failure_of.h"
#include "ordinary_user.h"
#include "temporary_folder.h"
#include "view/file_disk.h"

namespace orvanta::test {

using Names = std::vector<std::string>;

constexpr int fileNotFound = 53, diskFull = 61, permissionDenied = 70, pathFileAccess = 75,
              pathNotFound = 76, noError = 0;

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
        return asOrdinaryUser([&] { return failureOf(act); });
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
