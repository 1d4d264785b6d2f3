#include "core/frm_edit.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

struct Coded {
    std::string name;  // the code
    Session session;
    StatementKind kind;
};
std::ostream& operator<<(std::ostream& out, const Coded& coded) { return out << coded.name; }

class ShownEditDialog : public testing::TestWithParam<Coded> {};
INSTANTIATE_TEST_SUITE_P(Of, ShownEditDialog,
                         testing::Values(Coded{"BS", Session::Brainstorm, StatementKind::Strength},
                                         Coded{"BT", Session::Brainstorm, StatementKind::Threat},
                                         Coded{"AW", Session::Analyze, StatementKind::Weakness},
                                         Coded{"AO", Session::Analyze, StatementKind::Opportunity}),
                         NameOfParameter());

TEST_P(ShownEditDialog, HoldsTheTextAndKnowsWhereItCameFrom) {
    Bench bench;
    bench.start();
    showEditDialog(bench.program(), GetParam().session, GetParam().kind, "Own fleet");
    bench.play({{"do", "activate"}});
    EXPECT_EQ(bench.events("dialog"), Json::array({{{"event", "dialog"},
                                                    {"form", "frmEdit"},
                                                    {"text", "Own fleet"},
                                                    {"fromControl", GetParam().name}}}));
}

TEST(EditDialogOnLargeFonts, GetsNarrowerAndKeepsItsHeight) {
    FrmEdit form;
    const FrmEdit design;
    shrinkForLargeFonts(form, 12);
    EXPECT_DOUBLE_EQ(form.width.value, design.width.value * 12 / 15);
    EXPECT_DOUBLE_EQ(form.height.value, design.height.value);
}

TEST(EditDialogOnLargeFonts, ShrinksItsControlsAndLowersTheFontsOfItsLabelsAlone) {
    FrmEdit form;
    const FrmEdit design;
    shrinkForLargeFonts(form, 10);
    EXPECT_DOUBLE_EQ(form.txtEdit.bounds().top.value, design.txtEdit.bounds().top.value * 10 / 15);
    EXPECT_DOUBLE_EQ(form.btnOk.image.bounds().height.value,
                     design.btnOk.image.bounds().height.value * 10 / 15);
    EXPECT_DOUBLE_EQ(form.Label1.fontSize().value, design.Label1.fontSize().value - 2);
    EXPECT_DOUBLE_EQ(form.txtEdit.fontSize().value, design.txtEdit.fontSize().value);
}

TEST(EditDialogOnSmallFonts, IsShownAsLaidOut) {
    FrmEdit form;
    const FrmEdit design;
    shrinkForLargeFonts(form, 15);
    EXPECT_EQ(form.width, design.width);
    EXPECT_EQ(form.txtEdit.bounds(), design.txtEdit.bounds());
}

}  // namespace
}  // namespace orvanta::test
