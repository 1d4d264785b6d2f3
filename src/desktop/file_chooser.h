#pragma once

#include <QFileDialog>
#include <memory>
#include <string>
#include <vector>

#include "desktop/message_box.h"
#include "view/file_choice.h"

class QLineEdit;
class QTreeView;

namespace orvanta::desktop {

/// Whether a file dialog heeds the rules of view/file_choice.h, as a person needs them, or takes
/// any path as it is. Either way it asks nothing about a file that is there.
enum class FileRules { Heeded, Off };

class FileChooser : public QFileDialog {
public:
    FileChooser(const FileDialogRequest& request, FileRules rules, QWidget* owner);

    /// Lets a person choose several files, by the rules.
    void takeSeveral();

    QLineEdit* nameBox() const;
    /// What was typed or picked, as it stood in the name box.
    const QString& typed() const { return m_typed; }
    /// The whole paths that the rules made of it: one, or several where several may be chosen.
    const QStringList& paths() const { return m_paths; }

protected:
    void accept() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showOwnPictures();
    /// True once there is a path to give.
    bool follow(const QString& name);
    /// One, or several where several may be chosen.
    std::vector<std::string> namesIn(const QString& text) const;
    bool take(const FileChoice& choice);
    void enter(const QString& folder);
    void refuse(const FileChoice& choice);
    QTreeView* files() const;
    /// The folder that a person has selected among the files; empty if there is none.
    QString pickedFolder() const;
    bool isOneOfSeveralTyped(const QString& folder) const;

    FileDialogPlace m_place;
    FileRules m_rules;
    bool m_severalFiles = false;
    QString m_typed;
    QStringList m_paths;
};

/// The box that tells why a name can't be had.
std::unique_ptr<MessageBox> boxOfRefusal(const FileChoice& choice, QWidget* owner);

}  // namespace orvanta::desktop
