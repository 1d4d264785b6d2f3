#include "desktop/file_chooser.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QStandardPaths>
#include <QTreeView>
#include <cassert>

#include "desktop/conversions.h"

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

/// The folder to begin in: the path itself or, if that names a file, the folder that holds it.
QString startFolder(const std::string& initialPath) {
    const QFileInfo info(fromCp1252(initialPath));
    if (!initialPath.empty() && info.isDir()) return info.filePath();
    if (!initialPath.empty() && info.absoluteDir().exists()) return info.absolutePath();
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    return QFileInfo::exists(documents) ? documents : QDir::homePath();
}

}  // namespace

FileChooser::FileChooser(const FileDialogRequest& request, QWidget* owner)
    : QFileDialog(owner, {}, startFolder(request.initialPath), filterFrom(request.filter)) {
    setOption(DontUseNativeDialog);
    setOption(DontConfirmOverwrite);
    setFileMode(AnyFile);
    setAcceptMode(request.mode == FileDialogMode::Open ? AcceptOpen : AcceptSave);
    auto* files = findChild<QTreeView*>(QStringLiteral("treeView"));
    assert(files && nameBox() && "the toolkit's file dialog has other parts than this one knows");
    QHeaderView& columns = *files->header();
    columns.setStretchLastSection(false);
    columns.setSectionResizeMode(QHeaderView::ResizeToContents);
    columns.setSectionResizeMode(0, QHeaderView::Stretch);
    if (!request.fileName.empty()) selectFile(fromCp1252(request.fileName));
}

QLineEdit* FileChooser::nameBox() const {
    return findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

void FileChooser::accept() {
    m_typed = nameBox()->text();
    if (m_typed.isEmpty()) return QFileDialog::accept();  // a folder is selected: opens it
    // QFileDialog would judge the name by rules of its own.
    QDialog::accept();  // NOLINT(bugprone-parent-virtual-call)
}

}  // namespace orvanta::desktop
