#include "app/window_events.h"

#include <gtest/gtest.h>

#include <limits>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

Json unhandled(int number, const std::string& description) {
    return {{"event", "unhandledError"}, {"number", number}, {"description", description}};
}

constexpr char enterKey = 13;

TEST(NameBox, RefusesTheNineSignsThatAFileNameRefuses) {
    Bench bench;
    for (const char sign : std::string("<|>/\\:*?\""))
        EXPECT_FALSE(characterTyped(bench.program(), bench.form().txtName, sign)) << sign;
}

TEST(NameBox, TakesEveryOtherCharacter) {
    Bench bench;
    const std::string refused = "<|>/\\:*?\"";
    int taken = 0;
    for (int code = 32; code < 256; ++code) {
        const char character = static_cast<char>(code);
        if (refused.find(character) != std::string::npos) continue;
        taken += characterTyped(bench.program(), bench.form().txtName, character);
    }
    EXPECT_EQ(taken, 224 - 9);
}

TEST(NameBox, StaysAsItIsWhenARefusedSignIsTyped) {
    Bench bench;
    bench.start();
    bench.click("Brainstorm");
    bench.play({{"do", "type"}, {"control", "txtName"}, {"text", "Da/na \"D\""}});
    EXPECT_EQ(bench.box("txtName").text(), "Dana D");
}

TEST(NameBox, DoesNotLookAtPastedText) {
    Bench bench;
    bench.start();
    bench.click("Brainstorm");
    bench.set("txtName", "Dana/Lee");
    EXPECT_EQ(bench.box("txtName").text(), "Dana/Lee");
}

TEST(NameBox, DoesNothingOnEnter) {
    Bench bench;
    bench.start();
    bench.click("Brainstorm");
    bench.events();
    bench.play({{"do", "enter"}, {"control", "txtName"}});
    EXPECT_EQ(bench.events(), Json::array());
}

TEST(AnswerBox, TakesTheSignsThatANameRefuses) {
    Bench bench;
    for (const char sign : std::string("<|>/\\:*?\""))
        EXPECT_TRUE(characterTyped(bench.program(), bench.form().txtStrength, sign)) << sign;
}

TEST(AnswerBox, PassesEnterOnBehindTheAddition) {
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    bench.set("txtStrength", "Own fleet");
    EXPECT_TRUE(characterTyped(bench.program(), bench.form().txtStrength, enterKey));
    EXPECT_EQ(bench.texts("lvBStrength"), Texts{"Own fleet"});
}

TEST(AnswerBox, AddsNothingOnAnyOtherKey) {
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    bench.play({{"do", "type"}, {"control", "txtStrength"}, {"text", "Own fleet"}});
    EXPECT_EQ(bench.texts("lvBStrength"), Texts{});
}

TEST(UncaughtError, EndsItsEventAndTheProgramGoesOn) {
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    bench.form().keyCountS = std::numeric_limits<std::int32_t>::max();
    bench.set("txtStrength", "Own fleet");
    bench.events();
    bench.play({{"do", "enter"}, {"control", "txtStrength"}});
    EXPECT_EQ(bench.events(), Json::array({unhandled(6, "Overflow")}));
    bench.click("BNext");
    EXPECT_EQ(bench.form().questionStep, 2);
}

TEST(UncaughtError, OfARemovalBeyondTheLargestPositionLeavesTheRow) {
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    while (bench.list("lvBStrength").count() <= 32767) bench.list("lvBStrength").add({});
    bench.select("lvBStrength", 32768);
    bench.events();
    bench.click("BSRemove");
    EXPECT_EQ(bench.events("unhandledError"), Json::array({unhandled(6, "Overflow")}));
    EXPECT_EQ(bench.list("lvBStrength").count(), 32768);
}

TEST(SoundSwitch, TurnsOffAndStopsTheSoundAtOnce) {
    Bench bench;
    bench.start();
    bench.play({{"do", "mute"}, {"on", true}});
    EXPECT_TRUE(bench.form().chkMute.isOn());
    EXPECT_EQ(bench.events(), Json::array({stopped()}));
}

TEST(SoundSwitch, TurnsOnWithoutASound) {
    Bench bench;
    bench.start();
    bench.play({{"do", "mute"}, {"on", true}});
    bench.events();
    bench.play({{"do", "mute"}, {"on", false}});
    EXPECT_FALSE(bench.form().chkMute.isOn());
    EXPECT_EQ(bench.events(), Json::array());
}

std::string statementOf(const DropPreview& preview) {
    return preview.statement ? preview.statement->text : std::string();
}

/// A drag from one list over another, and what lights up there.
struct Hovering {
    std::string name, from, over;
    int row;
    DropTarget target = DropTarget::Nothing;
    std::string statement{};  // that the drop would act on
    std::vector<std::string> lines{};
};
std::ostream& operator<<(std::ostream& out, const Hovering& hovering) {
    return out << hovering.name;
}

const std::vector<Hovering> hoverings{
    {"RankedRow",
     "lvAOpportunity",
     "lvAOpportunity",
     2,
     DropTarget::Row,
     "Ann O1",
     {"below: Ann O2"}},
    {"RankedRowOfAnswers", "lvBThreat", "lvBThreat", 1, DropTarget::Row, "rival", {"below: rival"}},
    {"BesideRankedRows", "lvAOpportunity", "lvAOpportunity", 0},
    {"RankedListOfAnother", "lvAThreat", "lvAOpportunity", 1},
    {"UnrankedStrengths", "lvAStrength", "lvAStrength", 1},
    {"UnrankedAnswers", "lvBWeakness", "lvBWeakness", 1},
    {"Opportunity",
     "lvStrengthOp",
     "lvOpportunity",
     3,
     DropTarget::Row,
     "Ann S1",
     {"map: Ann S1", "onto: Ann O2"}},
    {"OpportunityThatHasIt", "lvStrengthOp", "lvOpportunity", 1, DropTarget::Unseen, "Ann S1"},
    {"MappedRow", "lvStrengthOp", "lvOpportunity", 2},
    {"BesideOpportunities", "lvStrengthOp", "lvOpportunity", 0},
};

class DropUnderAMovingDrag : public testing::TestWithParam<Hovering> {
protected:
    DropUnderAMovingDrag() {
        bench.next(5);
        bench.map("lvStrengthOp", 1, "lvOpportunity", 1);
        bench.list("lvBThreat").add({.key = "T1", .text = "rival"});
        bench.list("lvBWeakness").add({.key = "W1", .text = "slow"});
        bench.list(GetParam().from).select(1);
        draggedOver(bench.program(), bench.list(GetParam().from));
    }
    AnalysisBench bench;
};
INSTANTIATE_TEST_SUITE_P(Over, DropUnderAMovingDrag, testing::ValuesIn(hoverings),
                         NameOfParameter());

TEST_P(DropUnderAMovingDrag, LightsUpJustWhatWouldTakeIt) {
    const Hovering& hovering = GetParam();
    const DropPreview preview = previewOfDrop(bench.program(), bench.list(hovering.from),
                                              bench.list(hovering.over), hovering.row);
    EXPECT_EQ(preview.target, hovering.target);
    EXPECT_EQ(statementOf(preview), hovering.statement);
    EXPECT_EQ(preview.lines, hovering.lines);
}

TEST(MappedRowUnderAMovingDrag, LightsUpThePickingListThatTakesAMappedRowBack) {
    AnalysisBench bench;
    bench.next(5);
    bench.map("lvStrengthOp", 1, "lvOpportunity", 1);
    bench.select("lvOpportunity", 2);
    const StatementList& from = bench.list("lvOpportunity");
    EXPECT_EQ(previewOfDrop(bench.program(), from, bench.list("lvStrengthOp"), 0),
              (DropPreview{DropTarget::WholeList, from.selectedRow(), {"take back: Ann S1"}}));
    EXPECT_EQ(previewOfDrop(bench.program(), from, bench.list("lvWeaknessOp"), 0), DropPreview());
}

TEST(MappedRowUnderAMovingDrag, LightsNoOpportunityUpWhereItWouldMapNothing) {
    AnalysisBench bench;
    bench.next(5);
    bench.map("lvStrengthOp", 1, "lvOpportunity", 1);
    const StatementList& opportunities = bench.list("lvOpportunity");
    EXPECT_EQ(previewOfDrop(bench.program(), opportunities, opportunities, 3),
              DropPreview{DropTarget::Unseen});
}

}  // namespace
}  // namespace orvanta::test
