#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace orvanta::test {

/// Where files lie in memory, if the system has a folder for that: on a disk each rewriting may
/// wait for the device.
inline std::filesystem::path memoryFolder() {
    const std::filesystem::path memory = "/dev/shm";
    return ::access(memory.c_str(), W_OK) == 0 ? memory : std::filesystem::temp_directory_path();
}

/// A new folder on the real disk, gone with all that it holds at the end. Paths are UTF-8.
class TemporaryFolder {
public:
    explicit TemporaryFolder(
        const std::filesystem::path& parent = std::filesystem::temp_directory_path()) {
        m_path = (parent / "orvanta-test-XXXXXX").string();
        EXPECT_TRUE(::mkdtemp(m_path.data()));
        ::chmod(m_path.c_str(), 0777);  // also for a test that goes on as somebody else
    }
    ~TemporaryFolder() {
        std::error_code passedOver;
        std::filesystem::remove_all(m_path, passedOver);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& path() const { return m_path; }
    std::string operator/(const std::string& name) const { return m_path + "/" + name; }

    void write(const std::string& name, const std::string& bytes) const {
        std::ofstream(*this / name, std::ios::binary) << bytes;
    }
    std::string read(const std::string& name) const {
        std::ostringstream bytes;
        bytes << std::ifstream(*this / name, std::ios::binary).rdbuf();
        return bytes.str();
    }
    /// What lies in the folder, hidden files too, by name.
    std::vector<std::string> names() const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(m_path))
            names.push_back(entry.path().filename().string());
        std::ranges::sort(names);
        return names;
    }

private:
    std::string m_path;
};

}  // namespace orvanta::test
