#pragma once

#include <array>
#include <string_view>

#include "core/frm_main.h"

namespace orvanta {

/// One of the five question banks that a person can choose.
struct Module {
    Option FrmMain::*option;
    std::string_view code;  // in file names
};

/// In the order in which the options are tested; the first that is on counts.
inline constexpr std::array<Module, 5> modules{{
    {&FrmMain::optGBS, "gbs"},
    {&FrmMain::optHRP, "hrp"},
    {&FrmMain::optMP, "mp"},
    {&FrmMain::optPSD, "psd"},
    {&FrmMain::optSBD, "sbd"},
}};

/// The module whose option is on; null for none.
const Module* chosenModule(const FrmMain& form);

/// The code of the chosen module; empty for none.
std::string chosenCode(const FrmMain& form);

/// The chosen module's word in session files, the code in upper case; empty for none.
std::string chosenModuleWord(const FrmMain& form);

/// Turns on the option with this word. An unknown word does nothing.
void chooseModuleByWord(FrmMain& form, std::string_view word);

}  // namespace orvanta
