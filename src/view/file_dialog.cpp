#include "view/file_dialog.h"

namespace orvanta {

std::string withFilterEnding(const std::string& path, const std::string& filter) {
    const auto nameStart = path.rfind(pathSeparator) + 1;  // 0 where there is no folder
    if (nameStart == path.size() || path.find('.', nameStart) != std::string::npos) return path;
    const auto pattern = filter.rfind("|*.");
    return pattern == std::string::npos ? path : path + filter.substr(pattern + 2);
}

void FileDialog::show(FileDialogMode mode) {
    const auto chosen = m_dialogs.choose({mode, filter, initialPath, fileName});
    if (!chosen) throw Failure(ErrorNumber::Cancelled);
    fileName = mode == FileDialogMode::Save ? withFilterEnding(*chosen, filter) : *chosen;
}

}  // namespace orvanta
