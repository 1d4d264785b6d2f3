#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "core/session_state.h"

namespace orvanta {

/// A command in the menu of a list.
struct ListCommand {
    enum class Needs { Nothing, ChosenRow, RemovableRow };

    std::string_view caption;
    Needs needs = Needs::Nothing;
    bool onDeleteKey = false;              // too, while the list has the keyboard
    std::function<void(Program&)> choose;  // an event of the main window
};

/// The commands of the menu of a list, in their order; empty for a list that has none.
std::vector<ListCommand> listCommandsOf(const FrmMain& form, const Control& list);

/// True if a person can choose the command now.
bool isOffered(const FrmMain& form, const Control& list, const ListCommand& command);

}  // namespace orvanta
