#include "view/file_dialog.h"

#include "view/native_file.h"

namespace orvanta {

std::string_view endingIn(std::string_view filter) {
    const auto pattern = filter.rfind("|*.");
    return pattern == filter.npos ? std::string_view() : filter.substr(pattern + 2);
}

std::string withFilterEnding(const std::string& path, const std::string& filter) {
    const auto nameStart =
        path.find_last_of(native::pathSeparators) + 1;  // 0 where there is no folder
    if (nameStart == path.size() || path.find('.', nameStart) != std::string::npos) return path;
    return path + std::string(endingIn(filter));
}

void FileDialog::prepare(std::string_view newFilter, const std::string& newInitialPath) {
    filter = newFilter;
    initialPath = newInitialPath;
}

std::string FileDialog::ask(FileDialogMode mode) {
    fileName.clear();
    const auto chosen = m_dialogs.choose({mode, filter, initialPath, fileName});
    if (!chosen) throw Failure(ErrorNumber::Cancelled);
    return fileName = mode == FileDialogMode::Save ? withFilterEnding(*chosen, filter) : *chosen;
}

std::string FileDialog::askToOpen(std::string_view newFilter, const std::string& newInitialPath) {
    prepare(newFilter, newInitialPath);
    return ask(FileDialogMode::Open);
}

std::string FileDialog::askToSave(std::string_view newFilter, const std::string& newInitialPath) {
    prepare(newFilter, newInitialPath);
    return ask(FileDialogMode::Save);
}

}  // namespace orvanta
