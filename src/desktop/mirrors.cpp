#include "desktop/mirrors.h"

#include <QAbstractButton>
#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QSignalBlocker>
#include <utility>

#include "app/list_hints.h"
#include "desktop/clicks.h"
#include "desktop/statement_row_painter.h"

namespace orvanta::desktop {

namespace {

/// Shows a model now and after each change.
template <class Show>
void follow(Control& model, Show show) {
    model.changed.subscribe(show);
    show();
}

void showFont(const TextControl& model, QWidget& widget, const ControlArea& area) {
    widget.setFont(area.pixelGrid().font(model.fontSize(), model.isBold()));
}

void showCaption(const CaptionedControl& model, QAbstractButton& widget, const ControlArea& area) {
    showFont(model, widget, area);
    widget.setText(fromCp1252(model.caption()));
    widget.setAccessibleName(shownCaption(model.caption()));
}

/// The list of files, which tells what comes there as long as it is empty.
class FileListView : public QListWidget {
public:
    FileListView(const ListBox& model, QWidget* parent) : QListWidget(parent), m_model(model) {}

protected:
    void paintEvent(QPaintEvent* event) override {
        QListWidget::paintEvent(event);
        QPainter painter(viewport());
        drawHint(painter, *viewport(), 0, fromCp1252(hintIn(m_model)));
    }

private:
    const ListBox& m_model;
};

void showFiles(const ListBox& model, QListWidget& widget) {
    const QSignalBlocker silence(widget);
    widget.clear();
    for (const std::string& path : model.items()) {
        auto* item = new QListWidgetItem(fromPath(path), &widget);
        item->setToolTip(shownToolTip(fromPath(path)));
    }
    widget.setCurrentRow(model.selectedIndex());
}

}  // namespace

void describe(const Control& model, QWidget& widget) {
    const QString toolTip = fromCp1252(model.toolTip()), keys = widget.property("keys").toString();
    const QString gap = toolTip.isEmpty() || keys.isEmpty() ? QString() : QStringLiteral(" ");
    widget.setAccessibleDescription(toolTip + gap + keys);
}

void mirrorControl(Control& model, QWidget& widget, ControlArea& area) {
    widget.setObjectName(fromCp1252(model.name()));
    area.hold(model, widget);
    follow(model, [&model, &widget] {
        widget.setVisible(model.isUncovered());
        widget.setEnabled(model.isEnabled());
        widget.setToolTip(shownToolTip(fromCp1252(model.toolTip())));
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

QListWidget* makeListBox(ListBox& model, ControlArea& area) {
    auto* widget = new FileListView(model, &area);
    widget->setTextElideMode(Qt::ElideMiddle);
    widget->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    follow(model, [&model, widget, &area] {
        showFont(model, *widget, area);
        showFiles(model, *widget);
    });
    QObject::connect(widget, &QListWidget::itemSelectionChanged, widget, [&model, widget] {
        const auto chosen = widget->selectedItems();
        model.setSelectedIndex(chosen.isEmpty() ? -1 : widget->row(chosen.front()));
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
