#pragma once

#include <QFileIconProvider>
#include <QStyle>

namespace orvanta::desktop {

/// The name of the program's own picture for one of the toolkit's signs; empty where it has none.
QString fileDialogPicture(QStyle::StandardPixmap sign);

/// Pictures of files and folders that are the same on each desktop. The file dialog asks for them
/// on a thread of its own, and as long as it stands.
class FilePictures : public QFileIconProvider {
public:
    static FilePictures& shared();

    QIcon icon(IconType type) const override;
    QIcon icon(const QFileInfo& info) const override;

private:
    FilePictures();

    QIcon m_computer, m_drive, m_folder, m_file;
};

}  // namespace orvanta::desktop
