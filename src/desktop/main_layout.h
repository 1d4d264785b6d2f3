#pragma once

#include "core/frm_main.h"
#include "desktop/control_area.h"

namespace orvanta::desktop {

// What the window alone decides of where the controls of the main form stand.

/// A heading says what to do on a step. Whatever its lines, it ends above what it heads.
bool isHeading(const FrmMain& form, const Control& control);

/// On a wide screen headings and boxes keep a width that an eye can follow. What stands beside a
/// box stays beside it.
Reach reachOf(const FrmMain& form, const Control& control);

}  // namespace orvanta::desktop
