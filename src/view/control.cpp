#include "view/control.h"

#include <algorithm>
#include <utility>

#include "view/failure.h"

namespace orvanta {

Control* ControlSet::find(std::string_view name) const {
    const auto found = std::ranges::find(m_controls, name, &Control::name);
    return found == m_controls.end() ? nullptr : *found;
}

Control::Control(ControlSet& owner, std::string name, ControlKind kind)
    : m_name(std::move(name)), m_kind(kind) {
    owner.add(*this);
}

void Control::setVisible(bool visible) {
    if (visible == m_visible) return;
    m_visible = visible;
    changed();
}

void Control::setEnabled(bool enabled) {
    if (enabled == m_enabled) return;
    m_enabled = enabled;
    changed();
}

void Control::setToolTip(std::string toolTip) {
    if (toolTip == m_toolTip) return;
    m_toolTip = std::move(toolTip);
    changed();
}

void Control::setBounds(Bounds bounds) {
    if (bounds == m_bounds) return;
    m_bounds = bounds;
    changed();
}

bool Control::isReachable() const {
    if (!m_enabled || !m_visible) return false;
    if (coveredBy && coveredBy->hasVisible()) return false;
    for (const Panel* panel = container; panel; panel = panel->container) {
        if (!panel->isVisible()) return false;
        if (panel->stack() && panel->stack()->top() != panel) return false;
        if (panel->coveredBy && panel->coveredBy->hasVisible()) return false;
    }
    return true;
}

void PanelStack::raise(Panel& panel) {
    const auto place = std::ranges::find(m_bottomToTop, &panel);
    std::rotate(place, place + 1, m_bottomToTop.end());
}

Panel* PanelStack::top() const {
    const auto visible = [](const Panel* panel) { return panel->isVisible(); };
    const auto found = std::find_if(m_bottomToTop.rbegin(), m_bottomToTop.rend(), visible);
    return found == m_bottomToTop.rend() ? nullptr : *found;
}

Panel::Panel(ControlSet& owner, std::string name, PanelStack* stack)
    : Control(owner, std::move(name), ControlKind::PictureBox), m_stack(stack) {
    if (stack) stack->add(*this);
}

void Panel::setVisible(bool visible) {
    if (visible && m_stack) m_stack->raise(*this);
    Control::setVisible(visible);
    if (visible) raised();
}

Label::Label(ControlSet& owner, std::string name, std::string caption)
    : Control(owner, std::move(name), ControlKind::Label), m_caption(std::move(caption)) {}

void Label::setCaption(std::string caption) {
    if (caption == m_caption) return;
    m_caption = std::move(caption);
    changed();
}

TextBox::TextBox(ControlSet& owner, std::string name, std::size_t maxLength)
    : Control(owner, std::move(name), ControlKind::TextBox), m_maxLength(maxLength) {}

void TextBox::setText(std::string text) {
    if (text == m_text) return;
    m_text = std::move(text);
    changed();
}

void OptionGroup::turnOffAllBut(const Option& chosen) {
    for (Option* option : m_options)
        if (option != &chosen) option->setOn(false);
}

Option::Option(ControlSet& owner, std::string name, OptionGroup& group, std::string caption)
    : Control(owner, std::move(name), ControlKind::Option),
      m_group(group),
      m_caption(std::move(caption)) {
    group.add(*this);
}

void Option::setOn(bool on) {
    if (on) m_group.turnOffAllBut(*this);
    if (on == m_on) return;
    m_on = on;
    changed();
}

CheckBox::CheckBox(ControlSet& owner, std::string name, std::string caption)
    : Control(owner, std::move(name), ControlKind::CheckBox), m_caption(std::move(caption)) {}

void CheckBox::setOn(bool on) {
    if (on == m_on) return;
    m_on = on;
    changed();
}

Image::Image(ControlSet& owner, std::string name)
    : Control(owner, std::move(name), ControlKind::Image) {}

void Image::setArt(Art art) {
    const bool differs = art != std::exchange(m_art, art);
    artAssigned();
    if (differs) changed();
}

PushButton::PushButton(ControlSet& owner, std::string name, std::string caption)
    : Control(owner, std::move(name), ControlKind::PushButton), m_caption(std::move(caption)) {}

ComboBox::ComboBox(ControlSet& owner, std::string name)
    : Control(owner, std::move(name), ControlKind::ComboBox) {}

void ComboBox::addItem(std::string item) {
    m_items.push_back(std::move(item));
    changed();
}

void ComboBox::setSelectedIndex(int index) {
    if (index == m_selected) return;
    m_selected = index;
    changed();
}

ListBox::ListBox(ControlSet& owner, std::string name)
    : Control(owner, std::move(name), ControlKind::List) {}

void ListBox::add(std::string item) {
    m_items.push_back(std::move(item));
    changed();
}

void ListBox::remove(int index) {
    if (index < 0 || index >= static_cast<int>(m_items.size()))
        throw Failure(ErrorNumber::IndexOutOfBounds);
    m_items.erase(m_items.begin() + index);
    if (index < m_selected) --m_selected;
    m_selected = std::min(m_selected, static_cast<int>(m_items.size()) - 1);
    changed();
}

void ListBox::clear() {
    if (m_items.empty()) return;
    m_items.clear();
    m_selected = -1;
    changed();
}

void ListBox::setSelectedIndex(int index) {
    if (index == m_selected) return;
    m_selected = index;
    changed();
}

}  // namespace orvanta
