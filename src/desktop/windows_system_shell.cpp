#include <windows.h>
// Needs the former.
#include <shellapi.h>

#include <QDir>

#include "desktop/system_shell.h"

namespace orvanta::desktop {

// The toolkit would look up the mail program by itself, and cuts a long invitation.
void openBySystem(const QUrl& target) {
    const QString name = target.isLocalFile() ? QDir::toNativeSeparators(target.toLocalFile())
                                              : QString::fromLatin1(target.toEncoded());
    ShellExecuteW(nullptr, L"open", reinterpret_cast<const wchar_t*>(name.utf16()), nullptr,
                  nullptr, SW_SHOWNORMAL);
}

}  // namespace orvanta::desktop
