#pragma once

#include <map>
#include <string>
#include <utility>

#include "answers.h"
#include "json.h"

namespace orvanta::driver {

/// What happened since the last line, in order.
class EventLog {
public:
    void add(Json event) { m_events.push_back(std::move(event)); }
    Json takeAll() { return std::exchange(m_events, Json::array()); }

private:
    Json m_events = Json::array();
};

class RecordedMessages : public MessageBoxes {
public:
    RecordedMessages(EventLog& log, Answers& answers, Stage& stage)
        : m_log(log), m_answers(answers), m_stage(stage) {}
    MessageAnswer show(const Message& message) override;

private:
    EventLog& m_log;
    Answers& m_answers;
    Stage& m_stage;
};

class RecordedFileDialogs : public FileDialogs {
public:
    RecordedFileDialogs(EventLog& log, Answers& answers, Stage& stage)
        : m_log(log), m_answers(answers), m_stage(stage) {}
    std::optional<std::string> choose(const FileDialogRequest& request) override;

private:
    EventLog& m_log;
    Answers& m_answers;
    Stage& m_stage;
};

/// Settings in a JSON file; one that can't be read counts as empty.
class RecordedSettings : public Settings {
public:
    RecordedSettings(EventLog& log, std::string path);
    std::string read(std::string_view section, std::string_view key) const override;
    void write(std::string_view section, std::string_view key, const std::string& value) override;

private:
    EventLog& m_log;
    std::string m_path;
    Json m_values;
};

class RecordedForms : public ModalForms {
public:
    RecordedForms(EventLog& log, Answers& answers, Stage& stage)
        : m_log(log), m_answers(answers), m_stage(stage) {}
    void run(FrmSplash& form) override;
    void run(FrmEdit& form) override;
    void run(FrmReportType& form) override;
    void run(FrmAbout& form) override;
    void repaint(FrmReportType& form) override { m_stage.repaint(form); }
    void setWaitCursor(bool) override {}

private:
    EventLog& m_log;
    Answers& m_answers;
    Stage& m_stage;
};

/// The rest of the world: what the program hands to it is written down.
class RecordedWorld : public Shell,
                      public Player,
                      public QuestionPrinter,
                      public Screen,
                      public Folders,
                      public Lifetime {
public:
    RecordedWorld(EventLog& log, std::string documents)
        : m_log(log), m_documents(std::move(documents)) {}

    void open(const std::string& target) override;
    void setMovie(const std::string& path) override { m_movie = path; }
    void play() override;
    void print(const QuestionSheets& sheets) override;
    double twipsPerPixel() const override { return m_twipsPerPixel; }
    std::string documents() const override { return m_documents; }
    void end() override;
    void reportUnhandled(const Failure& failure) override;

    void setTwipsPerPixel(double value) { m_twipsPerPixel = value; }
    bool hasEnded() const { return m_ended; }

private:
    EventLog& m_log;
    std::string m_documents;
    std::string m_movie;
    double m_twipsPerPixel = 15;
    bool m_ended = false;
};

}  // namespace orvanta::driver
