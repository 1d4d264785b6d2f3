#pragma once

#include <string>

#include "view/platform.h"

namespace orvanta {

/// The one file dialog of the main window. Its values stay from one use to the next.
class FileDialog {
public:
    explicit FileDialog(FileDialogs& dialogs) : m_dialogs(dialogs) {}

    std::string filter, initialPath, fileName;

    /// Each puts the chosen path in fileName, or fails with Cancelled. Saving adds the ending
    /// of the filter to a name that has no point.
    void showOpen() { show(FileDialogMode::Open); }
    void showSave() { show(FileDialogMode::Save); }

private:
    void show(FileDialogMode mode);

    FileDialogs& m_dialogs;
};

/// The path with the ending of a filter's pattern, such as "|*.bsm", where the name holds no point.
std::string withFilterEnding(const std::string& path, const std::string& filter);

}  // namespace orvanta
