#pragma once

#include <QDir>
#include <QStandardPaths>

namespace orvanta::desktop {

/// The user's own folder for this program; it need not be there.
inline QString dataPath() {
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
}

/// Where copies of sessions lie whose save failed.
inline QString rescuePath() { return QDir(dataPath()).filePath(QStringLiteral("rescue")); }

}  // namespace orvanta::desktop
