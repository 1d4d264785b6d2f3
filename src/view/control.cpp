#include "view/control.h"

#include <algorithm>

#include "view/failure.h"

namespace orvanta {

void ControlSet::add(Control& control) {
    assert(!control.name().empty());
    assert(std::ranges::find(m_controls, control.name(), &Control::name) == m_controls.end());
    m_controls.push_back(&control);
}

Control::Control(ControlSet& owner, std::string name, AnyControl self)
    : m_name(std::move(name)), m_self(self) {
    owner.add(*this);
}

bool Control::isUncovered() const {
    if (!m_visible) return false;
    const Panel* top = m_coveredBy ? m_coveredBy->top() : nullptr;
    return !top || top == this;
}

bool Control::isReachable() const {
    for (const Control* held = this; held; held = held->container())
        if (!held->isUncovered()) return false;
    return m_enabled;
}

void PanelStack::raise(Panel& panel) {
    const auto place = std::ranges::find(m_bottomToTop, &panel);
    assert(place != m_bottomToTop.end());
    std::rotate(place, place + 1, m_bottomToTop.end());
}

Panel* PanelStack::top() const {
    const auto visible = [](const Panel* panel) { return panel->isVisible(); };
    const auto found = std::find_if(m_bottomToTop.rbegin(), m_bottomToTop.rend(), visible);
    return found == m_bottomToTop.rend() ? nullptr : *found;
}

Panel::Panel(ControlSet& owner, std::string name, PanelStack* stack)
    : Control(owner, std::move(name), this), m_stack(stack) {
    if (stack) stack->add(*this);
    setCoveredBy(stack);
}

void Panel::setVisible(bool visible) {
    if (visible && m_stack) m_stack->raise(*this);
    Control::setVisible(visible);
    if (visible) raised();
}

void Image::setArt(Art art) {
    const bool differs = art != std::exchange(m_art, art);
    artAssigned();
    if (differs) changed();
}

void OptionGroup::turnOffAllBut(const Option& chosen) {
    assert(std::ranges::find(m_options, &chosen) != m_options.end());
    for (Option* option : m_options)
        if (option != &chosen) option->setOn(false);
}

Option::Option(ControlSet& owner, std::string name, OptionGroup& group, std::string caption)
    : SwitchControl(owner, std::move(name), this, std::move(caption)), m_group(group) {
    group.add(*this);
}

void Option::setOn(bool on) {
    if (on) m_group.turnOffAllBut(*this);
    SwitchControl::setOn(on);
}

void ItemControl::add(std::string item) {
    m_items.push_back(std::move(item));
    changed();
}

void ItemControl::setSelectedIndex(int index) {
    assert(index >= -1 && index < static_cast<int>(m_items.size()));
    change(m_selected, index);
}

void ItemControl::remove(int index) {
    if (index < 0 || index >= static_cast<int>(m_items.size()))
        throw Failure(ErrorNumber::IndexOutOfBounds);
    m_items.erase(m_items.begin() + index);
    if (index < m_selected) --m_selected;
    m_selected = std::min(m_selected, static_cast<int>(m_items.size()) - 1);
    changed();
}

void ItemControl::clear() {
    if (m_items.empty()) return;
    m_items.clear();
    m_selected = -1;
    changed();
}

}  // namespace orvanta
