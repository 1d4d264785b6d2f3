#pragma once

#include <span>
#include <string_view>

#include "core/frm_main.h"

namespace orvanta {

/// The code of a wizard's step in a temporary file.
struct StepCode {
    std::string_view code;
    Panel FrmMain::*panel;
};

/// The code of the panel that is visible, the last one of several; empty for none.
inline std::string_view stepCodeOnScreen(const FrmMain& form, std::span<const StepCode> codes) {
    std::string_view step;
    for (const StepCode& code : codes)
        if ((form.*code.panel).isVisible()) step = code.code;
    return step;
}

/// Shows the panel of a code and hides none. An unknown code does nothing.
inline void showStep(FrmMain& form, std::span<const StepCode> codes, std::string_view step) {
    for (const StepCode& code : codes)
        if (code.code == step) (form.*code.panel).show();
}

}  // namespace orvanta
