#include "desktop/file_pictures.h"

#include <QFileInfo>

#include "desktop/art.h"

namespace orvanta::desktop {

QString fileDialogPicture(QStyle::StandardPixmap sign) {
    switch (sign) {
        case QStyle::SP_ArrowBack:
            return QStringLiteral("arrow_back");
        case QStyle::SP_ArrowForward:
            return QStringLiteral("arrow_forward");
        case QStyle::SP_FileDialogToParent:
            return QStringLiteral("arrow_up");
        case QStyle::SP_FileDialogNewFolder:
            return QStringLiteral("folder_new");
        case QStyle::SP_FileDialogListView:
            return QStringLiteral("view_list");
        case QStyle::SP_FileDialogDetailedView:
            return QStringLiteral("view_details");
        case QStyle::SP_ToolBarHorizontalExtensionButton:
            return QStringLiteral("more");
        default:
            return {};
    }
}

FilePictures::FilePictures()
    : m_computer(pictureIcon(QStringLiteral("computer"))),
      m_drive(pictureIcon(QStringLiteral("drive"))),
      m_folder(pictureIcon(QStringLiteral("folder"))),
      m_file(pictureIcon(QStringLiteral("file"))) {}

FilePictures& FilePictures::shared() {
    static FilePictures pictures;
    return pictures;
}

QIcon FilePictures::icon(IconType type) const {
    switch (type) {
        case Computer:
            return m_computer;
        case Drive:
            return m_drive;
        case File:
            return m_file;
        default:
            return m_folder;
    }
}

QIcon FilePictures::icon(const QFileInfo& info) const {
    if (info.isRoot()) return m_drive;
    return info.isDir() ? m_folder : m_file;
}

}  // namespace orvanta::desktop
