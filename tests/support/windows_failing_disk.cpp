#include <windows.h>

#include <algorithm>
#include <utility>

#include "failing_disk.h"

// Windows knows no limit for a file. So this stands in front of the call that writes: the program
// finds it through a pointer of the linker's, and the one here is met before the system's own.

namespace {

std::uintmax_t mostBytes = std::numeric_limits<std::uintmax_t>::max();

/// A part may be written, as far as there is room.
WINBOOL WINAPI writeWithinLimit(HANDLE file, LPCVOID bytes, DWORD size, LPDWORD written,
                                LPOVERLAPPED place) {
    static const auto write = reinterpret_cast<decltype(&WriteFile)>(
        reinterpret_cast<void*>(GetProcAddress(GetModuleHandleW(L"kernel32"), "WriteFile")));
    if (!place) return write(file, bytes, size, written, place);  // no disk's: it has a place
    const std::uintmax_t offset =
        static_cast<std::uintmax_t>(place->OffsetHigh) << 32 | place->Offset;
    const std::uintmax_t room = mostBytes > offset ? mostBytes - offset : 0;
    if (room == 0) {
        SetLastError(ERROR_FILE_TOO_LARGE);
        return FALSE;
    }
    return write(file, bytes, static_cast<DWORD>(std::min<std::uintmax_t>(size, room)), written,
                 place);
}

}  // namespace

extern "C" {
decltype(&WriteFile) __imp_WriteFile = writeWithinLimit;
}

namespace orvanta::test {

FileSizeLimit::FileSizeLimit(std::uintmax_t bytes) : m_former(std::exchange(mostBytes, bytes)) {}

FileSizeLimit::~FileSizeLimit() { mostBytes = m_former; }

}  // namespace orvanta::test
