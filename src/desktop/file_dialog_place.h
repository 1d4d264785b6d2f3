#pragma once

#include <QString>

#include "view/file_choice.h"

namespace orvanta::desktop {

/// The folder to begin in: the initial path itself or, if that names a file, the folder that holds
/// it; the documents folder where there is neither.
QString startFolder(const std::string& initialPath);

/// Where a file dialog stands, but for the folder that it shows.
FileDialogPlace placeOf(const FileDialogRequest& request);

}  // namespace orvanta::desktop
