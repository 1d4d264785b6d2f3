#pragma once

#include <gtest/gtest.h>
#include <stdlib.h>
#include <sys/stat.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace orvanta::test {

/// A new folder on the real disk, gone with all that it holds at the end. Paths are UTF-8.
class TemporaryFolder {
public:
    TemporaryFolder() {
        m_path = (std::filesystem::temp_directory_path() / "orvanta-test-XXXXXX").string();
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
        std::ifstream file(*this / name, std::ios::binary);
        return {std::istreambuf_iterator<char>(file), {}};
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
