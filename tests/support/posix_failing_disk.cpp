#include "failing_disk.h"

namespace orvanta::test {

FileSizeLimit::FileSizeLimit(std::uintmax_t bytes) {
    ::getrlimit(RLIMIT_FSIZE, &m_former);
    const rlimit limit{bytes, m_former.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
}

FileSizeLimit::~FileSizeLimit() { ::setrlimit(RLIMIT_FSIZE, &m_former); }

}  // namespace orvanta::test
