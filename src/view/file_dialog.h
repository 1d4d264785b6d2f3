#pragma once

#include <string>
#include <string_view>

#include "view/platform.h"

namespace orvanta {

/// The one file dialog of the main window. Its values stay from one use to the next.
class FileDialog {
public:
    explicit FileDialog(FileDialogs& dialogs) : m_dialogs(dialogs) {}

    std::string filter, initialPath, fileName;

    // Each asks for a path, with an empty name at first, keeps it in fileName and gives it, or
    // fails with Cancelled. Saving adds the ending of the filter to a name that has no point.
    std::string askToOpen(std::string_view newFilter, const std::string& newInitialPath);
    std::string askToSave(std::string_view newFilter, const std::string& newInitialPath);
    /// The same with the filter and the initial path of the last use.
    std::string askToSave() { return ask(FileDialogMode::Save); }

private:
    void prepare(std::string_view newFilter, const std::string& newInitialPath);
    std::string ask(FileDialogMode mode);

    FileDialogs& m_dialogs;
};

/// The ending of a filter's pattern, as ".bsm" of "|*.bsm"; empty if it has none.
std::string_view endingIn(std::string_view filter);
/// The path with the ending of a filter's pattern, such as "|*.bsm", where the name holds no point.
std::string withFilterEnding(const std::string& path, const std::string& filter);

}  // namespace orvanta
