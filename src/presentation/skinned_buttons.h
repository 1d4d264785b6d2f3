#pragma once

#include <string_view>

#include "core/buttons.h"
#include "core/session_state.h"

namespace orvanta {

/// The face of one button and what it does.
struct ButtonDesign {
    Button button;
    std::string_view baseName;
    bool large;
    std::string_view caption, toolTip;  // Windows-1252
    void (*action)(Program&);
};

const ButtonDesign& designOf(Button button);

/// The mouse went down on a button of the main window: it shows its pressed art.
void pressButton(Program& program, Button button);

/// The mouse was let go. The art returns to normal first, so that the button looks released
/// while its action runs.
void releaseButton(Program& program, Button button);

/// Shows the overview presentation in the browser. The narration goes on.
void openOverviewPage(Program& program);

}  // namespace orvanta
