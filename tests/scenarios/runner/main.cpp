#include <algorithm>
#include <cstdio>
#include <fstream>
#include <iostream>
#include <optional>

#include "difference.h"
#include "driver_process.h"
#include "scenario.h"
#ifndef _WIN32
#include <signal.h>

#include "virtual_display.h"
#endif

namespace {

namespace fs = std::filesystem;
using namespace orvanta::scenarios;

constexpr const char* usage =
    "usage: orvanta_scenarios --driver FILE --scenarios DIR [--window] [--xvfb] [--accept]\n"
    "                         [--time-out SECONDS] [AREA/CLAIM ...]\n"
    "Plays the named scenarios, or all, and compares each answer with the kept one; --accept\n"
    "keeps the answers given now. --window plays on the real window, --xvfb in an X server\n"
    "without a screen.\n";

constexpr std::size_t mostShown = 12;

struct Task {
    ScenarioSetup setup;
    fs::path scenarios;
    std::vector<std::string> names;
    bool accept = false;
    bool xvfb = false;
};

std::optional<Task> taskFrom(const std::vector<std::string>& words) {
    Task task;
    for (auto word = words.begin(); word != words.end(); ++word) {
        const bool last = word + 1 == words.end();
        if (*word == "--window")
            task.setup.window = true;
        else if (*word == "--xvfb")
            task.xvfb = true;
        else if (*word == "--accept")
            task.accept = true;
        else if (!word->starts_with("--"))
            task.names.push_back(*word);
        else if (last)
            return std::nullopt;
        else if (*word == "--driver")
            task.setup.driver = fs::absolute(*++word).string();
        else if (*word == "--scenarios")
            task.scenarios = *++word;
        else if (*word == "--time-out")
            task.setup.timeOut = std::chrono::seconds(std::stoi(*++word));
        else
            return std::nullopt;
    }
    if (task.setup.driver.empty() || task.scenarios.empty()) return std::nullopt;
    task.setup.standard = task.scenarios / "standard";
    return task;
}

/// The names of all scenarios, AREA/CLAIM, in order.
std::vector<std::string> allIn(const fs::path& scenarios) {
    std::vector<std::string> names;
    for (const auto& entry : fs::recursive_directory_iterator(scenarios))
        if (entry.path().filename() == "lines.jsonl")
            names.push_back(fs::relative(entry.path().parent_path(), scenarios).generic_string());
    std::ranges::sort(names);
    return names;
}

void keep(const std::vector<Played>& played, const fs::path& expected) {
    std::ofstream out(expected, std::ios::binary);
    for (const Played& step : played) out << step.answer.dump() << '\n';
    if (!out.flush()) throw Broken("the answers can't be written");
}

std::vector<Json> keptAnswers(const fs::path& expected) {
    std::vector<Json> answers;
    std::ifstream in(expected, std::ios::binary);
    std::string line;
    while (std::getline(in, line)) {
        answers.push_back(Json::parse(line, nullptr, false));
        if (answers.back().is_discarded()) throw Broken("kept answer is no JSON: " + line);
    }
    return answers;
}

/// Prints where the answers differ from the kept ones; true if they don't.
bool equalsKept(const std::vector<Played>& played, const std::vector<Json>& kept) {
    std::size_t shown = 0;
    for (std::size_t i = 0; i < std::min(played.size(), kept.size()); ++i) {
        const auto found = differences(kept[i], played[i].answer);
        if (found.empty()) continue;
        if (shown++ == mostShown) {
            std::cout << "  and more\n";
            break;
        }
        std::cout << "  answer " << i + 1 << " to " << played[i].line << '\n';
        for (const std::string& difference : found) std::cout << "    " << difference << '\n';
    }
    if (played.size() != kept.size())
        std::cout << "  " << played.size() << " answers given, " << kept.size() << " kept\n";
    return shown == 0 && played.size() == kept.size();
}

bool passes(const Task& task, const std::string& name) {
    const fs::path scenario = task.scenarios / name;
    try {
        const auto played = play(task.setup, scenario);
        if (!task.accept) return equalsKept(played, keptAnswers(scenario / "expected.jsonl"));
        keep(played, scenario / "expected.jsonl");
        return true;
    } catch (const std::exception& failure) {
        std::cout << "  " << failure.what() << '\n';
        return false;
    }
}

int playAll(const Task& task) {
#ifndef _WIN32
    std::optional<VirtualDisplay> display;
    if (task.xvfb) display.emplace();
#endif
    const auto names = task.names.empty() ? allIn(task.scenarios) : task.names;
    std::size_t failed = 0;
    for (const std::string& name : names) {
        const bool passed = passes(task, name);
        if (!passed) ++failed;
        std::cout << (passed ? "passed " : "FAILED ") << name << std::endl;
    }
    std::cout << names.size() - failed << " passed, " << failed << " failed" << std::endl;
    return names.empty() || failed > 0 ? 1 : 0;
}

}  // namespace

int main(int argc, char** argv) {
#ifndef _WIN32
    // A driver that has gone is told by the failing write.
    ::signal(SIGPIPE, SIG_IGN);
#endif
    try {
        const auto task = taskFrom({argv + 1, argv + argc});
        if (task) return playAll(*task);
    } catch (const std::exception& failure) {
        std::cout << failure.what() << std::endl;
        return 1;
    }
    std::fputs(usage, stderr);
    return 2;
}
