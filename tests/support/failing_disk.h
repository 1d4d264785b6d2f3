#pragma once

#include <sys/resource.h>

#include <limits>

#include "view/file_disk.h"

namespace orvanta::test {

/// While it lives the system refuses to let any file grow beyond so many bytes: a write stops
/// there as it does on a full device.
class FileSizeLimit {
public:
    explicit FileSizeLimit(rlim_t bytes) {
        ::getrlimit(RLIMIT_FSIZE, &m_former);
        const rlimit limit{bytes, m_former.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &m_former); }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit m_former{};
};

/// The real disk, on which a file fails behind so many bytes.
class FailingDisk : public FileDisk {
public:
    rlim_t room = std::numeric_limits<rlim_t>::max();

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
