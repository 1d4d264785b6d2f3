#include "desktop/file_chooser.h"

#include <QAbstractItemView>
#include <QComboBox>
#include <QCompleter>
#include <QFileSystemModel>
#include <QHeaderView>
#include <QLineEdit>
#include <QListView>
#include <QTreeView>
#include <algorithm>
#include <cassert>
#include <initializer_list>

#include "desktop/clicks.h"
#include "desktop/conversions.h"
#include "desktop/enlargement.h"
#include "desktop/file_dialog_place.h"
#include "desktop/file_pictures.h"
#include "desktop/screen_room.h"

namespace orvanta::desktop {

namespace {

/// "All Files (*.x)|*.x" as Qt writes it, "All Files (*.x)".
QString filterFrom(const std::string& filter) {
    const QString whole = fromCp1252(filter);
    const QString pattern = whole.section(u'|', 1, 1);
    QString description = whole.section(u'|', 0, 0);
    if (pattern.isEmpty() || description.contains(u'(' + pattern + u')')) return description;
    return description + QStringLiteral(" (") + pattern + u')';
}

}  // namespace

FileChooser::FileChooser(const FileDialogRequest& request, FileRules rules, QWidget* owner)
    : QFileDialog(owner, {}, startFolder(request.initialPath), filterFrom(request.filter)),
      m_place(placeOf(request)),
      m_rules(rules) {
    setOption(DontUseNativeDialog);
    setOption(DontConfirmOverwrite);
    setFileMode(AnyFile);
    setAcceptMode(request.mode == FileDialogMode::Open ? AcceptOpen : AcceptSave);
    assert(files() && nameBox() && "the toolkit's file dialog has other parts than this one knows");
    showOwnPictures();
    QHeaderView& columns = *files()->header();
    columns.setStretchLastSection(false);
    columns.setSectionResizeMode(QHeaderView::ResizeToContents);
    columns.setSectionResizeMode(0, QHeaderView::Stretch);
    resize(enlarged(size()).boundedTo(roomForWindow()));
    if (!request.fileName.empty()) selectFile(fromPath(request.fileName));
}

/// The dialog has opened its first folder by now, with the desktop's picture of it.
void FileChooser::showOwnPictures() {
    setIconProvider(&FilePictures::shared());
    auto& folders = *findChild<QComboBox*>(QStringLiteral("lookInCombo"));
    folders.setItemIcon(folders.currentIndex(), FilePictures::shared().icon(FilePictures::Folder));
}

/// The toolkit's own mode for several files would turn off the button at a name without its ending.
void FileChooser::takeSeveral() {
    m_severalFiles = true;
    auto* icons = findChild<QListView*>(QStringLiteral("listView"));
    for (QAbstractItemView* view : std::initializer_list<QAbstractItemView*>{files(), icons}) {
        view->setSelectionMode(QAbstractItemView::ExtendedSelection);
        view->installEventFilter(this);
    }
}

/// Where several are selected, Enter takes the files; the toolkit would look at the row alone that
/// was reached last, and open it if that is a folder.
bool FileChooser::eventFilter(QObject* watched, QEvent* event) {
    const auto* view = qobject_cast<QAbstractItemView*>(watched);
    if (!view || event->type() != QEvent::KeyPress ||
        !isPressByEnter(static_cast<QKeyEvent&>(*event)) ||
        view->selectionModel()->selectedRows().size() < 2)
        return QFileDialog::eventFilter(watched, event);
    accept();
    return true;
}

QLineEdit* FileChooser::nameBox() const {
    return findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

QTreeView* FileChooser::files() const { return findChild<QTreeView*>(QStringLiteral("treeView")); }

void FileChooser::accept() {
    m_typed = nameBox()->text();
    if (m_rules == FileRules::Heeded) {
        m_place.folder = directory().absolutePath().toStdString();
        const QString folder = pickedFolder();
        if (!follow(folder.isEmpty() ? m_typed : folder)) return;
    } else if (m_typed.isEmpty()) {
        return QFileDialog::accept();  // a folder is selected: opens it
    }
    // QFileDialog would judge the name by rules of its own.
    QDialog::accept();  // NOLINT(bugprone-parent-virtual-call)
}

bool FileChooser::follow(const QString& name) {
    if (name.isEmpty()) return false;
    m_paths.clear();
    return takeAll(m_place, namesIn(name),
                   [this](const FileChoice& choice) { return take(choice); });
}

std::vector<std::string> FileChooser::namesIn(const QString& text) const {
    return m_severalFiles ? orvanta::namesIn(text.toStdString()) : std::vector{text.toStdString()};
}

bool FileChooser::take(const FileChoice& choice) {
    switch (choice.act) {
        case FileChoiceAct::EnterFolder:
            enter(QString::fromStdString(choice.path));
            return false;
        case FileChoiceAct::Refuse:
            refuse(choice);
            return false;
        case FileChoiceAct::TakeFile:
            m_paths.append(QString::fromStdString(choice.path));
    }
    return true;
}

/// A name that was typed before a folder was picked is kept for a file in that folder.
void FileChooser::enter(const QString& folder) {
    const std::string typed = choiceOf(m_place, m_typed.toStdString()).path;
    setDirectory(folder);
    if (typed != folder.toStdString()) return;
    nameBox()->clear();
    // What it proposed for the name goes with it, also what it is still looking for.
    nameBox()->completer()->setCompletionPrefix({});
    nameBox()->completer()->popup()->hide();
}

void FileChooser::refuse(const FileChoice& choice) {
    MessageBox* box = boxOfRefusal(choice, this).release();  // the dialog's child from here on
    box->setAttribute(Qt::WA_DeleteOnClose);
    box->open();
}

QString FileChooser::pickedFolder() const {
    const QModelIndexList selected = files()->selectionModel()->selectedRows();
    if (selected.size() != 1) return {};
    const QFileInfo file(selected.front().data(QFileSystemModel::FilePathRole).toString());
    const bool isShown = file.absolutePath() == directory().absolutePath();  // not the last folder
    const QString folder = file.absoluteFilePath();
    return isShown && file.isDir() && !isOneOfSeveralTyped(folder) ? folder : QString();
}

/// The toolkit itself selects a folder whose name is typed beside others.
bool FileChooser::isOneOfSeveralTyped(const QString& folder) const {
    const auto names = namesIn(m_typed);
    return names.size() > 1 && std::ranges::any_of(names, [&](const std::string& name) {
               return choiceOf(m_place, name).path == folder.toStdString();
           });
}

std::unique_ptr<MessageBox> boxOfRefusal(const FileChoice& choice, QWidget* owner) {
    auto box = std::make_unique<MessageBox>(Message{.text = {}, .icon = MessageIcon::Stop}, owner);
    box->setText(fromCp1252(choice.reason) + u'\n' + QString::fromStdString(choice.path));
    return box;
}

}  // namespace orvanta::desktop
