#pragma once

#include <QStringList>
#include <QWidget>

#include "view/platform.h"

namespace orvanta::desktop {

enum class FileCount { One, Several };

/// The whole names of the files that a person chose, by the rules of view/file_choice.h; none if
/// the person cancelled. Several can only be opened. On Windows the dialog is the system's own.
QStringList askForFiles(const FileDialogRequest& request, FileCount count, QWidget* owner);

}  // namespace orvanta::desktop
