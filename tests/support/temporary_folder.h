#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "system_path.h"

namespace orvanta::test {

/// Where files lie in memory, if the system has a folder for that: on a disk each rewriting may
/// wait for the device.
inline std::filesystem::path memoryFolder() {
    const std::filesystem::path memory = "/dev/shm";
    return ::access(memory.string().c_str(), W_OK) == 0 ? memory
                                                        : std::filesystem::temp_directory_path();
}

inline std::filesystem::path pathFromUtf8(const std::string& path) {
    return {std::u8string(path.begin(), path.end())};
}

/// A new folder on the real disk, gone with all that it holds at the end. Paths are UTF-8.
class TemporaryFolder {
public:
    explicit TemporaryFolder(
        const std::filesystem::path& parent = std::filesystem::temp_directory_path()) {
        do {
            m_path = (parent / nextName()).make_preferred().string();
        } while (!std::filesystem::create_directory(m_path));
        // Also for a test that goes on as somebody else.
        std::filesystem::permissions(m_path, std::filesystem::perms::all);
    }
    ~TemporaryFolder() {
        std::error_code passedOver;
        std::filesystem::remove_all(m_path, passedOver);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;

    const std::string& path() const { return m_path; }
    /// The name may hold slashes, whatever the system's separator is.
    std::string operator/(const std::string& name) const { return systemPath(m_path + "/" + name); }

    void write(const std::string& name, const std::string& bytes) const {
        std::ofstream(fileOf(name), std::ios::binary) << bytes;
    }
    std::string read(const std::string& name) const {
        std::ostringstream bytes;
        bytes << std::ifstream(fileOf(name), std::ios::binary).rdbuf();
        return bytes.str();
    }
    /// What lies in it or in a folder of it, hidden files too, by name.
    std::vector<std::string> names(const std::string& inner = "") const {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(fileOf(inner))) {
            const std::u8string name = entry.path().filename().u8string();
            names.emplace_back(name.begin(), name.end());
        }
        std::ranges::sort(names);
        return names;
    }

private:
    static std::string nextName() {
        return "orvanta-test-" + std::to_string(std::random_device()());
    }
    std::filesystem::path fileOf(const std::string& name) const {
        return pathFromUtf8(*this / name);
    }

    std::string m_path;
};

}  // namespace orvanta::test
