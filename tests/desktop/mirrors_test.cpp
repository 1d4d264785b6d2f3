#include "desktop/mirrors.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHelpEvent>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QToolTip>

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

class OrdinaryScreen : public orvanta::Screen {
public:
    double twipsPerPixel() const override { return 15; }
};

/// An area of 100 by 50 pixels; the controls that a test declares are mirrored in it.
class Mirrors : public testing::Test {
protected:
    Mirrors() {
        area.setDesignSize({1500}, {750});
        area.resize(area.designSize());
    }

    static double fontSizeOf(const QWidget& widget) { return widget.font().pointSizeF(); }

    OrdinaryScreen screen;
    ControlSet controls;
    ControlArea area{PixelGrid(screen), nullptr};
};

}  // namespace

TEST_F(Mirrors, FollowTheStretchOfAControl) {
    CheckBox model(controls, "chkAny", "Any");
    model.setBounds({{150}, {150}, {300}, {150}});
    const QWidget& widget = *makeCheckBox(model, area, [](bool) {});
    area.resize(120, 50);
    area.show();
    EXPECT_EQ(widget.geometry(), QRect(10, 10, 20, 10));
    model.setStretch({0, 0, 1, 0});
    EXPECT_EQ(widget.geometry(), QRect(10, 10, 40, 10));
}

TEST_F(Mirrors, HideWhatComesUnderAPanel) {
    PanelStack stack;
    Panel panel(controls, "picAny", &stack);
    CheckBox model(controls, "chkAny", "Any");
    const QWidget& widget = *makeCheckBox(model, area, [](bool) {});
    EXPECT_FALSE(widget.isHidden());
    model.setCoveredBy(&stack);
    EXPECT_TRUE(widget.isHidden());
}

TEST_F(Mirrors, TellTheToolTipToAPointerThatRestsAndFollowItsChange) {
    CheckBox model(controls, "chkAny", "Any");
    model.setToolTip("Less < more");
    QWidget& widget = *makeCheckBox(model, area, [](bool) {});
    QHelpEvent rests(QEvent::ToolTip, {}, {});
    QApplication::sendEvent(&widget, &rests);
    EXPECT_EQ(widget.toolTip(), shownToolTip("Less < more"));
    model.setToolTip("Other");
    EXPECT_EQ(widget.toolTip(), shownToolTip("Other"));
    QToolTip::hideText();
}

TEST_F(Mirrors, FollowTheNameForThoseWhoDoNotSeeTheControl) {
    PushButton model(controls, "cmdAny", "Caption");
    const QWidget& widget = *makePushButton(model, area, [] {});
    EXPECT_EQ(widget.accessibleName(), QStringLiteral("Caption"));
    model.setAccessibleName("Name");
    EXPECT_EQ(widget.accessibleName(), QStringLiteral("Name"));
}

TEST_F(Mirrors, FollowTheCaptionsOfButtonsAndBoxes) {
    OptionGroup group;
    PushButton button(controls, "cmdAny", "Before");
    CheckBox box(controls, "chkAny", "Before");
    Option option(controls, "optAny", group, "Before");
    const std::vector<std::pair<CaptionedControl*, QAbstractButton*>> shown{
        {&button, makePushButton(button, area, [] {})},
        {&box, makeCheckBox(box, area, [](bool) {})},
        {&option, makeOption(option, area)}};
    for (const auto& [model, widget] : shown) {
        model->setCaption("After && later");
        EXPECT_EQ(widget->text(), QStringLiteral("After && later")) << model->name();
        EXPECT_EQ(widget->accessibleName(), QStringLiteral("After & later")) << model->name();
    }
}

TEST_F(Mirrors, ShowTwoAmpersandsOfACaptionAsOne) {
    OptionGroup group;
    PushButton button(controls, "cmdAny", "R&&D");
    Option option(controls, "optAny", group, "R&&D");
    // The toolkit draws two as one; a single one underlines the letter behind it and is its key.
    for (QAbstractButton* shown :
         {static_cast<QAbstractButton*>(makePushButton(button, area, [] {})),
          static_cast<QAbstractButton*>(makeOption(option, area))}) {
        const QSize size = shown->fontMetrics().size(Qt::TextShowMnemonic, shown->text());
        EXPECT_EQ(size, shown->fontMetrics().size(Qt::TextSingleLine, QStringLiteral("R&D")));
        EXPECT_EQ(shown->shortcut(), QKeySequence());
        EXPECT_EQ(shown->accessibleName(), QStringLiteral("R&D"));
    }
}

TEST_F(Mirrors, FollowTheFontsOfAllThatShowsText) {
    OptionGroup group;
    PushButton button(controls, "cmdAny", "Any");
    CheckBox check(controls, "chkAny", "Any");
    Option option(controls, "optAny", group, "Any");
    TextBox box(controls, "txtAny");
    ComboBox items(controls, "cboAny");
    ListBox list(controls, "lstAny");
    const std::vector<std::pair<TextControl*, QWidget*>> shown{
        {&button, makePushButton(button, area, [] {})},
        {&check, makeCheckBox(check, area, [](bool) {})},
        {&option, makeOption(option, area)},
        {&box, makeTextBox(box, area, [](char) { return true; })},
        {&items, makeComboBox(items, area)},
        {&list, makeFileList(list, area, [](const std::string&) {})}};
    for (const auto& [model, widget] : shown) {
        EXPECT_DOUBLE_EQ(fontSizeOf(*widget), 9) << model->name();
        EXPECT_FALSE(widget->font().bold()) << model->name();
        model->setFontSize({12});
        model->setBold(true);
        EXPECT_DOUBLE_EQ(fontSizeOf(*widget), 12) << model->name();
        EXPECT_TRUE(widget->font().bold()) << model->name();
    }
}

}  // namespace orvanta::test
