#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "failure_of.h"
#include "temporary_folder.h"
#include "view/file_disk.h"

namespace orvanta::test {

using Names = std::vector<std::string>;

/// A folder of the real disk.
class RealDisk : public testing::Test {
protected:
    int errorOfReading(const std::string& path) {
        return failureOf([&] { disk.read(path); });
    }
    int errorOfReplacing(const std::string& path, const std::string& bytes = "new") {
        return failureOf([&] { disk.replace(path, bytes); });
    }

    TemporaryFolder folder;
    FileDisk disk;
};

}  // namespace orvanta::test
