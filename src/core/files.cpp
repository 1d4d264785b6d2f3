#include "core/files.h"

namespace orvanta {

bool fileExists(const Program& program, const std::string& path) {
    return program.platform.disk.kindOf(path) == PathKind::File;
}

bool folderExists(const Program& program, const std::string& path) {
    return program.platform.disk.kindOf(path) == PathKind::Folder;
}

void deleteIfThere(Program& program, const std::string& path) {
    if (fileExists(program, path)) program.platform.disk.remove(path);
}

}  // namespace orvanta
