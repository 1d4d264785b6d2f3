#include "driver.h"

#include <algorithm>
#include <cstdlib>

#include "app/startup.h"
#include "app/window_events.h"
#include "lookup.h"
#include "state.h"
#include "view/text_entry.h"
#include "words.h"

namespace orvanta::driver {

namespace {

const Json& field(const Json& line, const char* name) {
    const auto found = line.find(name);
    if (found == line.end()) throw Refused(std::string("the field \"") + name + "\" is missing");
    return *found;
}

std::string stringIn(const Json& line, const char* name) {
    const Json& value = field(line, name);
    if (!value.is_string()) throw Refused(std::string("the field \"") + name + "\" is no text");
    return value.get<std::string>();
}

int integerIn(const Json& line, const char* name) {
    const Json& value = field(line, name);
    if (!value.is_number_integer() || value > 1'000'000'000 || value < -1'000'000'000)
        throw Refused(std::string("the field \"") + name + "\" is no whole number");
    return value.get<int>();
}

bool booleanIn(const Json& line, const char* name) {
    const Json& value = field(line, name);
    if (!value.is_boolean())
        throw Refused(std::string("the field \"") + name + "\" is neither true nor false");
    return value.get<bool>();
}

const Json& stepsIn(const Json& line) {
    const Json& steps = field(line, "steps");
    if (!steps.is_array()) throw Refused("the steps are no array");
    for (const Json& step : steps)
        if (!step.is_object()) throw Refused("a step is no object");
    return steps;
}

EditStep editStepFrom(const Json& step) {
    if (step.contains("text")) return {EditStep::Act::Text, singleLineFrom(stringIn(step, "text"))};
    if (step.contains("picture")) return {EditStep::Act::Picture, stringIn(step, "picture")};
    const std::string press = stringIn(step, "press");
    if (press == "ok") return {EditStep::Act::Ok};
    if (press == "cancel") return {EditStep::Act::Cancel};
    if (press == "enter") return {EditStep::Act::Enter};
    throw Refused("no such step: " + press);
}

ReportStep reportStepFrom(const Json& step) {
    if (step.contains("text"))
        return {ReportStep::Act::Text, 0, singleLineFrom(stringIn(step, "text"))};
    if (step.contains("picture")) return {ReportStep::Act::Picture, 0, stringIn(step, "picture")};
    if (step.contains("format")) {
        const int format = integerIn(step, "format");
        if (format != 0 && format != 1) throw Refused("no such format");
        return {ReportStep::Act::Format, format};
    }
    const std::string press = stringIn(step, "press");
    if (press == "browse") return {ReportStep::Act::Browse};
    if (press == "ok") return {ReportStep::Act::Ok};
    if (press == "cancel") return {ReportStep::Act::Cancel};
    throw Refused("no such step: " + press);
}

template <class Step, class Make>
std::vector<Step> stepsFrom(const Json& line, Make make) {
    std::vector<Step> steps;
    for (const Json& step : stepsIn(line)) steps.push_back(make(step));
    return steps;
}

void refuseBeyond(const StatementList& list, int position, int first) {
    if (position < first || position > list.count())
        throw Refused("there is no such row in " + list.name());
}

}  // namespace

Driver::Driver(Stage& stage, Disk& disk, const Folders& folders)
    : m_stage(stage),
      m_messages(m_log, m_answers, stage),
      m_fileDialogs(m_log, m_answers, stage),
      m_settings(m_log, utf8From1252(folders.settings)),
      m_forms(m_log, m_answers, stage),
      m_world(m_log, folders.documents),
      m_wordProcessors(disk),
      m_platform{disk,    m_messages, m_fileDialogs, m_settings,       m_world, m_world,
                 m_world, m_forms,    m_world,       m_wordProcessors, m_world, m_world},
      m_program(m_platform, folders.app, folders.app) {
    watchMainWindow();
}

void Driver::watchMainWindow() {
    for (Control* control : m_program.frmMain.controls.all())
        control->focusGiven.subscribe([this, control] {
            m_log.add({{"event", "focus"}, {"control", control->name()}});
        });
    for (const Button which : allOf<Button>) {
        SkinnedButton& button = m_program.frmMain.buttons[which];
        button.image.artAssigned.subscribe([this, &button] {
            const Art art = button.image.art();
            const bool pressed = art == Art::SmallDown || art == Art::LargeDown;
            m_log.add({{"event", "art"}, {"button", button.baseName}, {"pressed", pressed}});
        });
    }
}

Json Driver::answer(const std::string& line) {
    try {
        const Json parsed = Json::parse(line, nullptr, false);
        if (!parsed.is_object()) throw Refused("the line is no JSON object");
        if (parsed.contains("answer")) {
            queueAnswer(parsed);
            return {{"events", Json::array()}};
        }
        if (stringIn(parsed, "do") == "state")
            return {{"events", m_log.takeAll()}, {"state", stateOf(m_program)}};
        perform(parsed);
        m_stage.settle();
        return {{"events", m_log.takeAll()}};
    } catch (const Refused& refused) {
        return {{"error", refused.what()}};
    }
}

void Driver::queueAnswer(const Json& line) {
    const std::string kind = stringIn(line, "answer");
    if (kind == "message") {
        const auto button = answerNamed(stringIn(line, "button"));
        if (!button) throw Refused("there is no such button");
        m_answers.messages.push_back(*button);
    } else if (kind == "fileDialog") {
        const bool cancels = field(line, "path").is_null();
        m_answers.files.push_back(cancels ? std::nullopt
                                          : std::optional(windows1252From(stringIn(line, "path"))));
    } else if (kind == "frmEdit") {
        m_answers.edits.push_back(stepsFrom<EditStep>(line, editStepFrom));
    } else if (kind == "frmReportType") {
        m_answers.reports.push_back(stepsFrom<ReportStep>(line, reportStepFrom));
    } else {
        throw Refused("nothing asks for: " + kind);
    }
}

void Driver::perform(const Json& line) {
    static constexpr std::array<Act, 19> acts{{
        {"start", &Driver::start},     {"activate", &Driver::activate}, {"type", &Driver::type},
        {"set", &Driver::set},         {"enter", &Driver::enter},       {"click", &Driver::click},
        {"press", &Driver::press},     {"release", &Driver::release},   {"choose", &Driver::choose},
        {"mute", &Driver::mute},       {"select", &Driver::select},     {"drag", &Driver::drag},
        {"hover", &Driver::hover},     {"tick", &Driver::tick},         {"call", &Driver::call},
        {"menu", &Driver::menu},       {"close", &Driver::close},       {"kill", &Driver::kill},
        {"picture", &Driver::picture},
    }};
    const std::string name = stringIn(line, "do");
    const auto act = std::ranges::find(acts, name, &Act::name);
    if (act == acts.end()) throw Refused("nobody can do: " + name);
    if (m_started == (name == "start"))
        throw Refused(m_started ? "already started" : "not started yet");
    (this->*act->perform)(line);
}

/// The control of this name, of any kind or of a single one, where a person can reach it.
template <class Kind>
Kind& Driver::reachable(const std::string& name) {
    Control* named = controlNamed(m_program.frmMain.controls, name);
    Kind* control = nullptr;
    if constexpr (std::is_same_v<Kind, Control>)
        control = named;
    else if (named)
        control = named->as<Kind>();
    if (!control) throw Refused("there is no such control here: " + name);
    if (!control->isReachable()) throw Refused("nobody can reach " + name);
    return *control;
}

Button Driver::buttonOf(const Json& line) const {
    const std::string name = stringIn(line, "button");
    const auto button = buttonNamed(m_program.frmMain, name);
    if (!button) throw Refused("there is no such button: " + name);
    return *button;
}

void Driver::refuseWhileHeld(Button button) const {
    if (m_held && *m_held != button) throw Refused("another button is held down");
    const SkinnedButton& pressed = m_program.frmMain.buttons[button];
    if (!pressed.image.isReachable()) throw Refused("nobody can reach " + pressed.baseName);
}

void Driver::start(const Json& line) {
    if (line.contains("twipsPerPixel")) {
        const Json& value = field(line, "twipsPerPixel");
        if (!value.is_number() || !(value > 0)) throw Refused("twipsPerPixel is no such number");
        m_world.setTwipsPerPixel(value.get<double>());
    }
    m_started = true;
    m_stage.attach(m_program);
    startProgram(m_program);
    m_stage.activate();
}

void Driver::activate(const Json&) { m_stage.activate(); }

void Driver::type(const Json& line) {
    const std::string typed = windows1252From(stringIn(line, "text"));
    m_stage.type(reachable<TextBox>(stringIn(line, "control")), typed);
}

void Driver::set(const Json& line) {
    const std::string pasted = singleLineFrom(stringIn(line, "text"));
    m_stage.replaceText(reachable<TextBox>(stringIn(line, "control")), pasted);
}

void Driver::enter(const Json& line) {
    m_stage.pressEnter(reachable<TextBox>(stringIn(line, "control")));
}

void Driver::click(const Json& line) {
    if (!line.contains("control")) {
        const Button button = buttonOf(line);
        refuseWhileHeld(button);
        m_held.reset();
        m_stage.press(button);
        m_stage.release(button);
        return;
    }
    const FrmMain& form = m_program.frmMain;
    Control& control = reachable<Control>(stringIn(line, "control"));
    if (&control != &form.cmdUndo && &control != &form.cmdRedo && &control != &form.lblDistribute)
        throw Refused("a click does nothing to " + control.name());
    m_stage.click(control);
}

void Driver::press(const Json& line) {
    const Button button = buttonOf(line);
    refuseWhileHeld(button);
    m_held = button;
    m_stage.press(button);
}

void Driver::release(const Json& line) {
    const Button button = buttonOf(line);
    if (m_held != button) throw Refused("that button is not held down");
    m_held.reset();
    m_stage.release(button);
}

void Driver::choose(const Json& line) {
    m_stage.choose(reachable<Option>(stringIn(line, "option")));
}

void Driver::mute(const Json& line) {
    const bool on = booleanIn(line, "on");
    if (on != m_program.frmMain.chkMute.isOn()) m_stage.switchMute(on);
}

void Driver::select(const Json& line) {
    const std::string name = stringIn(line, "list");
    const int row = integerIn(line, "row");
    const ListBox& files = m_program.frmMain.lstFiles;
    if (name == files.name()) {
        reachable<ListBox>(name);
        if (row < -1 || row >= static_cast<int>(files.items().size()))
            throw Refused("there is no such file");
        m_stage.selectFile(row);
        return;
    }
    StatementList& list = reachable<StatementList>(name);
    refuseBeyond(list, row, 0);
    m_stage.select(list, row);
}

void Driver::drag(const Json& line) {
    StatementList& from = reachable<StatementList>(stringIn(line, "list"));
    const int row = integerIn(line, "row");
    refuseBeyond(from, row, 1);
    std::vector<StatementList*> over;
    if (line.contains("over")) {
        if (!line["over"].is_array()) throw Refused("what the drag passes over is no array");
        for (const Json& name : line["over"]) {
            if (!name.is_string()) throw Refused("a list is named by a text");
            over.push_back(&reachable<StatementList>(name.get<std::string>()));
        }
    }
    StatementList& to = reachable<StatementList>(stringIn(line, "to"));
    const int position = integerIn(line, "at");
    refuseBeyond(to, position, 0);
    m_stage.drag(from, row, over, to, position);
}

void Driver::hover(const Json& line) {
    StatementList& list = reachable<StatementList>(stringIn(line, "list"));
    const int row = integerIn(line, "row");
    refuseBeyond(list, row, 0);
    m_stage.hover(list, row);
}

void Driver::tick(const Json&) { autoSaveTicked(m_program); }

void Driver::call(const Json& line) {
    struct Routine {
        std::string_view name;
        void (*chosen)(Program&);
    };
    static constexpr std::array<Routine, 3> routines{{
        {"mergeBrainstormFiles", mergeChosen},
        {"removeOpportunityMappingRow", removeOpportunityMappingChosen},
        {"removeThreatMappingRow", removeThreatMappingChosen},
    }};
    const std::string name = stringIn(line, "routine");
    const auto routine = std::ranges::find(routines, name, &Routine::name);
    if (routine == routines.end()) throw Refused("there is no such routine: " + name);
    routine->chosen(m_program);
}

void Driver::menu(const Json& line) {
    Control& list = reachable<Control>(stringIn(line, "list"));
    const std::string caption = windows1252From(stringIn(line, "command"));
    const std::vector<ListCommand> commands = listCommandsOf(m_program.frmMain, list);
    const auto command = std::ranges::find(commands, caption, &ListCommand::caption);
    if (command == commands.end() || !command->isOffered)
        throw Refused("the menu of " + list.name() + " does not offer " + caption);
    m_stage.chooseFromMenu(list, *command);
}

void Driver::close(const Json&) { m_stage.close(); }

void Driver::kill(const Json&) { std::_Exit(1); }

void Driver::picture(const Json& line) {
    const std::string path = stringIn(line, "path");
    if (!m_stage.takePicture(path)) throw Refused("there is nothing to see");
}

}  // namespace orvanta::driver
