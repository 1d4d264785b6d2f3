#pragma once

#include <vector>

#include "desktop/control_area.h"

namespace orvanta::desktop {

/// What Tab reaches in an area and those within it, as the eye goes: row by row, within a row
/// column by column and so on. What stands beside each other by a part of its height makes a row.
/// The controls of an inner area stay together, the options of a choice too.
std::vector<QWidget*> inReadingOrder(const ControlArea& area);

/// Lets Tab go through the controls in this order, from the window itself on.
void setTabOrder(QWidget& window, const std::vector<QWidget*>& stops);

}  // namespace orvanta::desktop
