#include "recorder.h"

#include <cassert>

#include "analyze/mapping.h"
#include "core/mapping_side.h"
#include "core/modules.h"
#include "core/statement_lists.h"

namespace orvanta::monkey {

namespace {

Recorder* current = nullptr;

/// Where a drag is called off without a trace, but for what it passed over.
const StatementList& besideTheRows(const FrmMain& form, const StatementList& from) {
    for (const MappingSide side : mappingSides)
        for (const StatementKind kind : {StatementKind::Strength, StatementKind::Weakness})
            if (&(form.*sideControls[side].picking(kind)) == &from) return mappingList(form, side);
    return from;
}

}  // namespace

Recorder::Recorder(Program& program) : m_program(program) {
    assert(!current);
    current = this;
    FrmMain& form = program.frmMain;
    for (const ListMember list : statementLists)
        (form.*list).watch(m_selections.emplace_back(*this, form.*list));
    for (Control* control : form.controls.all())
        if (auto* box = control->as<TextBox>()) watch(*box);
    for (const Module& module : modules) watch(form.*module.option);
    watchFiles(form.lstFiles);
}

Recorder::~Recorder() { current = nullptr; }

Recorder* Recorder::of(const Program& program) {
    return current && &current->m_program == &program ? current : nullptr;
}

Recorder* Recorder::of(const FrmMain& form) {
    return current && &current->m_program.frmMain == &form ? current : nullptr;
}

Recorder::Event::~Event() {
    if (--m_recorder.m_depth > 0) return;
    for (Json& answer : std::exchange(m_recorder.m_answers, {}))
        m_recorder.m_lines.push_back(std::move(answer));
    if (!m_line.is_null()) m_recorder.m_lines.push_back(m_line);
}

void Recorder::Selection::selectionChanged() {
    recorder.didBetween({{"do", "select"}, {"list", list.name()}, {"row", list.selected()}});
}

void Recorder::watch(TextBox& box) {
    m_texts[&box] = box.text();
    box.changed.subscribe([this, &box] {
        if (std::exchange(m_texts[&box], box.text()) == box.text()) return;
        didBetween({{"do", "set"}, {"control", box.name()}, {"text", driver::text(box.text())}});
    });
}

void Recorder::watch(Option& option) {
    option.changed.subscribe([this, &option, on = option.isOn()]() mutable {
        if (std::exchange(on, option.isOn()) != option.isOn() && option.isOn())
            didBetween({{"do", "choose"}, {"option", option.name()}});
    });
}

void Recorder::watchFiles(ListBox& files) {
    files.changed.subscribe([this, &files, chosen = files.selectedIndex()]() mutable {
        if (std::exchange(chosen, files.selectedIndex()) != files.selectedIndex())
            didBetween({{"do", "select"}, {"list", files.name()}, {"row", files.selectedIndex()}});
    });
}

/// Outside all events.
void Recorder::didBetween(Json line) {
    if (m_depth > 0) return;
    if (!inputIsUnderWay()) m_ownDoing = line.dump();
    endDrag();
    m_lines.push_back(std::move(line));
}

void Recorder::passedOver(const StatementList& list) {
    if (m_depth > 0) return;
    if (!m_drag)
        m_drag = {list.name(), list.selected(), {}};
    else
        m_drag->over.push_back(&list);
}

Json Recorder::lineOfDrop(const StatementList& list, int position) {
    if (m_depth > 0) return nullptr;
    assert(m_drag);
    Json over = Json::array();
    for (const StatementList* passed : m_drag->over) over.push_back(passed->name());
    Json line{{"do", "drag"}, {"list", m_drag->from}, {"row", m_drag->row},
              {"over", over}, {"to", list.name()},    {"at", position}};
    m_drag.reset();
    return line;
}

/// A drag that ended nowhere. What it passed over last is still known to the program.
void Recorder::endDrag() {
    if (!m_drag) return;
    const FrmMain& form = m_program.frmMain;
    const Control* from = nullptr;
    for (const ListMember list : statementLists)
        if ((form.*list).name() == m_drag->from) from = &(form.*list);
    m_lines.push_back(lineOfDrop(besideTheRows(form, *static_cast<const StatementList*>(from)), 0));
}

void Recorder::dialogClosed(std::string_view form) {
    answered({{"answer", form}, {"steps", m_steps.back()}});
    m_steps.pop_back();
}

void Recorder::pressed(const FrmEdit& form, std::string_view press) {
    if (std::exchange(m_told.text, form.txtEdit.text()) != form.txtEdit.text())
        m_steps.back().push_back({{"text", driver::text(m_told.text)}});
    m_steps.back().push_back({{"press", press}});
}

void Recorder::pressed(const FrmReportType& form, std::string_view press) {
    if (std::exchange(m_told.format, form.cboFormat.selectedIndex()) !=
        form.cboFormat.selectedIndex())
        m_steps.back().push_back({{"format", m_told.format}});
    if (std::exchange(m_told.text, form.txtEdit.text()) != form.txtEdit.text())
        m_steps.back().push_back({{"text", driver::text(m_told.text)}});
    m_steps.back().push_back({{"press", press}});
}

Recorder::Lines Recorder::take() {
    assert(m_depth == 0);
    endDrag();
    return std::exchange(m_lines, {});
}

}  // namespace orvanta::monkey
