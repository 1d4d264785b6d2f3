#include "core/workspace.h"

#include "core/constants.h"

namespace orvanta {

bool fileExists(const Program& program, const std::string& path) {
    return program.platform.disk.kindOf(path) == PathKind::File;
}

bool folderExists(const Program& program, const std::string& path) {
    return program.platform.disk.kindOf(path) == PathKind::Folder;
}

void rememberPath(Program& program, std::string_view key, std::string FrmMain::*member,
                  const std::string& path) {
    program.platform.settings.write(settingsSection, key, path);
    program.frmMain.*member = path;
}

void deleteIfThere(Program& program, const std::string& path) {
    if (fileExists(program, path)) program.platform.disk.remove(path);
}

}  // namespace orvanta
