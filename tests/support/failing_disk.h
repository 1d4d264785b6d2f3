#pragma once

#include <cstdint>
#include <limits>

#include "view/file_disk.h"
#ifndef _WIN32
#include <sys/resource.h>
#endif

namespace orvanta::test {

/// While it lives the system refuses to let any file grow beyond so many bytes: a write stops
/// there as it does on a full device.
class FileSizeLimit {
public:
    explicit FileSizeLimit(std::uintmax_t bytes);
    ~FileSizeLimit();
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
#ifdef _WIN32
    std::uintmax_t m_former;
#else
    rlimit m_former{};
#endif
};

/// The real disk, on which a file fails behind so many bytes.
class FailingDisk : public FileDisk {
public:
    std::uintmax_t room = std::numeric_limits<std::uintmax_t>::max();

    void replace(const std::string& path, std::string_view bytes) override {
        const FileSizeLimit limit(room);
        FileDisk::replace(path, bytes);
    }
    void replaceOwn(const std::string& path, std::string_view bytes) override {
        const FileSizeLimit limit(room);
        FileDisk::replaceOwn(path, bytes);
    }
};

}  // namespace orvanta::test
