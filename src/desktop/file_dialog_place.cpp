#include "desktop/file_dialog_place.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

#include "core/session_state.h"
#include "desktop/conversions.h"
#include "desktop/instance_lock.h"
#include "desktop/own_folders.h"

namespace orvanta::desktop {

QString startFolder(const std::string& initialPath) {
    const QFileInfo info(fromPath(initialPath));
    if (!initialPath.empty() && info.isDir()) return info.filePath();
    if (!initialPath.empty() && info.absoluteDir().exists()) return info.absolutePath();
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo::exists(documents) ? documents : QDir::homePath();
}

FileDialogPlace placeOf(const FileDialogRequest& request) {
    return {.mode = request.mode,
            .filter = request.filter,
            .folder = {},
            .home = QDir::homePath().toStdString(),
            .ownNames = {std::string(brainstormTemporaryName), std::string(analyzeTemporaryName),
                         lockName},
            .ownFolder = rescuePath().toStdString()};
}

}  // namespace orvanta::desktop
