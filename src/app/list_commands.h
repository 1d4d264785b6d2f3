#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "core/session_state.h"

namespace orvanta {

/// A command in the menu of a list, as it is at the moment.
struct ListCommand {
    std::string caption;     // Windows-1252
    std::string_view key{};  // that gives it while the list has the keyboard, as "Ctrl+M"
    bool isOffered = true;   // a person can choose it
    std::function<void(Program&)> choose;  // events of the main window
};

/// The commands of the menu of a list, in their order; empty for a list that has none.
std::vector<ListCommand> listCommandsOf(const FrmMain& form, const Control& list);

}  // namespace orvanta
