#include "desktop/file_chooser.h"
#include "desktop/system_file_dialog.h"

namespace orvanta::desktop {

QStringList askForFiles(const FileDialogRequest& request, FileCount count, QWidget* owner) {
    FileChooser chooser(request, FileRules::Heeded, owner);
    if (count == FileCount::Several) chooser.takeSeveral();
    return chooser.exec() == QDialog::Accepted ? chooser.paths() : QStringList();
}

}  // namespace orvanta::desktop
