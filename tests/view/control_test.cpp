#include "view/control.h"

#include <gtest/gtest.h>

#include "bench.h"
#include "failure_of.h"

namespace orvanta::test {
namespace {

/// Counts how often a notice is given.
struct Count {
    explicit Count(Notice& notice) {
        notice.subscribe([this] { ++times; });
    }
    int times = 0;
};

/// A module screen with two steps in one spot, a button beside them and a box that both cover.
struct Form {
    ControlSet controls;
    PanelStack steps;
    Panel module{controls, "module"};
    Panel first{controls, "first", &steps}, second{controls, "second", &steps};
    TextBox onFirst{controls, "onFirst"}, onSecond{controls, "onSecond"};
    TextBox covered{controls, "covered"}, beside{controls, "beside"};

    Form() {
        for (Control* inside : {static_cast<Control*>(&first), static_cast<Control*>(&second),
                                static_cast<Control*>(&covered), static_cast<Control*>(&beside)})
            inside->setContainer(&module);
        onFirst.setContainer(&first);
        onSecond.setContainer(&second);
        covered.setCoveredBy(&steps);
        first.hide();
        second.hide();
    }
};

TEST(ControlSet, KeepsTheOrderOfDeclaration) {
    Form form;
    EXPECT_EQ(form.controls.all().front(), &form.module);
    EXPECT_EQ(form.controls.all().back(), &form.beside);
}

TEST(Reach, EndsAtAHiddenOrDisabledControl) {
    Form form;
    EXPECT_TRUE(form.beside.isReachable());
    form.beside.setEnabled(false);
    EXPECT_FALSE(form.beside.isReachable());
    form.beside.setEnabled(true);
    form.beside.setVisible(false);
    EXPECT_FALSE(form.beside.isReachable());
}

TEST(Reach, EndsAtAHiddenContainerAndLeavesTheControlsOwnSwitch) {
    Form form;
    form.first.show();
    EXPECT_TRUE(form.onFirst.isReachable());
    form.module.hide();
    EXPECT_FALSE(form.onFirst.isReachable());
    EXPECT_TRUE(form.onFirst.isVisible());
}

TEST(Reach, EndsWhereAPanelLiesOverTheControl) {
    Form form;
    EXPECT_TRUE(form.covered.isReachable());
    form.second.show();
    EXPECT_FALSE(form.covered.isReachable());
    EXPECT_TRUE(form.beside.isReachable());
    form.second.hide();
    EXPECT_TRUE(form.covered.isReachable());
}

TEST(Reach, EndsWhereAPanelLiesOverTheHolderOfTheControl) {
    Form form;
    Panel holder(form.controls, "holder");
    Image picture(form.controls, "picture");
    holder.setContainer(&form.module);
    holder.setCoveredBy(&form.steps);
    picture.setContainer(&holder);
    EXPECT_TRUE(picture.isReachable());
    form.first.show();
    EXPECT_FALSE(picture.isReachable());
}

TEST(Reach, EndsAtAPanelThatLiesUnderAnother) {
    Form form;
    form.first.show();
    form.second.show();
    EXPECT_TRUE(form.second.isUncovered());
    EXPECT_FALSE(form.first.isUncovered());
    EXPECT_FALSE(form.first.isReachable());
    EXPECT_FALSE(form.onFirst.isReachable());
    EXPECT_TRUE(form.onFirst.isUncovered());  // what hides it is not its own
}

TEST(PanelStack, HasThePanelOnTopThatWasShownLast) {
    Form form;
    form.second.show();
    form.first.show();
    EXPECT_EQ(form.steps.top(), &form.first);
    EXPECT_TRUE(form.onFirst.isReachable());
    EXPECT_FALSE(form.onSecond.isReachable());
}

TEST(PanelStack, PutsAPanelOnTopAlsoWhenItIsVisibleAlready) {
    Form form;
    form.first.show();
    form.second.show();
    form.first.show();
    EXPECT_EQ(form.steps.top(), &form.first);
}

TEST(PanelStack, UncoversThePanelBeneathAHiddenOne) {
    Form form;
    form.first.show();
    form.second.show();
    form.second.hide();
    EXPECT_EQ(form.steps.top(), &form.first);
    EXPECT_TRUE(form.onFirst.isReachable());
}

TEST(PanelStack, IsEmptyWithAllPanelsHidden) {
    Form form;
    EXPECT_EQ(form.steps.top(), nullptr);
    EXPECT_FALSE(form.steps.hasVisible());
    form.first.show();
    EXPECT_TRUE(form.steps.hasVisible());
}

TEST(Panel, TellsOfEachShowAndChangesOnce) {
    Form form;
    Count raised(form.first.raised), changed(form.first.changed);
    form.first.show();
    form.first.show();
    form.first.hide();
    EXPECT_EQ(raised.times, 2);
    EXPECT_EQ(changed.times, 2);
}

TEST(Focus, IsToldEachTimeAlsoToTheControlThatHasIt) {
    Form form;
    Count given(form.beside.focusGiven);
    form.beside.giveFocus();
    form.beside.giveFocus();
    EXPECT_EQ(given.times, 2);
}

/// How many notices it gives to set a property twice to the same value.
template <class Set>
int noticesOf(const Count& changed, Set set) {
    const int before = changed.times;
    set();
    set();
    return changed.times - before;
}

TEST(Control, TellsOfEachChangeOfAPropertyOnce) {
    Form form;
    Control& control = form.beside;
    const Count changed(control.changed);
    EXPECT_EQ(noticesOf(changed, [&] { control.setVisible(false); }), 1);
    EXPECT_EQ(noticesOf(changed, [&] { control.setEnabled(false); }), 1);
    EXPECT_EQ(noticesOf(changed, [&] { control.setToolTip("tip"); }), 1);
    EXPECT_EQ(noticesOf(changed, [&] { control.setAccessibleName("name"); }), 1);
    EXPECT_EQ(noticesOf(changed, [&] { control.setBounds({{1}, {2}, {3}, {4}}); }), 1);
    EXPECT_EQ(noticesOf(changed, [&] { control.setStretch({0, 0, 1, 1}); }), 1);
    EXPECT_EQ(noticesOf(changed, [&] { control.setContainer(&form.first); }), 1);
    EXPECT_EQ(noticesOf(changed, [&] { control.setCoveredBy(&form.steps); }), 1);
}

TEST(TextBox, TellsOfItsTextAndItsFont) {
    Form form;
    const Count changed(form.beside.changed);
    EXPECT_EQ(noticesOf(changed, [&] { form.beside.setText("typed"); }), 1);
    EXPECT_EQ(noticesOf(changed, [&] { form.beside.setFontSize({8}); }), 1);
    EXPECT_EQ(noticesOf(changed, [&] { form.beside.setBold(true); }), 1);
}

TEST(CheckBox, TellsOfItsCaptionAndItsSwitch) {
    ControlSet controls;
    CheckBox box(controls, "box", "Box");
    const Count changed(box.changed);
    EXPECT_EQ(noticesOf(changed, [&] { box.setCaption("Other"); }), 1);
    EXPECT_EQ(noticesOf(changed, [&] { box.setOn(true); }), 1);
}

TEST(ComboBox, TellsOfItsItemsAndItsSelection) {
    ControlSet controls;
    ComboBox box(controls, "box");
    const Count changed(box.changed);
    box.add("item");
    EXPECT_EQ(changed.times, 1);
    EXPECT_FALSE(box.hasSelection());
    EXPECT_EQ(noticesOf(changed, [&] { box.setSelectedIndex(0); }), 1);
    EXPECT_TRUE(box.hasSelection());
}

TEST(Control, KnowsWhatItIs) {
    Form form;
    Control &box = form.beside, &panel = form.module;
    EXPECT_EQ(box.as<TextBox>(), &form.beside);
    EXPECT_EQ(box.as<Label>(), nullptr);
    EXPECT_TRUE(panel.is<Panel>());
    EXPECT_FALSE(panel.is<TextBox>());
    EXPECT_TRUE(std::holds_alternative<Panel*>(panel.self()));
}

TEST(Options, AreOnOneAtATime) {
    ControlSet controls;
    OptionGroup group;
    Option first(controls, "first", group, "First"), second(controls, "second", group, "Second");
    first.setOn(true);
    second.setOn(true);
    EXPECT_FALSE(first.isOn());
    EXPECT_TRUE(second.isOn());
}

TEST(Options, CanAllBeOff) {
    ControlSet controls;
    OptionGroup group;
    Option first(controls, "first", group, "First"), second(controls, "second", group, "Second");
    first.setOn(true);
    first.setOn(false);
    EXPECT_FALSE(first.isOn());
    EXPECT_FALSE(second.isOn());
}

TEST(Picture, TellsOfEveryAssignmentAndOfAChangeOnlyWhenItDiffers) {
    ControlSet controls;
    Image image(controls, "image");
    Count assigned(image.artAssigned), changed(image.changed);
    image.setArt(Art::SmallDown);
    image.setArt(Art::SmallDown);
    EXPECT_EQ(assigned.times, 2);
    EXPECT_EQ(changed.times, 1);
}

class FileList : public testing::Test {
protected:
    FileList() {
        for (const char* path : {"a", "b", "c"}) list.add(path);
    }
    ControlSet controls;
    ListBox list{controls, "list"};
};

TEST_F(FileList, SelectsNothingByItself) { EXPECT_EQ(list.selectedIndex(), -1); }

TEST_F(FileList, SelectsTheItemThatTakesThePlaceOfARemovedOne) {
    list.setSelectedIndex(1);
    list.remove(1);
    EXPECT_EQ(list.items(), (Texts{"a", "c"}));
    EXPECT_EQ(list.selectedIndex(), 1);
}

TEST_F(FileList, SelectsTheNewLastItemBehindTheRemovalOfTheLast) {
    list.setSelectedIndex(2);
    list.remove(2);
    EXPECT_EQ(list.selectedIndex(), 1);
}

TEST_F(FileList, KeepsTheSelectedItemThroughARemovalAheadOfIt) {
    list.setSelectedIndex(1);
    list.remove(0);
    EXPECT_EQ(list.items()[static_cast<std::size_t>(list.selectedIndex())], "b");
}

TEST_F(FileList, SelectsNothingOnceItIsEmpty) {
    list.setSelectedIndex(0);
    for (int i = 0; i < 3; ++i) list.remove(0);
    EXPECT_EQ(list.selectedIndex(), -1);
    list.add("d");
    EXPECT_EQ(list.selectedIndex(), -1);
}

TEST_F(FileList, SelectsNothingOnceItWasCleared) {
    list.setSelectedIndex(1);
    list.clear();
    EXPECT_EQ(list.selectedIndex(), -1);
    EXPECT_EQ(list.items(), Texts{});
}

TEST_F(FileList, RefusesToRemoveWhatItDoesNotHold) {
    EXPECT_EQ(failureOf([&] { list.remove(-1); }), 35600);
    EXPECT_EQ(failureOf([&] { list.remove(3); }), 35600);
    EXPECT_EQ(list.items().size(), 3u);
}

TEST(ControlDeathTest, HasANameThatNoOtherOfItsFormHas) {
    Form form;
    EXPECT_DEATH(TextBox(form.controls, "beside"), "name");
    EXPECT_DEATH(TextBox(form.controls, ""), "empty");
}

TEST(ControlDeathTest, TakesNoSelectionThatItDoesNotHold) {
    ControlSet controls;
    ListBox list(controls, "list");
    EXPECT_DEATH(list.setSelectedIndex(0), "index");
    EXPECT_DEATH(list.setSelectedIndex(-2), "index");
}

TEST(ControlDeathTest, RaisesNoPanelOfAnotherStack) {
    Form form;
    EXPECT_DEATH(form.steps.raise(form.module), "place");
}

}  // namespace
}  // namespace orvanta::test
