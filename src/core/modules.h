#pragma once

#include <string>
#include <string_view>

#include "core/frm_main.h"
#include "core/per_enum.h"

namespace orvanta {

/// The question banks that a person can choose, in the order in which their options are tested:
/// the first that is on counts.
enum class ModuleId { GBS, HRP, MP, PSD, SBD, Count };

template <class T>
using PerModule = PerEnum<ModuleId, T>;

struct Module {
    Option FrmMain::*option;
    std::string_view code;  // in file names
};

inline constexpr PerModule<Module> modules{{
    {ModuleId::GBS, {.option = &FrmMain::optGBS, .code = "gbs"}},
    {ModuleId::HRP, {.option = &FrmMain::optHRP, .code = "hrp"}},
    {ModuleId::MP, {.option = &FrmMain::optMP, .code = "mp"}},
    {ModuleId::PSD, {.option = &FrmMain::optPSD, .code = "psd"}},
    {ModuleId::SBD, {.option = &FrmMain::optSBD, .code = "sbd"}},
}};

/// The modules from top to bottom of the screen.
inline constexpr std::array offeredModules{ModuleId::GBS, ModuleId::MP, ModuleId::SBD,
                                           ModuleId::PSD, ModuleId::HRP};
static_assert(offeredModules.size() == countOf<ModuleId>);

/// The module whose option is on; null for none.
const Module* chosenModule(const FrmMain& form);

/// The code of the chosen module; empty for none.
std::string chosenCode(const FrmMain& form);

/// The chosen module's word in session files, the code in upper case; empty for none.
std::string chosenModuleWord(const FrmMain& form);

/// Turns on the option with this word. An unknown word does nothing.
void chooseModuleByWord(FrmMain& form, std::string_view word);

}  // namespace orvanta
