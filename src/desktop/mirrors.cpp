#include "desktop/mirrors.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QEvent>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <string>
#include <utility>

#include "desktop/clicks.h"

namespace orvanta::desktop {

namespace {

/// Shows a model now and after each change.
template <class Show>
void follow(Control& model, Show show) {
    model.changed.subscribe(show);
    show();
}

/// Breaks the tool tip that a control has from the start into lines when it is first asked for.
/// Most are never, and the lines of all would take longer than anything else at the start.
class ToolTipLines : public QObject {
public:
    ToolTipLines(const Control& model, QWidget& widget)
        : QObject(&widget), m_model(model), m_widget(widget), m_told(model.toolTip()) {
        widget.installEventFilter(this);
    }

    void follow() {
        if (m_model.toolTip() != m_told) show();
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::ToolTip && m_widget.toolTip().isEmpty()) show();
        return false;
    }

private:
    void show() {
        m_told = m_model.toolTip();
        m_widget.setToolTip(shownToolTip(fromCp1252(m_told)));
    }

    const Control& m_model;
    QWidget& m_widget;
    std::string m_told;
};

void showFont(const TextControl& model, QWidget& widget, const ControlArea& area) {
    widget.setFont(area.pixelGrid().font(model.fontSize(), model.isBold()));
}

void showCaption(const CaptionedControl& model, QAbstractButton& widget, const ControlArea& area) {
    showFont(model, widget, area);
    widget.setText(fromCp1252(model.caption()));
    widget.setAccessibleName(shownCaption(model.caption()));
}

}  // namespace

void describe(const Control& model, QWidget& widget) {
    const QString toolTip = fromCp1252(model.toolTip()), keys = widget.property("keys").toString();
    const QString gap = toolTip.isEmpty() || keys.isEmpty() ? QString() : QStringLiteral(" ");
    widget.setAccessibleDescription(toolTip + gap + keys);
}

void mirrorControl(Control& model, QWidget& widget, ControlArea& area) {
    widget.setObjectName(fromCp1252(model.name()));
    widget.setAttribute(Qt::WA_Resized);  // by the layout: no words are measured for a size
    area.hold(model, widget);
    auto* toolTip = new ToolTipLines(model, widget);
    follow(model, [&model, &widget, toolTip] {
        showIfUncovered(model, widget);
        widget.setEnabled(model.isEnabled());
        toolTip->follow();
        describe(model, widget);
        if (!model.accessibleName().empty())
            widget.setAccessibleName(fromCp1252(model.accessibleName()));
    });
    model.focusGiven.subscribe([&widget] { widget.setFocus(); });
}

TextBoxView* makeTextBox(TextBox& model, ControlArea& area, TextBoxView::Typed typed,
                         TextBoxView::Content content) {
    auto* widget = new TextBoxView(model, std::move(typed), content, &area);
    follow(model, [&model, widget, &area] { showFont(model, *widget, area); });
    mirrorControl(model, *widget, area);
    return widget;
}

QRadioButton* makeOption(Option& model, ControlArea& area) {
    auto* widget = new QRadioButton(&area);
    const auto show = [&model, widget, &area] {
        const QSignalBlocker silence(widget);
        showCaption(model, *widget, area);
        widget->setAutoExclusive(false);  // else the last one on can't be turned off
        widget->setChecked(model.isOn());
        widget->setAutoExclusive(true);
    };
    follow(model, show);
    // Not clicked: an assistive program toggles without a click.
    QObject::connect(widget, &QRadioButton::toggled, widget, [&model](bool on) {
        if (on) model.setOn(true);
    });
    mirrorControl(model, *widget, area);
    return widget;
}

QCheckBox* makeCheckBox(CheckBox& model, ControlArea& area, std::function<void(bool)> clicked) {
    auto* widget = new QCheckBox(&area);
    const auto show = [&model, widget, &area] {
        const QSignalBlocker silence(widget);
        showCaption(model, *widget, area);
        widget->setChecked(model.isOn());
    };
    follow(model, show);
    QObject::connect(widget, &QCheckBox::toggled, widget,
                     [clicked = std::move(clicked), show](bool on) {
                         clicked(on);
                         show();
                     });
    mirrorControl(model, *widget, area);
    return widget;
}

QPushButton* makePushButton(PushButton& model, ControlArea& area, std::function<void()> clicked) {
    auto* widget = new QPushButton(&area);
    widget->setAutoDefault(false);
    follow(model, [&model, widget, &area] { showCaption(model, *widget, area); });
    whenClicked(*widget, std::move(clicked));
    mirrorControl(model, *widget, area);
    return widget;
}

QComboBox* makeComboBox(ComboBox& model, ControlArea& area) {
    auto* widget = new QComboBox(&area);
    follow(model, [&model, widget, &area] {
        const QSignalBlocker silence(widget);
        showFont(model, *widget, area);
        for (auto i = static_cast<std::size_t>(widget->count()); i < model.items().size(); ++i)
            widget->addItem(fromCp1252(model.items()[i]));
        widget->setCurrentIndex(model.selectedIndex());
    });
    QObject::connect(widget, &QComboBox::currentIndexChanged, widget,
                     [&model](int index) { model.setSelectedIndex(index); });
    mirrorControl(model, *widget, area);
    return widget;
}

FileListView* makeFileList(ListBox& model, ControlArea& area, FileListView::Dropped dropped) {
    auto* widget = new FileListView(model, std::move(dropped), &area);
    follow(model, [&model, widget, &area] {
        showFont(model, *widget, area);
        widget->showFiles();
    });
    mirrorControl(model, *widget, area);
    return widget;
}

void makeSkinnedButton(SkinnedButton& model, ControlArea& area, const ButtonActs& acts) {
    auto* picture = new ButtonPictureView(model, acts, &area);
    auto* caption = new ButtonCaptionView(model, acts, area.pixelGrid(), &area);
    caption->setBuddy(picture);  // one control to assistive programs
    mirrorControl(model.image, *picture, area);
    mirrorControl(model.label, *caption, area);
}

}  // namespace orvanta::desktop
