#pragma once

#include <span>
#include <string>
#include <utility>

#include "core/files.h"
#include "sessionfiles/section_reader.h"
#include "view/within_memory.h"

namespace orvanta {

// A session in a file that a person named, or in a temporary one, which is the program's own.

using WriteBytes = void (Disk::*)(const std::string&, std::string_view);
using TellBytes = void (FailedSaves::*)(const std::string&, std::string_view);

/// Tells Platform::failedSaves of a failure, and passes it on.
inline void writeOrTell(const Platform& platform, WriteBytes write, TellBytes tell,
                        const std::string& fileName, std::string_view bytes) {
    try {
        (platform.disk.*write)(fileName, bytes);
    } catch (const Failure&) {
        if (platform.failedSaves) (platform.failedSaves->*tell)(fileName, bytes);
        throw;
    }
}

inline void writeNamedSession(const Platform& platform, const std::string& fileName,
                              std::string_view bytes) {
    writeOrTell(platform, &Disk::replace, &FailedSaves::sessionNotWritten, fileName, bytes);
}

inline void writeSession(const Platform& platform, const std::string& fileName,
                         std::string_view bytes, bool temporary) {
    if (temporary)
        return writeOrTell(platform, &Disk::replaceOwn, &FailedSaves::copyNotWritten, fileName,
                           bytes);
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
