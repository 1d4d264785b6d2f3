#include "presentation/edit_dialog.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

struct EditedList {
    std::string name, list;  // the name is the list's code
    bool analyze;
};
std::ostream& operator<<(std::ostream& out, const EditedList& list) { return out << list.name; }

/// The dialog over a list whose selected row reads "Old".
class EditDialog : public testing::TestWithParam<EditedList> {
protected:
    EditDialog() {
        bench.start();
        for (const EditedList& edited : lists()) {
            StatementList& list = bench.list(edited.list);
            list.add({.key = "K1", .text = "First", .image = 1, .largeImage = 1});
            list.add({.key = "K2", .text = "Old", .image = 1, .largeImage = 1});
            list.select(2);
        }
    }
    void edit(const Json& steps, const std::string& code = GetParam().name) {
        bench.play({{"answer", "frmEdit"}, {"steps", steps}});
        FrmEdit form;
        form.fromControl = code;
        form.txtEdit.setText("Old");
        bench.program().platform.modalForms.run(form);
        bench.play({{"do", "mute"}, {"on", false}});  // brings the events of the dialog along
    }
    static Json typed(const std::string& text, const std::string& press = "ok") {
        return Json::array({{{"text", text}}, {{"press", press}}});
    }
    std::string text() { return bench.list(GetParam().list).row(2).text; }
    bool flag() { return GetParam().analyze ? bench.form().editAFlag : bench.form().editFlag; }
    bool otherFlag() { return GetParam().analyze ? bench.form().editFlag : bench.form().editAFlag; }

    Bench bench;

public:
    static const std::vector<EditedList>& lists() {
        static const std::vector<EditedList> all{
            {"BS", "lvBStrength", false},    {"BW", "lvBWeakness", false},
            {"BO", "lvBOpportunity", false}, {"BT", "lvBThreat", false},
            {"AS", "lvAStrength", true},     {"AW", "lvAWeakness", true},
            {"AO", "lvAOpportunity", true},  {"AT", "lvAThreat", true}};
        return all;
    }
};
INSTANTIATE_TEST_SUITE_P(Of, EditDialog, testing::ValuesIn(EditDialog::lists()), NameOfParameter());

TEST_P(EditDialog, WritesTheTextIntoTheSelectedRowOfItsListAlone) {
    edit(typed("New"));
    for (const EditedList& edited : lists())
        EXPECT_EQ(bench.texts(edited.list),
                  (Texts{"First", edited.name == GetParam().name ? "New" : "Old"}));
}

TEST_P(EditDialog, MarksTheSessionOfItsModuleAlone) {
    edit(typed("New"));
    EXPECT_TRUE(flag());
    EXPECT_FALSE(otherFlag());
}

TEST_P(EditDialog, MarksTheSessionAlsoWhenTheTextIsUnchanged) {
    edit(Json::array({{{"press", "ok"}}}));
    EXPECT_EQ(text(), "Old");
    EXPECT_TRUE(flag());
}

TEST_P(EditDialog, StoresATextWithItsBlanks) {
    edit(typed("  New  "));
    EXPECT_EQ(text(), "  New  ");
}

TEST_P(EditDialog, IsConfirmedByEnterToo) {
    edit(typed("New", "enter"));
    EXPECT_EQ(text(), "New");
    EXPECT_TRUE(flag());
}

TEST_P(EditDialog, StoresNothingOnCancel) {
    edit(typed("New", "cancel"));
    EXPECT_EQ(text(), "Old");
    EXPECT_FALSE(flag());
}

TEST_P(EditDialog, StoresNothingWhenItIsClosed) {
    edit(Json::array({{{"text", "New"}}}));
    EXPECT_EQ(text(), "Old");
    EXPECT_FALSE(flag());
}

TEST_P(EditDialog, RefusesBlanksAndGivesTheBoxTheFocus) {
    bench.events();
    edit(typed("   "));
    Json seen = bench.events();
    seen.erase(seen.begin());  // the dialog itself
    EXPECT_EQ(seen, Json::array({refusal("Blank answer not allowed."), focusOn("txtEdit")}));
    EXPECT_EQ(text(), "Old");
    EXPECT_FALSE(flag());
}

TEST_P(EditDialog, RefusesAnEmptyText) {
    edit(typed(""));
    EXPECT_EQ(bench.messages(), Texts{"Blank answer not allowed."});
    EXPECT_EQ(text(), "Old");
}

TEST_P(EditDialog, StaysOpenBehindARefusal) {
    edit(Json::array(
        {{{"text", "  "}}, {{"press", "enter"}}, {{"text", "New"}}, {{"press", "ok"}}}));
    EXPECT_EQ(text(), "New");
}

TEST_P(EditDialog, TakesTwoHundredAndFiftyFiveCharacters) {
    edit(typed(std::string(300, 'x')));
    EXPECT_EQ(text(), std::string(255, 'x'));
}

class UnknownEditCode : public EditDialog {};
INSTANTIATE_TEST_SUITE_P(Of, UnknownEditCode,
                         testing::Values(EditedList{"XS", "lvBStrength", false},
                                         EditedList{"BX", "lvBStrength", false},
                                         EditedList{"bs", "lvBStrength", false},
                                         EditedList{"B", "lvBStrength", false},
                                         EditedList{"BSS", "lvBStrength", false}),
                         NameOfParameter());

TEST_P(UnknownEditCode, StoresNothingMarksNothingAndCloses) {
    FrmEdit form;
    form.fromControl = GetParam().name;
    form.txtEdit.setText("New");
    commitEdit(bench.program(), form);
    EXPECT_FALSE(form.open);
    for (const EditedList& edited : lists()) EXPECT_EQ(bench.texts(edited.list)[1], "Old");
    EXPECT_FALSE(bench.form().editFlag);
    EXPECT_FALSE(bench.form().editAFlag);
}

class EditForm : public testing::Test {
protected:
    EditForm() { bench.start(); }
    Bench bench;
    FrmEdit form;
};

TEST_F(EditForm, KeepsABlankTextAfterItsRefusal) {
    form.txtEdit.setText("  ");
    commitEdit(bench.program(), form);
    EXPECT_TRUE(form.open);
    EXPECT_EQ(form.txtEdit.text(), "  ");
}

TEST_F(EditForm, ShowsALongerStatementWhole) {
    form.txtEdit.setText(std::string(400, 'x'));
    EXPECT_EQ(form.txtEdit.text().size(), 400u);
    EXPECT_EQ(form.txtEdit.maxLength(), 255u);
}

TEST_F(EditForm, SaysEditStatementWhateverItEdits) {
    for (const EditedList& edited : EditDialog::lists()) {
        FrmEdit any;
        any.fromControl = edited.name;
        EXPECT_EQ(any.Label1.caption(), "Edit Statement");
        EXPECT_EQ(any.caption, "Edit Statement");
    }
}

TEST_F(EditForm, HasTwoSmallButtonsWithoutToolTipsCancelAtTheLeft) {
    EXPECT_EQ(form.btnCancel.label.caption(), "Cancel");
    EXPECT_EQ(form.btnOk.label.caption(), "OK");
    EXPECT_LT(form.btnCancel.label.bounds().left.value, form.btnOk.label.bounds().left.value);
    for (const Control* control : form.controls.all()) EXPECT_EQ(control->toolTip(), "");
    EXPECT_EQ(form.btnOk.image.art(), Art::SmallNormal);
}

TEST_F(EditForm, HoldsItsButtonsDownUntilTheyAreLetGo) {
    pressEditButton(bench.program(), form.btnOk);
    EXPECT_EQ(form.btnOk.image.art(), Art::SmallDown);
    EXPECT_EQ(form.btnCancel.image.art(), Art::SmallNormal);
    EXPECT_TRUE(form.open);
    releaseEditOk(bench.program(), form);
    EXPECT_EQ(form.btnOk.image.art(), Art::SmallNormal);
    pressEditButton(bench.program(), form.btnCancel);
    EXPECT_EQ(form.btnCancel.image.art(), Art::SmallDown);
    releaseEditCancel(bench.program(), form);
    EXPECT_EQ(form.btnCancel.image.art(), Art::SmallNormal);
}

TEST_F(EditForm, IsLaidOutOnItsGrid) {
    EXPECT_EQ(form.width.value, 7590);
    EXPECT_EQ(form.height.value, 2445);
    EXPECT_TRUE(form.Label1.bounds() == (Bounds{{240}, {360}, {1455}, {210}}));
    EXPECT_TRUE(form.txtEdit.bounds() == (Bounds{{240}, {720}, {7095}, {375}}));
    EXPECT_TRUE(form.btnCancel.label.bounds() == (Bounds{{2400}, {1680}, {735}, {240}}));
    EXPECT_TRUE(form.btnOk.label.bounds() == (Bounds{{4680}, {1680}, {300}, {240}}));
}

TEST_F(EditForm, ShrinksForLargeFontsInAllButItsHeight) {
    const double fontBefore = form.Label1.fontSize().value;
    const double boxFontBefore = form.txtEdit.fontSize().value;
    shrinkForLargeFonts(form, 12);
    EXPECT_DOUBLE_EQ(form.width.value, 7590 - 7590 * 3 / 15.0);
    EXPECT_DOUBLE_EQ(form.height.value, 2445);
    EXPECT_DOUBLE_EQ(form.txtEdit.bounds().width.value, 7095 - 7095 * 3 / 15.0);
    EXPECT_DOUBLE_EQ(form.txtEdit.bounds().top.value, 720 - 720 * 3 / 15.0);
    EXPECT_DOUBLE_EQ(form.Label1.fontSize().value, fontBefore - 2);
    EXPECT_DOUBLE_EQ(form.txtEdit.fontSize().value, boxFontBefore);
}

TEST_F(EditForm, KeepsItsSizeOnAnOrdinaryDisplay) {
    shrinkForLargeFonts(form, 15);
    EXPECT_EQ(form.width.value, 7590);
    EXPECT_EQ(form.txtEdit.bounds().width.value, 7095);
}

}  // namespace
}  // namespace orvanta::test
