#pragma once

#include <string>

#include "memory_disk.h"
#include "temporary_folder.h"

namespace orvanta::monkey {

/// The files of a new disk in memory that takes a path for what it leads to, as the real one does.
class TidyDisk : public test::MemoryDisk {
public:
    PathKind kindOf(const std::string& path) const override {
        return MemoryDisk::kindOf(tidied(path));
    }
    std::string read(const std::string& path) const override {
        return MemoryDisk::read(tidied(path));
    }
    void replace(const std::string& path, std::string_view bytes) override {
        MemoryDisk::replace(tidied(path), bytes);
    }

private:
    static std::string tidied(const std::string& path) {
        return std::filesystem::path(path).lexically_normal().string();
    }
};

/// A folder of the real disk with question banks, brainstorm files and an analysis in it, and the
/// same files in memory. The home of whoever acts is in it.
class Sandbox {
public:
    Sandbox();

    std::string path(const std::string& name) const { return m_folder / name; }
    /// True for the folder and all in it.
    bool holds(const std::string& path) const;

    TidyDisk disk;

    /// A file that the disk in memory has not as the real one has it; empty if there is none.
    std::string differingFile() const;
    /// Gives the disk in memory a file as the real one has it, or as missing.
    void takeOver(const std::string& path);

private:
    void addFolder(const std::string& name);
    void addFile(const std::string& name, const std::string& bytes);

    test::TemporaryFolder m_folder{test::memoryFolder()};
};

}  // namespace orvanta::monkey
