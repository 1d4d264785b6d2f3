#pragma once

#include <QFont>
#include <QStringList>
#include <limits>

namespace orvanta::desktop {

/// A paragraph in the lines that it takes in a width of so many pixels, at least one. A word that
/// is wider is broken. The last of the most lines that there may be holds all the rest.
QStringList linesOf(const QString& paragraph, const QFont& font, int width,
                    int mostLines = std::numeric_limits<int>::max());

}  // namespace orvanta::desktop
