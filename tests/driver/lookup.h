#pragma once

#include <optional>
#include <string_view>

#include "core/frm_main.h"

namespace orvanta::driver {

/// The control of this name; null if the form has none.
Control* controlNamed(const ControlSet& controls, std::string_view name);

/// The skinned button of the main window with this base name; none if there is none.
std::optional<Button> buttonNamed(const FrmMain& form, std::string_view baseName);

}  // namespace orvanta::driver
