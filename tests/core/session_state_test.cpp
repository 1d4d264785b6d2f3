#include "core/session_state.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "analysis_bench.h"
#include "core/modules.h"
#include "failure_of.h"

namespace orvanta::test {
namespace {

std::vector<std::int32_t> keyCounts(const FrmMain& form) {
    return {form.keyCountS, form.keyCountW, form.keyCountO, form.keyCountT};
}
const std::vector<std::int32_t> noKeys{0, 0, 0, 0};

const Texts brainstormLists{"lvBStrength", "lvBWeakness", "lvBOpportunity", "lvBThreat"};
const Texts analyzeLists{"lvAStrength",  "lvAWeakness",  "lvAOpportunity", "lvAThreat",
                         "lvStrengthOp", "lvWeaknessOp", "lvOpportunity",  "lvStrengthTh",
                         "lvWeaknessTh", "lvThreat"};
const Texts brainstormBoxes{"txtName", "txtStrength", "txtWeakness", "txtOpportunity", "txtThreat"};

/// A session with something in every place that either clearing routine could touch.
class FullSession : public testing::Test {
protected:
    FullSession() {
        bench.start();
        for (const Texts& lists : {brainstormLists, analyzeLists})
            for (const std::string& list : lists) bench.list(list).add({.key = "K", .text = "row"});
        for (const std::string& box : brainstormBoxes) bench.box(box).setText("typed");
        form.optHRP.setOn(true);
        form.lstFiles.add("docs/dana.bsm");
        form.buttons[Button::BNext].label.setCaption("Save...");
        form.buttons[Button::ANext].label.setCaption("Save...");
        form.editFlag = form.editAFlag = true;
        form.cd.filter = "All Files (*.*)|*.*";
        form.undoRecords.fill("undo");
        form.redoRecords.fill("redo");
        form.keyCountS = form.keyCountW = form.keyCountO = form.keyCountT = 7;
        form.questionStep = 2;
        form.onLastQuestion = true;
        form.narratedStrength = form.narratedThreat = 3;
        form.fraBrainstorm.show();
        form.fraWeakness.show();
        bench.program().questions.strengthCount = 3;
    }

    Texts filled(const Texts& lists) {
        Texts result;
        std::ranges::copy_if(lists, std::back_inserter(result), [this](const std::string& name) {
            return bench.list(name).count() > 0;
        });
        return result;
    }
    Texts filledBoxes() {
        Texts result;
        std::ranges::copy_if(
            brainstormBoxes, std::back_inserter(result),
            [this](const std::string& name) { return !bench.box(name).text().empty(); });
        return result;
    }

    Bench bench;
    FrmMain& form = bench.form();
};

TEST(Keys, CountFromOneForEachKindByItself) {
    Bench bench;
    EXPECT_EQ(getNextKey(bench.program(), "S"), "S1");
    EXPECT_EQ(getNextKey(bench.program(), "S"), "S2");
    EXPECT_EQ(getNextKey(bench.program(), "W"), "W1");
    EXPECT_EQ(getNextKey(bench.program(), "O"), "O1");
    EXPECT_EQ(getNextKey(bench.program(), "T"), "T1");
    EXPECT_EQ(getNextKey(bench.program(), "S"), "S3");
}

TEST(Keys, HaveNoLeadingZeros) {
    Bench bench;
    bench.form().keyCountW = 11;
    EXPECT_EQ(getNextKey(bench.program(), "W"), "W12");
}

TEST(Keys, BeginAnewAfterAReset) {
    Bench bench;
    for (const char* section : {"S", "W", "O", "T"}) getNextKey(bench.program(), section);
    resetKeys(bench.program());
    EXPECT_EQ(keyCounts(bench.form()), noKeys);
    EXPECT_EQ(getNextKey(bench.program(), "S"), "S1");
    EXPECT_EQ(getNextKey(bench.program(), "S"), "S2");
    EXPECT_EQ(getNextKey(bench.program(), "W"), "W1");
}

class UnknownSection : public testing::TestWithParam<std::string> {};
INSTANTIATE_TEST_SUITE_P(Of, UnknownSection, testing::Values("", "X", "s", "SW", "S1", " S"));

TEST_P(UnknownSection, GetsNoKeyAndMovesNoCounter) {
    Bench bench;
    EXPECT_EQ(getNextKey(bench.program(), GetParam()), "");
    EXPECT_EQ(keyCounts(bench.form()), noKeys);
}

TEST(Keys, EndAtTheLargestNumberWithAnError) {
    Bench bench;
    const std::int32_t largest = std::numeric_limits<std::int32_t>::max();
    bench.form().keyCountO = largest - 1;
    EXPECT_EQ(getNextKey(bench.program(), "O"), "O2147483647");
    EXPECT_EQ(failureOf([&] { getNextKey(bench.program(), "O"); }), 6);
    EXPECT_EQ(bench.form().keyCountO, largest);
}

TEST(Keys, OfRemovedStatementsAreNotGivenAgain) {
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    bench.enter("txtStrength", {"one", "two", "three"});
    bench.select("lvBStrength", 2);
    bench.click("BSRemove");
    bench.enter("txtStrength", {"four"});
    EXPECT_EQ(bench.rows("lvBStrength"),
              (ShownRows{{"S1", "one"}, {"S3", "three"}, {"S4", "four"}}));
}

TEST(Keys, BeginAnewInASessionOfTheOtherModule) {
    AnalysisBench bench;
    bench.next(1);
    bench.openBrainstorm();
    bench.enter("txtStrength", {"one"});
    EXPECT_EQ(bench.rows("lvBStrength"), (ShownRows{{"S1", "one"}}));
}

TEST_F(FullSession, LosesItsBrainstormHalfWhenThatIsCleared) {
    clearBrainstorm(bench.program());
    EXPECT_EQ(filled(brainstormLists), Texts{});
    EXPECT_EQ(filledBoxes(), Texts{});
    EXPECT_EQ(chosenCode(form), "");
    EXPECT_EQ(form.buttons[Button::BNext].label.caption(), "Next>>");
    EXPECT_FALSE(form.editFlag);
}

TEST_F(FullSession, KeepsItsAnalyzeHalfWhenTheBrainstormHalfIsCleared) {
    clearBrainstorm(bench.program());
    EXPECT_EQ(filled(analyzeLists), analyzeLists);
    EXPECT_EQ(form.buttons[Button::ANext].label.caption(), "Save...");
    EXPECT_TRUE(form.editAFlag);
}

TEST_F(FullSession, LosesItsAnalyzeHalfWhenThatIsCleared) {
    clearAnalye(bench.program());
    EXPECT_EQ(filled(analyzeLists), Texts{});
    EXPECT_EQ(form.buttons[Button::ANext].label.caption(), "Next>>");
    EXPECT_FALSE(form.editAFlag);
}

TEST_F(FullSession, KeepsItsBrainstormHalfWhenTheAnalyzeHalfIsCleared) {
    clearAnalye(bench.program());
    EXPECT_EQ(filled(brainstormLists), brainstormLists);
    EXPECT_EQ(filledBoxes(), brainstormBoxes);
    EXPECT_EQ(chosenCode(form), "hrp");
    EXPECT_EQ(form.buttons[Button::BNext].label.caption(), "Save...");
    EXPECT_TRUE(form.editFlag);
}

/// One of the two clearing routines.
struct Clearing {
    std::string name;
    void (*clear)(Program&);
};
std::ostream& operator<<(std::ostream& out, const Clearing& clearing) {
    return out << clearing.name;
}

class ClearedSession : public FullSession, public testing::WithParamInterface<Clearing> {
protected:
    ClearedSession() { GetParam().clear(bench.program()); }
};
INSTANTIATE_TEST_SUITE_P(Of, ClearedSession,
                         testing::Values(Clearing{"Brainstorm", clearBrainstorm},
                                         Clearing{"Analyze", clearAnalye}),
                         NameOfParameter());

TEST_P(ClearedSession, BeginsItsKeysAnew) { EXPECT_EQ(keyCounts(form), noKeys); }

TEST_P(ClearedSession, HasAnEmptyJournal) {
    EXPECT_EQ(bench.undoRecords(), Texts{});
    EXPECT_EQ(bench.redoRecords(), Texts{});
}

TEST_P(ClearedSession, LooksForBrainstormFiles) {
    EXPECT_EQ(form.cd.filter, "All Brainstorming Files (*.bsm)|*.bsm");
}

TEST_P(ClearedSession, LeavesStepNarrationBankPanelsAndSourceFilesToItsCaller) {
    EXPECT_EQ(form.questionStep, 2);
    EXPECT_TRUE(form.onLastQuestion);
    EXPECT_EQ(form.narratedStrength, 3);
    EXPECT_EQ(form.narratedThreat, 3);
    EXPECT_EQ(bench.program().questions.strengthCount, 3);
    EXPECT_TRUE(form.fraBrainstorm.isVisible());
    EXPECT_TRUE(form.fraWeakness.isVisible());
    EXPECT_EQ(form.lstFiles.items(), Texts{"docs/dana.bsm"});
}

TEST_F(FullSession, LosesAllTwentyTwoRecordsWhenTheJournalIsCleared) {
    clearJournal(bench.program());
    EXPECT_EQ(form.undoRecords, JournalRecords{});
    EXPECT_EQ(form.redoRecords, JournalRecords{});
}

}  // namespace
}  // namespace orvanta::test
