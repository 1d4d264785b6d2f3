#pragma once

#include <array>
#include <string_view>

#include "core/buttons.h"

namespace orvanta {

/// What a person does with one of the buttons that lead through an analysis. Windows-1252.
struct HomeStep {
    Button button;
    std::string_view words;
};

/// The way from the first thought to the report, in its order. It is told while no module is open.
inline constexpr std::array homeSteps{
    HomeStep{Button::Brainstorm, "Brainstorm: collect what each of you thinks, alone, in a file."},
    HomeStep{Button::Analyze, "Analyze: bring the files of your team together, rank and map."},
    HomeStep{Button::Report, "Reports: get the result as a web page or a document."},
};

}  // namespace orvanta
