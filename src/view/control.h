#pragma once

#include <cassert>
#include <string>
#include <type_traits>
#include <utility>
#include <variant>
#include <vector>

#include "view/notice.h"
#include "view/units.h"

namespace orvanta {

class CheckBox;
class ComboBox;
class Control;
class Image;
class Label;
class ListBox;
class Option;
class Panel;
class PanelStack;
class PushButton;
class StatementList;
class TextBox;

/// A control as what it is. Who treats the kinds differently visits it.
using AnyControl = std::variant<Panel*, Label*, TextBox*, Option*, CheckBox*, Image*, PushButton*,
                                ComboBox*, ListBox*, StatementList*>;

/// The controls of one form, in the order in which they were declared.
class ControlSet {
public:
    /// No two controls of a form have the same name.
    void add(Control& control);
    const std::vector<Control*>& all() const { return m_controls; }

private:
    std::vector<Control*> m_controls;
};

/// A control as the logic knows it. The window mirrors it; it is the truth. All texts are
/// Windows-1252. Each property tells of its changes, and of nothing but changes.
class Control {
public:
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string& name() const { return m_name; }
    AnyControl self() { return m_self; }
    template <class Kind>
    bool is() const {
        return std::holds_alternative<Kind*>(m_self);
    }
    /// The control as one of this kind; null if it is of another.
    template <class Kind>
    Kind* as() {
        return is<Kind>() ? std::get<Kind*>(m_self) : nullptr;
    }

    /// The control's own switch, whatever holds it.
    bool isVisible() const { return m_visible; }
    virtual void setVisible(bool visible) { change(m_visible, visible); }

    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled) { change(m_enabled, enabled); }

    const std::string& toolTip() const { return m_toolTip; }
    void setToolTip(std::string toolTip) { change(m_toolTip, std::move(toolTip)); }

    /// What the control is called where caption or label do not tell it; else empty.
    const std::string& accessibleName() const { return m_accessibleName; }
    void setAccessibleName(std::string name) { change(m_accessibleName, std::move(name)); }

    const Bounds& bounds() const { return m_bounds; }
    void setBounds(Bounds bounds) { change(m_bounds, bounds); }

    const Stretch& stretch() const { return m_stretch; }
    void setStretch(Stretch stretch) { change(m_stretch, stretch); }

    /// The panel that holds the control; null: the form itself. A window takes it up when it is
    /// made.
    Panel* container() const { return m_container; }
    void setContainer(Panel* container) { change(m_container, container); }

    /// The panels that lie over the control while one of them is visible, or that it shares its
    /// spot with if it is one of them itself; null for none.
    const PanelStack* coveredBy() const { return m_coveredBy; }
    void setCoveredBy(const PanelStack* panels) { change(m_coveredBy, panels); }

    /// Gives the keyboard to the control, also if it has it already.
    void giveFocus() { focusGiven(); }

    /// True if the control is switched on and none of the panels that share its spot or lie over
    /// it hides it. What holds it may still be hidden.
    bool isUncovered() const;
    /// True if a person can reach the control: it is enabled, and neither it nor anything that
    /// holds it is hidden or covered.
    bool isReachable() const;

    /// True if one of its rows or items is selected; false for a control that has none.
    virtual bool hasSelection() const { return false; }

    Notice changed;
    Notice focusGiven;

protected:
    Control(ControlSet& owner, std::string name, AnyControl self);

    /// Gives a property its value and tells of it, unless it has that value already.
    template <class Value>
    void change(Value& property, std::type_identity_t<Value> value) {
        if (value == property) return;
        property = std::move(value);
        changed();
    }

private:
    std::string m_name;
    AnyControl m_self;
    bool m_visible = true;
    bool m_enabled = true;
    std::string m_toolTip, m_accessibleName;
    Bounds m_bounds;
    Stretch m_stretch;
    Panel* m_container = nullptr;
    const PanelStack* m_coveredBy = nullptr;
};

/// Panels that share one spot. The one that was shown last lies on top.
class PanelStack {
public:
    void add(Panel& panel) { m_bottomToTop.push_back(&panel); }
    /// Puts one of the panels on top.
    void raise(Panel& panel);
    bool hasVisible() const { return top() != nullptr; }

    /// The panel that a person sees; null if none is visible.
    Panel* top() const;

private:
    std::vector<Panel*> m_bottomToTop;
};

/// A picture box that holds other controls: a screen, or the holder of a button.
class Panel : public Control {
public:
    Panel(ControlSet& owner, std::string name, PanelStack* stack = nullptr);

    void show() { setVisible(true); }
    void hide() { setVisible(false); }
    /// Each show puts the panel on top of its stack, also when it is visible already.
    void setVisible(bool visible) override;

    PanelStack* stack() const { return m_stack; }
    Notice raised;

private:
    PanelStack* m_stack;
};

/// The pictures that an image control can show.
enum class Art { None, SmallNormal, SmallDown, LargeNormal, LargeDown };

class Image : public Control {
public:
    Image(ControlSet& owner, std::string name) : Control(owner, std::move(name), this) {}

    Art art() const { return m_art; }
    void setArt(Art art);
    Notice artAssigned;  // each time, also with the art that is shown

private:
    Art m_art = Art::None;
};

/// A control that shows text in a font of its own.
class TextControl : public Control {
public:
    Points fontSize() const { return m_fontSize; }
    void setFontSize(Points size) { change(m_fontSize, size); }

    bool isBold() const { return m_bold; }
    void setBold(bool bold) { change(m_bold, bold); }

protected:
    using Control::Control;

private:
    Points m_fontSize{9};
    bool m_bold = false;
};

class TextBox : public TextControl {
public:
    TextBox(ControlSet& owner, std::string name, std::size_t maxLength = 0)
        : TextControl(owner, std::move(name), this), m_maxLength(maxLength) {}

    const std::string& text() const { return m_text; }
    void setText(std::string text) { change(m_text, std::move(text)); }

    /// The longest text that a person can enter, in characters; 0 for no limit. The program
    /// itself may set a longer one.
    std::size_t maxLength() const { return m_maxLength; }

private:
    std::string m_text;
    std::size_t m_maxLength;
};

/// A control that says what it is.
class CaptionedControl : public TextControl {
public:
    const std::string& caption() const { return m_caption; }
    void setCaption(std::string caption) { change(m_caption, std::move(caption)); }

protected:
    CaptionedControl(ControlSet& owner, std::string name, AnyControl self, std::string caption)
        : TextControl(owner, std::move(name), self), m_caption(std::move(caption)) {}

private:
    std::string m_caption;
};

class Label : public CaptionedControl {
public:
    Label(ControlSet& owner, std::string name, std::string caption = {})
        : CaptionedControl(owner, std::move(name), this, std::move(caption)) {}
};

class PushButton : public CaptionedControl {
public:
    PushButton(ControlSet& owner, std::string name, std::string caption)
        : CaptionedControl(owner, std::move(name), this, std::move(caption)) {}
};

/// A control that is on or off.
class SwitchControl : public CaptionedControl {
public:
    bool isOn() const { return m_on; }
    virtual void setOn(bool on) { change(m_on, on); }

protected:
    using CaptionedControl::CaptionedControl;

private:
    bool m_on = false;
};

class CheckBox : public SwitchControl {
public:
    CheckBox(ControlSet& owner, std::string name, std::string caption)
        : SwitchControl(owner, std::move(name), this, std::move(caption)) {}
};

/// Option controls of which at most one is on.
class OptionGroup {
public:
    void add(Option& option) { m_options.push_back(&option); }
    void turnOffAllBut(const Option& chosen);

private:
    std::vector<Option*> m_options;
};

class Option : public SwitchControl {
public:
    Option(ControlSet& owner, std::string name, OptionGroup& group, std::string caption);

    /// Turning it on turns the others of its group off first.
    void setOn(bool on) override;

private:
    OptionGroup& m_group;
};

/// A control of lines, indexed from 0, at most one of them selected.
class ItemControl : public TextControl {
public:
    const std::vector<std::string>& items() const { return m_items; }
    void add(std::string item);

    /// Index from 0; -1 for none.
    int selectedIndex() const { return m_selected; }
    void setSelectedIndex(int index);
    bool hasSelection() const override { return m_selected >= 0; }

protected:
    using TextControl::TextControl;

    void remove(int index);
    void clear();

private:
    std::vector<std::string> m_items;
    int m_selected = -1;
};

/// A drop-down list of fixed items.
class ComboBox : public ItemControl {
public:
    ComboBox(ControlSet& owner, std::string name) : ItemControl(owner, std::move(name), this) {}
};

/// A plain list of lines.
class ListBox : public ItemControl {
public:
    ListBox(ControlSet& owner, std::string name) : ItemControl(owner, std::move(name), this) {}

    /// Fails with IndexOutOfBounds. The item that takes the place of a removed selected one is
    /// selected, else the new last, else none.
    using ItemControl::clear;
    using ItemControl::remove;
};

}  // namespace orvanta
