#pragma once

#include <QFileDialog>

#include "view/file_choice.h"

class QLineEdit;

namespace orvanta::desktop {

/// Whether a file dialog heeds the rules of view/file_choice.h, as a person needs them, or takes
/// any path as it is. Either way it asks nothing about a file that is there.
enum class FileRules { Heeded, Off };

class FileChooser : public QFileDialog {
public:
    FileChooser(const FileDialogRequest& request, FileRules rules, QWidget* owner);

    QLineEdit* nameBox() const;
    /// What was typed or picked, as it stood in the name box.
    const QString& typed() const { return m_typed; }
    /// The whole path that the rules made of it.
    const QString& path() const { return m_path; }

protected:
    void accept() override;

private:
    /// True once there is a path to give.
    bool follow(const QString& name);
    void enter(const QString& folder);
    void refuse(const QString& reason);
    /// The folder that is selected among the files; empty if none is.
    QString selectedFolder() const;

    FileDialogPlace m_place;
    FileRules m_rules;
    QString m_typed, m_path;
};

}  // namespace orvanta::desktop
