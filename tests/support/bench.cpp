#include "bench.h"

#include <gtest/gtest.h>
#include <stdlib.h>
#include <unistd.h>

#include <algorithm>
#include <filesystem>
#include <stdexcept>

#include "core/constants.h"
#include "lookup.h"
#include "temporary_folder.h"

namespace orvanta::test {

namespace {

/// A settings file that no other test sees.
std::string newSettingsFile() {
    std::string path = (memoryFolder() / "orvanta-settings-XXXXXX").string();
    const int descriptor = ::mkstemp(path.data());
    EXPECT_GE(descriptor, 0);
    ::close(descriptor);
    std::filesystem::remove(path);
    return path;
}

template <class Kind>
Kind& found(Kind* control, const std::string& name) {
    return control ? *control : throw std::out_of_range(name);
}

Texts nonEmpty(const JournalRecords& records) {
    Texts result;
    std::ranges::copy_if(records, std::back_inserter(result),
                         [](const std::string& entry) { return !entry.empty(); });
    return result;
}

/// The same with slashes in the paths of the program's own folders.
Json withSlashesInPaths(const Json& value) {
    if (value.is_string()) {
        const auto text = value.get<std::string>();
        const bool isPath =
            text.starts_with(systemPath("app/")) || text.starts_with(systemPath("docs/"));
        return isPath ? withSlashes(text) : text;
    }
    Json result = value;
    if (value.is_structured())
        for (Json& inner : result) inner = withSlashesInPaths(inner);
    return result;
}

}  // namespace

Bench::Bench() : m_settingsFile(newSettingsFile()) {
    disk.folders = {"app", "docs"};
    for (const char* code : {"gbs", "hrp", "mp", "psd", "sbd"})
        disk.files["app/" + std::string(code) + "questions.txt"] = bankOf(3);
    Texts headings;
    for (int i = 1; i <= 6; ++i)
        headings.insert(headings.end(), {"<QUESTION>", "Heading " + std::to_string(i)});
    headings.push_back("<QUESTION>");
    disk.files["app/analyzequestions.txt"] = lines(headings);
    makeDriver();
}

Bench::~Bench() { std::filesystem::remove(m_settingsFile); }

void Bench::makeDriver() {
    m_driver.reset();
    m_stage = driver::makeModelStage();
    m_driver = std::make_unique<driver::Driver>(*m_stage, disk,
                                                driver::Folders{"app", "docs", m_settingsFile});
}

void Bench::start() {
    play({{"do", "start"}});
    m_events = Json::array();
}

void Bench::restart() {
    makeDriver();
    start();
}

Json Bench::answerTo(const Json& line) { return withSlashesInPaths(m_driver->answer(line.dump())); }

void Bench::play(const Json& line) {
    const Json answer = answerTo(line);
    ASSERT_TRUE(answer.contains("events")) << line << " was refused: " << answer;
    for (const Json& event : answer["events"]) m_events.push_back(event);
}

Json Bench::events() { return std::exchange(m_events, Json::array()); }

Json Bench::events(std::string_view name) {
    Json named = Json::array();
    for (const Json& event : events())
        if (event["event"] == name) named.push_back(event);
    return named;
}

Texts Bench::messages() {
    Texts texts;
    for (const Json& event : events("message"))
        texts.push_back(windows1252From(event["text"].get<std::string>()));
    return texts;
}

void Bench::openBrainstorm(const std::string& option, const std::string& name) {
    click("Brainstorm");
    set("txtName", name);
    play({{"do", "choose"}, {"option", option}});
    click("BNext");
    m_events = Json::array();
}

void Bench::enter(const std::string& box, std::initializer_list<std::string> texts) {
    for (const std::string& text : texts) {
        set(box, text);
        play({{"do", "enter"}, {"control", box}});
    }
}

void Bench::set(const std::string& box, const std::string& text) {
    play({{"do", "set"}, {"control", box}, {"text", utf8From1252(text)}});
}

void Bench::click(const std::string& button) { play({{"do", "click"}, {"button", button}}); }
void Bench::clickControl(const std::string& control) {
    play({{"do", "click"}, {"control", control}});
}
void Bench::select(const std::string& list, int row) {
    play({{"do", "select"}, {"list", list}, {"row", row}});
}

void Bench::drag(const std::string& from, int row, const std::string& to, int at) {
    play({{"do", "drag"}, {"list", from}, {"row", row}, {"to", to}, {"at", at}});
}

void Bench::answerMessage(const std::string& button) {
    play({{"answer", "message"}, {"button", button}});
}

void Bench::answerFile(const std::string& path) {
    play({{"answer", "fileDialog"}, {"path", utf8From1252(path)}});
}

void Bench::answerEdit(const std::string& text) {
    const Json steps = Json::array({{{"text", utf8From1252(text)}}, {{"press", "ok"}}});
    play({{"answer", "frmEdit"}, {"steps", steps}});
}

void Bench::addSource(const std::string& path, const std::string& name, const Texts& strengths,
                      const Texts& weaknesses, const Texts& opportunities, const Texts& threats) {
    disk.files[path] = brainstormFile(name, "GBS", strengths, weaknesses, opportunities, threats);
    answerFile(path);
    click("AFAdd");
}

Control& Bench::control(const std::string& name) {
    return found(driver::controlNamed(form().controls, name), name);
}
StatementList& Bench::list(const std::string& name) {
    return found(control(name).as<StatementList>(), name);
}
TextBox& Bench::box(const std::string& name) { return found(control(name).as<TextBox>(), name); }
Button Bench::button(const std::string& baseName) {
    return driver::buttonNamed(form(), baseName).value();
}

ShownRows rowsOf(const StatementList& list) {
    ShownRows rows;
    for (int position = 1; position <= list.count(); ++position)
        rows.push_back({list.row(position).key, list.row(position).text});
    return rows;
}

ShownRows Bench::rows(const std::string& name) { return rowsOf(list(name)); }

Texts Bench::texts(const std::string& name) {
    Texts result;
    for (const ShownRow& row : rows(name)) result.push_back(row.text);
    return result;
}

Texts Bench::undoRecords() { return nonEmpty(form().undoRecords); }
Texts Bench::redoRecords() { return nonEmpty(form().redoRecords); }

Json withoutArt(const Json& events) {
    Json rest = Json::array();
    for (const Json& event : events)
        if (event["event"] != "art") rest.push_back(event);
    return rest;
}

std::string bankOf(int questions) {
    Texts bank;
    for (const char* section : {"STRENGTH", "WEAKNESS", "OPPORTUNITY", "THREATS"}) {
        bank.push_back("<" + std::string(section) + ">");
        for (int i = 1; i <= questions; ++i)
            bank.insert(bank.end(), {"<QUESTION>",
                                     std::string(1, *section) + " question " + std::to_string(i)});
        bank.push_back("</" + std::string(section) + ">");
    }
    return lines(bank);
}

std::string brainstormFile(const std::string& name, const std::string& moduleWord,
                           const Texts& strengths, const Texts& weaknesses,
                           const Texts& opportunities, const Texts& threats) {
    Texts file{"<NAME>", name, "</NAME>", "<MODULE>", moduleWord, "</MODULE>"};
    const auto section = [&](const std::string& word, const Texts& statements) {
        file.push_back("<" + word + ">");
        file.insert(file.end(), statements.begin(), statements.end());
        file.push_back("</" + word + ">");
    };
    section("STRENGTH", strengths);
    section("WEAKNESS", weaknesses);
    section("OPPORTUNITY", opportunities);
    section("THREATS", threats);
    return lines(file);
}

std::string lines(const Texts& lines) {
    std::string bytes;
    for (const std::string& line : lines) bytes += line + "\r\n";
    return bytes;
}

std::string record(const std::string& tag, int position, const std::string& key,
                   const std::string& text, const std::string& extra) {
    const std::string delimiter(journalDelimiter);
    return tag + delimiter + std::to_string(position) + delimiter + key + delimiter + text +
           delimiter + extra;
}

}  // namespace orvanta::test
