#include "lookup.h"

#include <algorithm>

namespace orvanta::driver {

Control* controlNamed(const ControlSet& controls, std::string_view name) {
    const auto found = std::ranges::find(controls.all(), name, &Control::name);
    return found == controls.all().end() ? nullptr : *found;
}

std::optional<Button> buttonNamed(const FrmMain& form, std::string_view baseName) {
    for (std::size_t i = 0; i < buttonCount; ++i)
        if (const auto button = static_cast<Button>(i); form.buttons[button].baseName == baseName)
            return button;
    return std::nullopt;
}

}  // namespace orvanta::driver
