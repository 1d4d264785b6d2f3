#include "app/shortcuts.h"

#include "app/window_events.h"

namespace orvanta {

namespace {

template <Button button>
void click(Program& program) {
    clickButton(program, button);
}

template <Button button>
Shortcut shortcutOf(const FrmMain& form, std::string_view keys, bool goesOn = false) {
    return {keys, &form.buttons[button].image, click<button>, goesOn};
}

}  // namespace

void clickButton(Program& program, Button button) {
    buttonPressed(program, button);
    buttonReleased(program, button);
}

std::vector<Shortcut> shortcutsOf(const FrmMain& form) {
    return {shortcutOf<Button::BNext>(form, "Ctrl+Return", true),
            shortcutOf<Button::BNext>(form, "PgDown", true),
            shortcutOf<Button::ANext>(form, "Ctrl+Return", true),
            shortcutOf<Button::ANext>(form, "PgDown", true),
            shortcutOf<Button::BBack>(form, "PgUp", true),
            shortcutOf<Button::ABack>(form, "PgUp", true),
            {"Ctrl+Z", &form.cmdUndo, undoClicked},
            {"Ctrl+Y", &form.cmdRedo, redoClicked},
            shortcutOf<Button::Overview>(form, "F1")};
}

}  // namespace orvanta
