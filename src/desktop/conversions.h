#pragma once

#include <QFont>
#include <QString>
#include <cassert>
#include <string>
#include <string_view>

#include "view/platform.h"
#include "view/units.h"

namespace orvanta::desktop {

// The edge between the models and Qt.

QString fromCp1252(std::string_view text);
/// Each character that the code page does not hold becomes one "?".
std::string toCp1252(const QString& text);
/// True if the code page holds every character.
bool fitsCp1252(const QString& text);

/// The name that a path stands for, whatever its characters are, and back.
QString fromPath(std::string_view path);
std::string toPath(const QString& name);

/// A caption as a person reads it: "&&" stands for "&", blanks at its ends are left out.
QString shownCaption(std::string_view caption);
/// A tool tip that wraps and is never taken for markup.
QString shownToolTip(const QString& toolTip);

/// Lengths and type sizes of a layout, in pixels of this screen, enlarged with the letters.
class PixelGrid {
public:
    /// The screen must outlive the grid.
    explicit PixelGrid(const orvanta::Screen& screen) : m_screen(screen) {
        assert(screen.twipsPerPixel() > 0);
    }

    double exact(Twips length) const;
    int pixels(Twips length) const;
    QFont font(Points size, bool bold = false) const;

private:
    const orvanta::Screen& m_screen;
};

}  // namespace orvanta::desktop
