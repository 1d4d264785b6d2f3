#pragma once

#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "look.h"

namespace orvanta::scenarios {

/// What a scenario is played with.
struct ScenarioSetup {
    std::string driver;                // the program file of the test driver
    std::filesystem::path standard;    // its app/ takes the place of missing question banks
    bool window = false;               // on the real window
    std::chrono::seconds timeOut{60};  // for a whole scenario
};

/// A line of a scenario and what came of it.
struct Played {
    std::string line;
    Json answer;
};

/// Plays the scenario of this folder, from its lines.jsonl, in a new folder of its own that is
/// removed behind it. Its name reads $DIR in lines and answers.
std::vector<Played> play(const ScenarioSetup& setup, const std::filesystem::path& scenario);

}  // namespace orvanta::scenarios
