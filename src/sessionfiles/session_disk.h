#pragma once

#include <span>
#include <string>
#include <utility>

#include "core/files.h"
#include "sessionfiles/section_reader.h"
#include "view/within_memory.h"

namespace orvanta {

// A session in a file that a person named, or in a temporary one, which is the program's own.

// Both tell Platform::failedSaves of a failure, and pass it on.
inline void writeNamedSession(const Platform& platform, const std::string& fileName,
                              std::string_view bytes) {
    try {
        platform.disk.replace(fileName, bytes);
    } catch (const Failure&) {
        if (platform.failedSaves) platform.failedSaves->sessionNotWritten(fileName, bytes);
        throw;
    }
}

inline void writeCopy(const Platform& platform, const std::string& fileName,
                      std::string_view bytes) {
    try {
        platform.disk.replaceOwn(fileName, bytes);
    } catch (const Failure&) {
        if (platform.failedSaves) platform.failedSaves->copyNotWritten(fileName, bytes);
        throw;
    }
}

inline void writeSession(const Platform& platform, const std::string& fileName,
                         std::string_view bytes, bool temporary) {
    if (temporary) return writeCopy(platform, fileName, bytes);
    writeNamedSession(platform, fileName, bytes);
}

/// Hands each data line of a file to `reading`, as readSections does. A missing file has none.
template <class Reading>
void readSession(const Program& program, const std::string& fileName, bool temporary,
                 std::span<const Section> known, Reading reading) {
    if (!fileExists(program, fileName)) return;
    const Disk& disk = program.platform.disk;
    withinMemory([&] {
        const std::string bytes = temporary ? disk.readOwn(fileName) : disk.read(fileName);
        readSections(bytes, known, std::move(reading));
    });
}

}  // namespace orvanta
