#pragma once

#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "core/session_state.h"
#include "json.h"
#include "presentation/edit_dialog.h"
#include "reports/report_dialog.h"

namespace orvanta::monkey {

using driver::Json;

/// Writes down what a person does to a program in its window, as lines of the test driver: the
/// events that the window reports (wrapped_events.cpp), and what is chosen, typed and switched
/// between them. What a program does of itself within an event is no line.
class Recorder {
public:
    using Lines = std::vector<Json>;

    /// One recorder for the window's program, which goes first.
    explicit Recorder(Program& program);
    ~Recorder();

    /// The recorder of this program; null for any other.
    static Recorder* of(const Program& program);
    static Recorder* of(const FrmMain& form);

    /// Runs an event of the window and writes it down, unless it is part of another one.
    template <class Act>
    auto event(const Json& line, Act act) {
        const Event during(*this, line);
        return act();
    }
    /// A drag sets out or passes over a list.
    void passedOver(const StatementList& list);
    /// The line of a drag that ends on a list, at a row or at 0 beside all.
    Json lineOfDrop(const StatementList& list, int position);

    /// What a person answered to a question of the event that is under way.
    void answered(Json answer) { m_answers.push_back(std::move(answer)); }
    void dialogOpened() { m_steps.emplace_back(Json::array()); }
    void dialogClosed(std::string_view form);
    void pressed(const FrmEdit& form, std::string_view press);
    void pressed(const FrmReportType& form, std::string_view press);
    /// What stands in a dialog without a person's doing.
    void shows(const FrmEdit& form) { m_told.text = form.txtEdit.text(); }
    void shows(const FrmReportType& form) {
        m_told = {form.txtEdit.text(), form.cboFormat.selectedIndex()};
    }

    /// The lines since the last call. No event is under way.
    Lines take();

    /// True while a key or a button of the mouse does its work.
    std::function<bool()> inputIsUnderWay = [] { return true; };
    /// What changed while no person did anything; empty if nothing did.
    const std::string& ownDoing() const { return m_ownDoing; }

private:
    class Event {
    public:
        Event(Recorder& recorder, Json line) : m_recorder(recorder), m_line(std::move(line)) {
            ++m_recorder.m_depth;
        }
        ~Event();
        Event(const Event&) = delete;
        Event& operator=(const Event&) = delete;

    private:
        Recorder& m_recorder;
        const Json m_line;
    };
    struct Selection : StatementListObserver {
        Selection(Recorder& recorder, StatementList& list) : recorder(recorder), list(list) {}
        void selectionChanged() override;

        Recorder& recorder;
        StatementList& list;
    };
    struct Drag {
        std::string from;
        int row = 0;
        std::vector<const StatementList*> over;
    };
    struct Told {
        std::string text;
        int format = 0;
    };

    void watch(TextBox& box);
    void watch(Option& option);
    void watchFiles(ListBox& files);
    void didBetween(Json line);
    void endDrag();

    Program& m_program;
    int m_depth = 0;
    Lines m_lines, m_answers;
    std::vector<Json> m_steps;  // of the dialogs that are open
    Told m_told;
    std::deque<Selection> m_selections;
    std::map<const TextBox*, std::string> m_texts;
    std::optional<Drag> m_drag;
    std::string m_ownDoing;
};

}  // namespace orvanta::monkey
