#pragma once

#include "core/constants.h"
#include "core/session_state.h"

namespace orvanta {

/// The picture at the start. It closes when its timer fires, or at the first key press.
struct FrmSplash {
    std::string caption{appTitle};
    Twips width{480 * 15.0}, height{300 * 15.0};
};

/// Fits the layout to a display with large fonts; any other leaves it as designed.
void shrinkForLargeFonts(FrmSplash& form, double twipsPerPixel);

inline constexpr int splashMilliseconds = 1000;

void showSplash(Program& program);

}  // namespace orvanta
