#pragma once

#include <functional>
#include <stdexcept>
#include <string>

#include "driver_platform.h"
#include "reports/document_writer.h"

namespace orvanta::driver {

/// A line that makes no sense, or that no person could do. Nothing has been done then.
struct Refused : std::runtime_error {
    using std::runtime_error::runtime_error;
};

struct Folders {
    std::string app, documents, settings;  // Windows-1252
};

/// Plays lines on a stage, one JSON object each, and answers each with one.
class Driver {
public:
    /// The stage and the disk must outlive the driver.
    Driver(Stage& stage, Disk& disk, const Folders& folders);

    Json answer(const std::string& line);
    bool hasEnded() const { return m_world.hasEnded(); }
    Program& program() { return m_program; }

private:
    struct Act {
        std::string_view name;
        void (Driver::*perform)(const Json& line);
    };

    void queueAnswer(const Json& line);
    void perform(const Json& line);
    void watchMainWindow();

    void start(const Json& line);
    void activate(const Json& line);
    void type(const Json& line);
    void set(const Json& line);
    void enter(const Json& line);
    void click(const Json& line);
    void press(const Json& line);
    void release(const Json& line);
    void choose(const Json& line);
    void mute(const Json& line);
    void select(const Json& line);
    void drag(const Json& line);
    void hover(const Json& line);
    void tick(const Json& line);
    void call(const Json& line);
    void menu(const Json& line);
    void close(const Json& line);
    void kill(const Json& line);
    void picture(const Json& line);

    template <class Kind>
    Kind& reachable(const std::string& name);
    Button buttonOf(const Json& line) const;
    void refuseWhileHeld(Button button) const;

    Stage& m_stage;
    EventLog m_log;
    Answers m_answers;
    RecordedMessages m_messages;
    RecordedFileDialogs m_fileDialogs;
    RecordedSettings m_settings;
    RecordedForms m_forms;
    RecordedWorld m_world;
    DocumentWriter m_wordProcessors;
    Platform m_platform;
    Program m_program;
    std::optional<Button> m_held;
    bool m_started = false;
};

}  // namespace orvanta::driver
