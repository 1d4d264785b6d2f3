#pragma once

#include "desktop/control_area.h"
#include "desktop/file_list_view.h"
#include "desktop/skinned_button_view.h"
#include "desktop/text_box_view.h"
#include "view/control.h"

class QCheckBox;
class QComboBox;
class QPushButton;
class QRadioButton;

namespace orvanta::desktop {

// Each widget shows its model and keeps nothing of its own. What a person does goes to the
// program's routine; the model then tells the widget. A model must outlive its widget's use.

/// What all controls have in common: name, place, visibility, tool tip, focus. The area holds
/// the widget.
void mirrorControl(Control& model, QWidget& widget, ControlArea& area);

/// Tells assistive programs the control's tool tip and, from the widget's property "keys", its
/// keys.
void describe(const Control& model, QWidget& widget);

TextBoxView* makeTextBox(TextBox& model, ControlArea& area, TextBoxView::Typed typed,
                         TextBoxView::Content content = TextBoxView::Content::Text);
QRadioButton* makeOption(Option& model, ControlArea& area);
/// A click hands the wanted state to `clicked`.
QCheckBox* makeCheckBox(CheckBox& model, ControlArea& area, std::function<void(bool on)> clicked);
QPushButton* makePushButton(PushButton& model, ControlArea& area, std::function<void()> clicked);
QComboBox* makeComboBox(ComboBox& model, ControlArea& area);
FileListView* makeFileList(ListBox& model, ControlArea& area, FileListView::Dropped dropped);
void makeSkinnedButton(SkinnedButton& model, ControlArea& area, const ButtonActs& acts);

}  // namespace orvanta::desktop
