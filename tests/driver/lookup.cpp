#include "lookup.h"

#include <algorithm>

namespace orvanta::driver {

Control* controlNamed(const ControlSet& controls, std::string_view name) {
    const auto found = std::ranges::find(controls.all(), name, &Control::name);
    return found == controls.all().end() ? nullptr : *found;
}

std::optional<Button> buttonNamed(const FrmMain& form, std::string_view baseName) {
    for (const Button button : allOf<Button>)
        if (form.buttons[button].baseName == baseName) return button;
    return std::nullopt;
}

}  // namespace orvanta::driver
