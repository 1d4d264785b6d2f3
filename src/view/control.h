#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "view/notice.h"
#include "view/units.h"

namespace orvanta {

class Control;
class Panel;
class PanelStack;

/// The controls of one form, in the order in which they were declared.
class ControlSet {
public:
    void add(Control& control) { m_controls.push_back(&control); }
    const std::vector<Control*>& all() const { return m_controls; }

    /// The control of this name; null if the form has none.
    Control* find(std::string_view name) const;

private:
    std::vector<Control*> m_controls;
};

/// What the display scaling tells apart.
enum class ControlKind {
    Label,
    TextBox,
    Option,
    CheckBox,
    Image,
    PictureBox,
    PushButton,
    List,
    ComboBox
};

/// A control as the logic knows it. The window mirrors it; it is the truth. All texts are
/// Windows-1252.
class Control {
public:
    Control(ControlSet& owner, std::string name, ControlKind kind);
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    const std::string& name() const { return m_name; }
    ControlKind kind() const { return m_kind; }

    /// The control's own switch, whatever holds it.
    bool isVisible() const { return m_visible; }
    virtual void setVisible(bool visible);

    bool isEnabled() const { return m_enabled; }
    void setEnabled(bool enabled);

    const std::string& toolTip() const { return m_toolTip; }
    void setToolTip(std::string toolTip);

    const Bounds& bounds() const { return m_bounds; }
    void setBounds(Bounds bounds);

    /// Gives the keyboard to the control, also if it has it already.
    void giveFocus() { focusGiven(); }

    /// True if a person can reach the control: it and all that hold it are visible, it is
    /// enabled, and no panel lies over it.
    bool isReachable() const;

    Notice changed;
    Notice focusGiven;

    Stretch stretch;
    Panel* container = nullptr;             // null: the form itself
    const PanelStack* coveredBy = nullptr;  // panels that lie over the control when shown
    std::string accessibleName;             // where caption or label do not tell it

private:
    std::string m_name;
    ControlKind m_kind;
    bool m_visible = true;
    bool m_enabled = true;
    std::string m_toolTip;
    Bounds m_bounds;
};

/// Panels that share one spot. The one that was shown last lies on top.
class PanelStack {
public:
    void add(Panel& panel) { m_bottomToTop.push_back(&panel); }
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

class Label : public Control {
public:
    Label(ControlSet& owner, std::string name, std::string caption = {});

    const std::string& caption() const { return m_caption; }
    void setCaption(std::string caption);

    Points fontSize{9};
    bool bold = false;

private:
    std::string m_caption;
};

class TextBox : public Control {
public:
    TextBox(ControlSet& owner, std::string name, std::size_t maxLength = 0);

    const std::string& text() const { return m_text; }
    void setText(std::string text);

    /// The longest text that a person can enter, in characters; 0 for no limit. The program
    /// itself may set a longer one.
    std::size_t maxLength() const { return m_maxLength; }

    Points fontSize{9};

private:
    std::string m_text;
    std::size_t m_maxLength;
};

class Option;

/// Option controls of which at most one is on.
class OptionGroup {
public:
    void add(Option& option) { m_options.push_back(&option); }
    void turnOffAllBut(const Option& chosen);

private:
    std::vector<Option*> m_options;
};

class Option : public Control {
public:
    Option(ControlSet& owner, std::string name, OptionGroup& group, std::string caption);

    bool isOn() const { return m_on; }
    void setOn(bool on);
    const std::string& caption() const { return m_caption; }

    Points fontSize{9};

private:
    OptionGroup& m_group;
    std::string m_caption;
    bool m_on = false;
};

class CheckBox : public Control {
public:
    CheckBox(ControlSet& owner, std::string name, std::string caption);

    bool isOn() const { return m_on; }
    void setOn(bool on);
    const std::string& caption() const { return m_caption; }

    Points fontSize{9};

private:
    std::string m_caption;
    bool m_on = false;
};

/// The pictures that an image control can show.
enum class Art { None, SmallNormal, SmallDown, LargeNormal, LargeDown };

class Image : public Control {
public:
    Image(ControlSet& owner, std::string name);

    Art art() const { return m_art; }
    void setArt(Art art);
    Notice artAssigned;  // each time, also with the art that is shown

private:
    Art m_art = Art::None;
};

class PushButton : public Control {
public:
    PushButton(ControlSet& owner, std::string name, std::string caption);

    const std::string& caption() const { return m_caption; }

    Points fontSize{9};

private:
    std::string m_caption;
};

/// A drop-down list of fixed items.
class ComboBox : public Control {
public:
    ComboBox(ControlSet& owner, std::string name);

    const std::vector<std::string>& items() const { return m_items; }
    void addItem(std::string item);

    /// Index from 0; -1 for none.
    int selectedIndex() const { return m_selected; }
    void setSelectedIndex(int index);

    Points fontSize{9};

private:
    std::vector<std::string> m_items;
    int m_selected = -1;
};

/// A plain list of lines, indexed from 0.
class ListBox : public Control {
public:
    ListBox(ControlSet& owner, std::string name);

    const std::vector<std::string>& items() const { return m_items; }
    void add(std::string item);
    /// Fails with IndexOutOfBounds. The item that takes the place of a removed selected one is
    /// selected, else the new last, else none.
    void remove(int index);
    void clear();

    /// Index from 0; -1 for none.
    int selectedIndex() const { return m_selected; }
    void setSelectedIndex(int index);

private:
    std::vector<std::string> m_items;
    int m_selected = -1;
};

}  // namespace orvanta
