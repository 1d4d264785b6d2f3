#include "core/remembered_paths.h"

#include "core/constants.h"

namespace orvanta {

void rememberPath(Program& program, const RememberedPath& remembered, const std::string& path) {
    program.platform.settings.write(settingsSection, remembered.key, path);
    program.frmMain.*remembered.member = path;
}

void takeUpPath(Program& program, const RememberedPath& remembered) {
    std::string& path = program.frmMain.*remembered.member;
    if (path.empty()) path = program.platform.settings.read(settingsSection, remembered.key);
    if (path.empty()) path = program.workFolder;
}

}  // namespace orvanta
