#include "core/buttons.h"

#include <gtest/gtest.h>

#include <set>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

const std::string addTip = "Add this statement to the list below.";
const std::string editTip = "Edit the currently highlighted statement.";
const std::string removeTip = "Remove the currently highlighted statement.";

struct Face {
    std::string name;
    bool large;
    std::string caption, toolTip;
};
std::ostream& operator<<(std::ostream& out, const Face& face) { return out << face.name; }

const std::vector<Face> faces{
    {"ABack", false, "<<Back", ""},
    {"About", true, "About", ""},
    {"AFAdd", false, "Add", "Browse to open a previously saved Brainstorm file."},
    {"AFRemove", false, "Remove", "Remove highlighted file from the list."},
    {"Analyze", true, "Analyze",
     "Once you\x92ve completed your brainstorming, use this section to begin analyzing your "
     "ideas."},
    {"ANext", false, "Next>>", ""},
    {"AOAdd", false, "Add", addTip},
    {"AOEdit", false, "Edit", editTip},
    {"AORemove", false, "Remove", removeTip},
    {"AQuit", false, "Quit", "End this session."},
    {"ASAdd", false, "Add", addTip},
    {"ASEdit", false, "Edit", editTip},
    {"ASRemove", false, "Remove", removeTip},
    {"ATAdd", false, "Add", addTip},
    {"ATEdit", false, "Edit", editTip},
    {"ATRemove", false, "Remove", removeTip},
    {"AWAdd", false, "Add", addTip},
    {"AWEdit", false, "Edit", editTip},
    {"AWRemove", false, "Remove", removeTip},
    {"BBack", false, "<<Back", ""},
    {"BNext", false, "Next>>", ""},
    {"BOAdd", false, "Add", addTip},
    {"BOEdit", false, "Edit", editTip},
    {"BOpen", true, "Open Brainstorm File...",
     "Open a file saved from a previous Brainstorm session"},
    {"BORemove", false, "Remove", removeTip},
    {"BQuit", false, "Quit", "End this session."},
    {"Brainstorm", true, "Brainstorm", "Begin brainstorming and capturing your ideas."},
    {"BSAdd", false, "Add", addTip},
    {"BSEdit", false, "Edit", editTip},
    {"BSRemove", false, "Remove", removeTip},
    {"BTAdd", false, "Add", addTip},
    {"BTEdit", false, "Edit", editTip},
    {"BTRemove", false, "Remove", removeTip},
    {"BWAdd", false, "Add", addTip},
    {"BWEdit", false, "Edit", editTip},
    {"BWRemove", false, "Remove", removeTip},
    {"OAFile", true, "Open Analyze File...", "Open a file saved from a previous Analyze session."},
    {"Overview", true, "Overview",
     "Click here to see an overview presentation that will instruct you on the SWOT analysis "
     "process."},
    {"Print", true, "Print Questions...", "Open a file saved from a previous Brainstorm session"},
    {"Quit", true, "Quit", "End this session."},
    {"Report", true, "Reports", "Generate a SWOT analysis report."},
};

class ButtonFace : public testing::TestWithParam<Face> {
protected:
    ButtonFace() { bench.start(); }
    SkinnedButton& button() { return bench.form().buttons[bench.button(GetParam().name)]; }
    Art normal() const { return GetParam().large ? Art::LargeNormal : Art::SmallNormal; }
    Bench bench;
};
INSTANTIATE_TEST_SUITE_P(Of, ButtonFace, testing::ValuesIn(faces), NameOfParameter());

TEST_P(ButtonFace, BearsItsCaption) { EXPECT_EQ(button().label.caption(), GetParam().caption); }

TEST_P(ButtonFace, HasOneToolTipOnPictureAndCaption) {
    EXPECT_EQ(button().image.toolTip(), GetParam().toolTip);
    EXPECT_EQ(button().label.toolTip(), GetParam().toolTip);
}

TEST_P(ButtonFace, ShowsTheArtOfItsSize) { EXPECT_EQ(button().image.art(), normal()); }

TEST_P(ButtonFace, WritesItsCaptionInBoldAtNineAndThreeQuarterPoints) {
    EXPECT_TRUE(button().label.isBold());
    EXPECT_EQ(button().label.fontSize().value, 9.75);
}

TEST(ToolTips, OfPrintingIsThatOfOpeningABrainstormFileWordForWord) {
    Bench bench;
    const SkinnedButtons& buttons = bench.form().buttons;
    EXPECT_EQ(buttons[Button::Print].label.toolTip(), buttons[Button::BOpen].label.toolTip());
    EXPECT_EQ(buttons[Button::Print].label.toolTip(),
              "Open a file saved from a previous Brainstorm session");
}

TEST(ToolTips, OfOpeningEndInAPointForAnalyzeFilesAlone) {
    Bench bench;
    const SkinnedButtons& buttons = bench.form().buttons;
    EXPECT_EQ(buttons[Button::BOpen].label.toolTip().back(), 'n');
    EXPECT_EQ(buttons[Button::OAFile].label.toolTip().back(), '.');
}

TEST(ToolTips, OfAddingASourceFileTellsOfTheFilesToBrowseFor) {
    Bench bench;
    EXPECT_EQ(bench.form().buttons[Button::AFAdd].label.toolTip(),
              "Browse to open a previously saved Brainstorm file.");
}

TEST(ToolTips, OfNextAndBackAreNoneAtFirst) {
    Bench bench;
    bench.start();
    for (const Button button : {Button::BNext, Button::ANext, Button::BBack, Button::ABack})
        EXPECT_EQ(bench.form().buttons[button].label.toolTip(), "") << faceOf(button).baseName;
}

TEST(SkinnedButtons, AreFortyOneOnTheMainWindow) {
    EXPECT_EQ(faces.size(), 41u);
    EXPECT_EQ(countOf<Button>, 41u);
    std::set<std::string> names;
    Bench bench;
    for (const Control* control : bench.form().controls.all())
        if (control->name().starts_with("lblBtn")) names.insert(control->name().substr(6));
    std::set<std::string> expected;
    for (const Face& face : faces) expected.insert(face.name);
    EXPECT_EQ(names, expected);
}

}  // namespace
}  // namespace orvanta::test
