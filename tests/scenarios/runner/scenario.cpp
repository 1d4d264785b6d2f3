#include "scenario.h"

#include <algorithm>
#include <fstream>
#include <memory>
#include <random>
#include <sstream>

#include "driver_process.h"
#include "view/platform.h"
#include "view/windows1252.h"

// Besides the driver's own lines a scenario may hold lines for the one who plays it:
// {"look":[paths]} asks for the state and keeps what the paths lead to, {"restart":true} ends
// the driver as a crash does and starts another on the same folders, {"file":path} shows a
// file's bytes, read as Windows-1252, line by line with their ends, and {"remove":path} takes a
// file off the disk.

namespace orvanta::scenarios {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view folderWord = "$DIR";

/// A new folder, removed with all it holds.
class TemporaryFolder {
public:
    TemporaryFolder() {
        fs::path folder;
        do {
            folder = fs::temp_directory_path() / ("scenario-" + std::to_string(m_random()));
        } while (!fs::create_directory(folder));
        fs::permissions(folder, fs::perms::owner_all);
        m_path = fs::canonical(folder);
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code passedOver;
        fs::remove_all(m_path, passedOver);
    }
    const fs::path& path() const { return m_path; }

private:
    std::random_device m_random;
    fs::path m_path;
};

std::string replaced(std::string text, std::string_view what, std::string_view by) {
    std::size_t at = 0;
    while ((at = text.find(what, at)) != std::string::npos) {
        text.replace(at, what.size(), by);
        at += by.size();
    }
    return text;
}

/// A scenario is written with slashes. What follows the folder in a text is a path.
std::string withSeparator(std::string text, char from, char to) {
    const std::size_t folder = text.find(folderWord);
    if (folder != text.npos)
        std::replace(text.begin() + static_cast<std::ptrdiff_t>(folder), text.end(), from, to);
    return text;
}

std::string ofSystem(const std::string& text, const fs::path& folder) {
    return replaced(withSeparator(text, '/', pathSeparator), folderWord, folder.string());
}

std::string ofScenario(const std::string& text, const fs::path& folder) {
    return withSeparator(replaced(text, folder.string(), folderWord), pathSeparator, '/');
}

/// The value with each of its strings changed so.
template <class Change>
Json changed(const Json& value, Change change) {
    if (value.is_string()) return change(value.get<std::string>());
    if (!value.is_structured()) return value;
    Json result = value;
    for (Json& inner : result) inner = changed(inner, change);
    return result;
}

std::string bytesOf(const fs::path& path) {
    std::ostringstream bytes;
    bytes << std::ifstream(path, std::ios::binary).rdbuf();
    return bytes.str();
}

bool holdsBanks(const fs::path& folder) {
    if (!fs::is_directory(folder)) return false;
    for (const auto& entry : fs::directory_iterator(folder))
        if (entry.path().filename().string().ends_with("questions.txt")) return true;
    return false;
}

/// One scenario while it is played.
class Play {
public:
    Play(const ScenarioSetup& setup, const fs::path& scenario) : m_setup(setup) {
        for (const char* folder : {"app", "docs"}) fs::create_directory(m_folder.path() / folder);
        const fs::path start = scenario / "start";
        if (!holdsBanks(start / "app")) copy(setup.standard);
        if (fs::exists(start)) copy(start);
        startDriver();
    }

    Json answerTo(const Json& line) {
        if (line.contains("look")) return look(line["look"]);
        if (line.contains("file")) return file(line["file"].get<std::string>());
        if (line.contains("remove")) return remove(line["remove"].get<std::string>());
        if (line.contains("restart")) return restart();
        Json answer = ask(line);
        if (hasExited(answer)) {
            m_driver->finish(0);
            m_driver.reset();
        }
        return answer;
    }

    void end() {
        if (m_driver) m_driver->finish(0);
    }

private:
    void copy(const fs::path& from) {
        fs::copy(from, m_folder.path(),
                 fs::copy_options::recursive | fs::copy_options::overwrite_existing);
    }

    void startDriver() {
        const fs::path& folder = m_folder.path();
        const auto inFolder = [&](const char* name) { return (folder / name).string(); };
        std::vector<std::string> command{
            m_setup.driver,   "--app",      inFolder("app"),          "--documents",
            inFolder("docs"), "--settings", inFolder("settings.json")};
        if (m_setup.window) command.push_back("--window");
        m_driver = std::make_unique<DriverProcess>(command, folder, m_deadline);
    }

    Json ask(const Json& line) {
        if (!m_driver) throw Broken("the program has ended, and the scenario goes on");
        const fs::path& folder = m_folder.path();
        m_driver->send(
            changed(line, [&](const std::string& text) { return ofSystem(text, folder); }).dump());
        const Json answer = Json::parse(m_driver->receive(), nullptr, false);
        if (answer.is_discarded()) throw Broken("the driver's answer is no JSON");
        return toScenario(answer);
    }

    Json toScenario(const Json& value) const {
        return changed(
            value, [this](const std::string& text) { return ofScenario(text, m_folder.path()); });
    }

    static bool hasExited(const Json& answer) {
        if (!answer.contains("events")) return false;
        for (const Json& event : answer["events"])
            if (event.at("event") == "exit") return true;
        return false;
    }

    Json look(const Json& paths) {
        const Json answer = ask({{"do", "state"}});
        Json seen = Json::object();
        for (const Json& path : paths) {
            const std::string name = path.get<std::string>();
            seen[name] = lookedAt(answer.at("state"), name);
        }
        Json result{{"look", std::move(seen)}};
        if (!answer.at("events").empty()) result["events"] = answer["events"];
        return result;
    }

    Json file(const std::string& name) const {
        const fs::path path = m_folder.path() / name;
        if (fs::is_directory(path)) return {{"file", name}, {"folder", true}};
        if (!fs::is_regular_file(path)) return {{"file", name}, {"lines", nullptr}};
        Json lines = Json::array();
        const std::string bytes = bytesOf(path);
        for (std::size_t at = 0; at < bytes.size();) {
            const std::size_t end = std::min(bytes.find('\n', at), bytes.size() - 1) + 1;
            lines.push_back(utf8From1252(std::string_view(bytes).substr(at, end - at)));
            at = end;
        }
        return toScenario({{"file", name}, {"lines", std::move(lines)}});
    }

    Json remove(const std::string& name) const {
        return {{"remove", name}, {"removed", fs::remove(m_folder.path() / name)}};
    }

    Json restart() {
        if (m_driver) {
            m_driver->send(Json{{"do", "kill"}}.dump());
            m_driver->finish(1);
        }
        startDriver();
        return {{"restart", true}};
    }

    const ScenarioSetup& m_setup;
    TemporaryFolder m_folder;
    Deadline m_deadline = std::chrono::steady_clock::now() + m_setup.timeOut;
    std::unique_ptr<DriverProcess> m_driver;
};

bool isComment(const std::string& line) {
    const std::size_t first = line.find_first_not_of(" \t\r");
    return first == std::string::npos || line[first] == '#';
}

}  // namespace

std::vector<Played> play(const ScenarioSetup& setup, const fs::path& scenario) {
    Play play(setup, scenario);
    std::ifstream lines(scenario / "lines.jsonl", std::ios::binary);
    std::vector<Played> played;
    std::string line;
    while (std::getline(lines, line)) {
        if (isComment(line)) continue;
        const Json parsed = Json::parse(line, nullptr, false);
        if (!parsed.is_object()) throw Broken("this line is no JSON object: " + line);
        try {
            played.push_back({line, play.answerTo(parsed)});
        } catch (const Broken& broken) {
            throw Broken("at " + line + "\n    " + broken.what());
        }
    }
    play.end();
    if (played.empty()) throw Broken("the scenario holds no line");
    return played;
}

}  // namespace orvanta::scenarios
