#include "core/modules.h"

#include <algorithm>

namespace orvanta {

namespace {

std::string wordOfModule(const Module& module) {
    std::string word(module.code);
    for (char& letter : word) letter = static_cast<char>(letter - 'a' + 'A');
    return word;
}

}  // namespace

const Module* chosenModule(const FrmMain& form) {
    const auto on = [&](const Module& module) { return (form.*module.option).isOn(); };
    const auto* found = std::ranges::find_if(modules, on);
    return found == modules.end() ? nullptr : found;
}

std::string chosenCode(const FrmMain& form) {
    const Module* module = chosenModule(form);
    return module ? std::string(module->code) : std::string();
}

std::string chosenModuleWord(const FrmMain& form) {
    const Module* module = chosenModule(form);
    return module ? wordOfModule(*module) : std::string();
}

void chooseModuleByWord(FrmMain& form, std::string_view word) {
    const auto* found = std::ranges::find(modules, word, wordOfModule);
    if (found != modules.end()) (form.*found->option).setOn(true);
}

}  // namespace orvanta
