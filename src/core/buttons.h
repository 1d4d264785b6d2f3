#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "core/per_enum.h"
#include "view/control.h"

namespace orvanta {

/// The skinned buttons of the main window, in the order of their base names.
enum class Button {
    ABack,
    About,
    AFAdd,
    AFRemove,
    Analyze,
    ANext,
    AOAdd,
    AOEdit,
    AORemove,
    AQuit,
    ASAdd,
    ASEdit,
    ASRemove,
    ATAdd,
    ATEdit,
    ATRemove,
    AWAdd,
    AWEdit,
    AWRemove,
    BBack,
    BNext,
    BOAdd,
    BOEdit,
    BOpen,
    BORemove,
    BQuit,
    Brainstorm,
    BSAdd,
    BSEdit,
    BSRemove,
    BTAdd,
    BTEdit,
    BTRemove,
    BWAdd,
    BWEdit,
    BWRemove,
    OAFile,
    Overview,
    Print,
    Quit,
    Report,
    Count,
};

template <class T>
using PerButton = PerEnum<Button, T>;

enum class ButtonSize { Small, Large };

/// What a person sees of a button. Texts are Windows-1252.
struct ButtonFace {
    std::string_view baseName;
    ButtonSize size;
    std::string_view caption, toolTip;
};

const ButtonFace& faceOf(Button button);

/// The captions of the buttons that go on in a wizard.
inline constexpr std::string_view nextCaption = "Next>>", backCaption = "<<Back";

/// The picture and the caption of one button; either takes a press.
struct SkinnedButton {
    SkinnedButton(ControlSet& owner, std::string_view baseName);

    Image image;
    Label label;
    std::string baseName;

    void setToolTip(const std::string& toolTip);
};

/// All skinned buttons of the main window, with the faces that they have at first.
class SkinnedButtons {
public:
    explicit SkinnedButtons(ControlSet& owner);

    SkinnedButton& operator[](Button button) { return *m_buttons[button]; }
    const SkinnedButton& operator[](Button button) const { return *m_buttons[button]; }

private:
    PerButton<std::unique_ptr<SkinnedButton>> m_buttons;
};

}  // namespace orvanta
