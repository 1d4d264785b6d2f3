#pragma once

#include <array>
#include <cstddef>
#include <memory>
#include <string>
#include <string_view>

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
};

inline constexpr std::size_t buttonCount = 41;

/// The picture and the caption of one button; either takes a press.
struct SkinnedButton {
    SkinnedButton(ControlSet& owner, std::string_view baseName);

    Image image;
    Label label;
    std::string baseName;

    void setToolTip(const std::string& toolTip);
};

/// All skinned buttons of the main window. Captions and tool tips are those of their table.
class SkinnedButtons {
public:
    explicit SkinnedButtons(ControlSet& owner);

    SkinnedButton& operator[](Button button) {
        return *m_buttons[static_cast<std::size_t>(button)];
    }
    const SkinnedButton& operator[](Button button) const {
        return *m_buttons[static_cast<std::size_t>(button)];
    }

private:
    std::array<std::unique_ptr<SkinnedButton>, buttonCount> m_buttons;
};

}  // namespace orvanta
