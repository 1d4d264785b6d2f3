#pragma once

#include <QUrl>

namespace orvanta::desktop {

/// Opens a file, a web page or a new mail with the program that the system keeps for it, as a
/// double click does. It does not wait for that program, and a failure is not told.
void openBySystem(const QUrl& target);

}  // namespace orvanta::desktop
