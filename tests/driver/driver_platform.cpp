#include "driver_platform.h"

#include <algorithm>
#include <filesystem>
#include <fstream>

#include "presentation/question_sheets.h"
#include "view/file_dialog.h"
#include "words.h"

namespace orvanta::driver {

namespace {

std::filesystem::path pathFromUtf8(const std::string& name) {
    return {std::u8string(name.begin(), name.end())};
}

Json pathOrNull(const std::optional<std::string>& path) {
    return path ? text(*path) : Json(nullptr);
}

}  // namespace

MessageAnswer RecordedMessages::show(const Message& message) {
    const auto offered = answersOf(message.buttons);
    const MessageAnswer queued = take(m_answers.messages).value_or(offered.back());
    const bool fits = std::ranges::find(offered, queued) != offered.end();
    const MessageAnswer answer = m_stage.answer(message, fits ? queued : offered.back());
    m_log.add({{"event", "message"},
               {"text", text(message.text)},
               {"icon", wordOf(message.icon)},
               {"buttons", wordOf(message.buttons)},
               {"default", wordOf(message.defaultAnswer)},
               {"title", pathOrNull(message.title)},
               {"answer", wordOf(answer)}});
    return answer;
}

std::optional<std::string> RecordedFileDialogs::choose(const FileDialogRequest& request) {
    auto path = m_stage.answer(request, take(m_answers.files).value_or(std::nullopt));
    if (path && request.mode == FileDialogMode::Save)
        path = withFilterEnding(*path, request.filter);
    m_log.add({{"event", "fileDialog"},
               {"mode", request.mode == FileDialogMode::Open ? "open" : "save"},
               {"filter", text(request.filter)},
               {"initialPath", text(request.initialPath)},
               {"fileName", text(request.fileName)},
               {"answer", pathOrNull(path)}});
    return path;
}

RecordedSettings::RecordedSettings(EventLog& log, std::string path)
    : m_log(log), m_path(std::move(path)) {
    std::ifstream file(pathFromUtf8(m_path), std::ios::binary);
    m_values = Json::parse(file, nullptr, false);
    if (!m_values.is_object()) m_values = Json::object();
}

std::string RecordedSettings::read(std::string_view section, std::string_view key) const {
    const auto values = m_values.find(std::string(section));
    if (values == m_values.end() || !values->is_object()) return {};
    const auto value = values->find(std::string(key));
    if (value == values->end() || !value->is_string()) return {};
    return windows1252From(value->get<std::string>());
}

void RecordedSettings::write(std::string_view section, std::string_view key,
                             const std::string& value) {
    Json& values = m_values[std::string(section)];
    if (!values.is_object()) values = Json::object();
    values[std::string(key)] = text(value);
    std::ofstream(pathFromUtf8(m_path), std::ios::binary) << m_values.dump(2) << '\n';
    m_log.add({{"event", "setting"}, {"key", std::string(key)}, {"value", text(value)}});
}

void RecordedForms::run(FrmSplash& form) {
    m_log.add({{"event", "dialog"}, {"form", "frmSplash"}});
    m_stage.run(form);
}

void RecordedForms::run(FrmEdit& form) {
    m_log.add({{"event", "dialog"},
               {"form", "frmEdit"},
               {"text", text(form.txtEdit.text())},
               {"fromControl", text(form.fromControl)}});
    form.txtEdit.focusGiven.subscribe([this] {
        m_log.add({{"event", "focus"}, {"control", "txtEdit"}});
    });
    m_stage.run(form, take(m_answers.edits).value_or(std::vector<EditStep>{}));
}

void RecordedForms::run(FrmReportType& form) {
    m_log.add({{"event", "dialog"}, {"form", "frmReportType"}});
    m_stage.run(form, take(m_answers.reports).value_or(std::vector<ReportStep>{}));
}

void RecordedForms::run(FrmAbout& form) {
    m_log.add({{"event", "dialog"}, {"form", "frmAbout"}});
    m_stage.run(form);
}

void RecordedWorld::open(const std::string& target) {
    m_log.add({{"event", "open"}, {"target", text(target)}});
}

void RecordedWorld::play() { m_log.add({{"event", "narration"}, {"movie", text(m_movie)}}); }

void RecordedWorld::print(const QuestionSheets& sheets) {
    m_log.add({{"event", "print"}, {"module", text(sheets.code)}});
}

void RecordedWorld::end() {
    m_ended = true;
    m_log.add({{"event", "exit"}});
}

void RecordedWorld::reportUnhandled(const Failure& failure) {
    m_log.add({{"event", "unhandledError"},
               {"number", failure.number},
               {"description", text(failure.description)}});
}

}  // namespace orvanta::driver
