#include <QDesktopServices>

#include "desktop/system_shell.h"

namespace orvanta::desktop {

void openBySystem(const QUrl& target) { QDesktopServices::openUrl(target); }

}  // namespace orvanta::desktop
