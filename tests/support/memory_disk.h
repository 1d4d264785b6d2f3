#pragma once

#include <limits>
#include <map>
#include <set>
#include <string>
#include <vector>

#include "system_path.h"
#include "view/platform.h"

namespace orvanta::test {

/// Files and folders in memory, by paths with slashes on every system. It can be told to fail.
class MemoryDisk : public Disk {
public:
    std::map<std::string, std::string> files;
    std::set<std::string> folders;
    std::vector<std::string> madeFolders;                            // by the program, in order
    std::map<std::string, ErrorNumber> unreadable, unwritable;       // by path: what fails, and how
    std::size_t capacity = std::numeric_limits<std::size_t>::max();  // bytes a file may have

    PathKind kindOf(const std::string& name) const override {
        const std::string path = withSlashes(name);
        if (files.contains(path)) return PathKind::File;
        return folders.contains(path) ? PathKind::Folder : PathKind::Missing;
    }
    std::string read(const std::string& name) const override {
        const std::string path = withSlashes(name);
        refuse(unreadable, path);
        const auto file = files.find(path);
        if (file == files.end()) throw Failure(ErrorNumber::FileNotFound);
        return file->second;
    }
    void replace(const std::string& name, std::string_view bytes) override {
        const std::string path = withSlashes(name);
        refuse(unwritable, path);
        if (folders.contains(path)) throw Failure(ErrorNumber::PathFileAccess);
        if (!folders.contains(path.substr(0, path.rfind('/'))))
            throw Failure(ErrorNumber::PathNotFound);
        if (bytes.size() > capacity) throw Failure(ErrorNumber::DiskFull);
        files[path] = bytes;
    }
    void makeFolder(const std::string& name) override {
        const std::string path = withSlashes(name);
        refuse(unwritable, path);
        folders.insert(path);
        madeFolders.push_back(path);
    }
    void remove(const std::string& name) override {
        const std::string path = withSlashes(name);
        refuse(unwritable, path);
        if (files.erase(path) == 0) throw Failure(ErrorNumber::FileNotFound);
    }

private:
    static void refuse(const std::map<std::string, ErrorNumber>& failing, const std::string& path) {
        if (const auto found = failing.find(path); found != failing.end())
            throw Failure(found->second);
    }
};

}  // namespace orvanta::test
