#pragma once

#include <QFileDialog>

#include "view/platform.h"

class QLineEdit;

namespace orvanta::desktop {

/// A file dialog that takes any path as it is, tests nothing and asks nothing.
class FileChooser : public QFileDialog {
public:
    FileChooser(const FileDialogRequest& request, QWidget* owner);

    QLineEdit* nameBox() const;
    /// What was typed or picked, as it stood in the name box.
    const QString& typed() const { return m_typed; }
    /// The same as a whole path.
    QString path() const { return directory().absoluteFilePath(m_typed); }

protected:
    void accept() override;

private:
    QString m_typed;
};

}  // namespace orvanta::desktop
