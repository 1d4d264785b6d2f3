#include "sandbox.h"

#include <cstdlib>

#include "bench.h"
#include "full_analysis.h"

namespace orvanta::monkey {

namespace {

namespace fs = std::filesystem;
using test::Texts;

/// Statements of one person, so many of each kind.
std::string answersOf(const std::string& name, int count) {
    const auto said = [&](const std::string& what) {
        Texts texts;
        for (int i = 1; i <= count; ++i)
            texts.emplace_back(what).append(" ").append(std::to_string(i)).append(" of " + name);
        return texts;
    };
    return test::brainstormFile(name, "GBS", said("Brand"), said("Price"), said("Export"),
                                said("Rival"));
}

std::string headings() {
    Texts lines;
    for (int i = 1; i <= 6; ++i)
        lines.insert(lines.end(), {"<QUESTION>", "Heading " + std::to_string(i)});
    return test::lines(lines) + "<QUESTION>\r\n";
}

}  // namespace

Sandbox::Sandbox() {
    disk.folders.insert(m_folder.path());
    for (const char* folder : {"app", "app/Sounds", "docs", "docs/team", "home"}) addFolder(folder);
    for (const char* code : {"gbs", "hrp", "mp"})
        addFile("app/" + std::string(code) + "questions.txt", test::bankOf(2));
    addFile("app/analyzequestions.txt", headings());
    for (const char* clip : {"gbs_S1", "gbs_W1", "analyze_S", "analyze_OM", "analyze_TM"})
        addFile("app/Sounds/" + std::string(clip) + ".swf", "clip");
    addFile("docs/ann.bsm", answersOf("Ann", 3));
    addFile("docs/bo.bsm", answersOf("Bo", 1));
    addFile("docs/team/zo\xC3\xAB.bsm", answersOf("Zo\xEB", 2));
    addFile("docs/pedal.aze", test::lines(test::fullAnalysis));
    ::setenv("HOME", path("home").c_str(), 1);
}

bool Sandbox::holds(const std::string& path) const {
    return path == m_folder.path() || path.starts_with(m_folder.path() + "/");
}

std::string Sandbox::differingFile() const {
    test::Texts real;
    for (const auto& entry : fs::recursive_directory_iterator(m_folder.path())) {
        if (!entry.is_regular_file() || entry.path().filename() == "settings") continue;
        const std::string path = windows1252From(entry.path().string());
        const auto played = disk.files.find(path);
        std::string name = entry.path().lexically_relative(m_folder.path()).string();
        if (played == disk.files.end() || played->second != m_folder.read(name)) return name;
        real.push_back(path);
    }
    for (const auto& [path, bytes] : disk.files)
        if (std::ranges::find(real, path) == real.end()) return path;
    return {};
}

void Sandbox::takeOver(const std::string& path) {
    const fs::path file = path;
    if (!fs::exists(file)) return void(disk.files.erase(path));
    disk.files[path] = m_folder.read(file.lexically_relative(m_folder.path()).string());
}

void Sandbox::addFolder(const std::string& name) {
    fs::create_directory(path(name));
    disk.folders.insert(path(name));
}

void Sandbox::addFile(const std::string& name, const std::string& bytes) {
    m_folder.write(name, bytes);
    disk.files[windows1252From(path(name))] = bytes;
}

}  // namespace orvanta::monkey
