#pragma once

#include <QFile>
#include <QIcon>

namespace orvanta::test {

/// Whether an icon is one of the program's own vectors, and not the desktop's.
inline bool isOwnPicture(const QIcon& icon) {
    return !icon.isNull() && !icon.name().isEmpty() &&
           QFile::exists(QStringLiteral(":/art/%1.svg").arg(icon.name())) &&
           !icon.pixmap(QSize(16, 16), 1).isNull();
}

}  // namespace orvanta::test
