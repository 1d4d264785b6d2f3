#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

const std::string brainstormCopy = "app/brainstorm.tmp", analyzeCopy = "app/analyze.tmp";

/// A brainstorm copy that names a step.
std::string copyOf(const std::string& step, const std::string& moduleWord, const Texts& strengths,
                   const Texts& threats = {}) {
    return lines({"<STEP>", step, "</STEP>"}) +
           brainstormFile("Dana Reyes", moduleWord, strengths, {}, {}, threats);
}

/// A program that starts with these copies of an earlier run.
class Recovery : public testing::Test {
protected:
    void startWith(const std::string& path, const std::string& bytes) {
        bench.disk.files[path] = bytes;
        bench.play({{"do", "start"}});
    }

    Bench bench;
    FrmMain& form = bench.form();
};

TEST_F(Recovery, BringsABrainstormSessionBackOnScreen) {
    startWith(brainstormCopy, copyOf("TH", "MP", {"Own fleet"}, {"New rival"}));
    EXPECT_TRUE(form.txtThreat.isReachable());
    EXPECT_EQ(form.txtName.text(), "Dana Reyes");
    EXPECT_TRUE(form.optMP.isOn());
    EXPECT_EQ(bench.rows("lvBStrength"), (ShownRows{{"S1", "Own fleet"}}));
    EXPECT_EQ(bench.rows("lvBThreat"), (ShownRows{{"T1", "New rival"}}));
}

TEST_F(Recovery, BeginsAtTheFirstQuestionOfEachList) {
    startWith(brainstormCopy, copyOf("WE", "MP", {"Own fleet"}));
    EXPECT_EQ(form.questionStep, 1);
    EXPECT_FALSE(form.onLastQuestion);
    EXPECT_EQ(form.lblSQuestion.caption(), " S question 1");
    EXPECT_EQ(form.lblWQuestion.caption(), " W question 1");
    EXPECT_EQ(form.lblOQuestion.caption(), " O question 1");
    EXPECT_EQ(form.lblTQuestion.caption(), " T question 1");
}

TEST_F(Recovery, LoadsTheBankOfTheModule) {
    bench.disk.files["app/psdquestions.txt"] = bankOf(7);
    startWith(brainstormCopy, copyOf("ST", "PSD", {"Own fleet"}));
    EXPECT_EQ(bench.program().questions.strengthCount, 7);
}

TEST_F(Recovery, MarksTheSessionAsChangedAndBringsUndoAndRedo) {
    startWith(brainstormCopy, copyOf("ST", "MP", {"Own fleet"}));
    EXPECT_TRUE(form.editFlag);
    EXPECT_FALSE(form.editAFlag);
    EXPECT_TRUE(form.cmdUndo.isReachable());
    EXPECT_TRUE(form.cmdRedo.isReachable());
    EXPECT_TRUE(form.picBBack.isReachable());
}

TEST_F(Recovery, GoesOnWithTheKeysOfTheRows) {
    startWith(brainstormCopy, copyOf("ST", "MP", {"one", "two"}));
    bench.enter("txtStrength", {"three"});
    EXPECT_EQ(bench.rows("lvBStrength").back(), (ShownRow{"S3", "three"}));
}

TEST_F(Recovery, SaysNothingAndSpeaksNothing) {
    bench.disk.files[clipPath("mp_S1")] = "clip";
    startWith(brainstormCopy, copyOf("ST", "MP", {"Own fleet"}));
    EXPECT_EQ(bench.events(), Json::array({{{"event", "dialog"}, {"form", "frmSplash"}}}));
}

TEST_F(Recovery, OfASessionLeftOnTheChoiceScreenReturnsThere) {
    startWith(brainstormCopy, copyOf("", "MP", {"Own fleet"}));
    EXPECT_TRUE(form.txtName.isReachable());
}

TEST_F(Recovery, LooksAtNoAnalyzeCopyBesideABrainstormCopy) {
    bench.disk.files[analyzeCopy] = lines({"<STRENGTH>", "S1<!-SWOT-!><!-SWOT-!>x", "</STRENGTH>"});
    startWith(brainstormCopy, copyOf("ST", "MP", {"Own fleet"}));
    EXPECT_FALSE(form.fraAnalyze.isVisible());
    EXPECT_EQ(form.lvAStrength.count(), 0);
    EXPECT_TRUE(bench.disk.files.contains(analyzeCopy));
}

TEST_F(Recovery, LooksAtNoAnalyzeCopyBesideABrainstormCopyWithoutRows) {
    bench.disk.files[analyzeCopy] = lines({"<STRENGTH>", "S1<!-SWOT-!><!-SWOT-!>x", "</STRENGTH>"});
    startWith(brainstormCopy, copyOf("ST", "MP", {}));
    EXPECT_FALSE(form.fraAnalyze.isVisible());
    EXPECT_FALSE(form.fraBrainstorm.isVisible());
    EXPECT_EQ(form.lvAStrength.count(), 0);
}

TEST_F(Recovery, OfACopyWithoutRowsShowsNothingAndKeepsTheCopy) {
    startWith(brainstormCopy, copyOf("ST", "MP", {}));
    EXPECT_FALSE(form.fraBrainstorm.isVisible());
    EXPECT_FALSE(form.cmdUndo.isVisible());
    EXPECT_FALSE(form.editFlag);
    EXPECT_TRUE(bench.disk.files.contains(brainstormCopy));
}

TEST_F(Recovery, ShowsNothingWhenTheBankIsGoneAndKeepsTheRowsOutOfSight) {
    bench.disk.files.erase("app/mpquestions.txt");
    startWith(brainstormCopy, copyOf("ST", "MP", {"Own fleet"}));
    EXPECT_FALSE(form.fraBrainstorm.isVisible());
    EXPECT_FALSE(form.editFlag);
    EXPECT_FALSE(form.cmdUndo.isVisible());
    EXPECT_EQ(bench.texts("lvBStrength"), Texts{"Own fleet"});
}

TEST_F(Recovery, ShowsNothingWhenAListOfTheBankIsEmpty) {
    bench.disk.files["app/mpquestions.txt"] = lines({"<STRENGTH>", "<QUESTION>", "What?"});
    startWith(brainstormCopy, copyOf("ST", "MP", {"Own fleet"}));
    EXPECT_FALSE(form.fraBrainstorm.isVisible());
    EXPECT_FALSE(form.editFlag);
}

TEST_F(Recovery, PassesOverABankThatCannotBeRead) {
    bench.disk.unreadable.insert({"app/mpquestions.txt", ErrorNumber::PermissionDenied});
    startWith(brainstormCopy, copyOf("ST", "MP", {"Own fleet"}));
    EXPECT_TRUE(form.fraBrainstorm.isVisible());
    EXPECT_TRUE(form.editFlag);
    EXPECT_EQ(bench.messages(), Texts{});
}

TEST_F(Recovery, WithoutAModuleComesBackWithoutQuestions) {
    startWith(brainstormCopy, copyOf("ST", "", {"Own fleet"}));
    EXPECT_TRUE(form.txtStrength.isReachable());
    EXPECT_EQ(form.lblSQuestion.caption(), "");
    EXPECT_EQ(form.questionStep, 1);
    EXPECT_TRUE(form.editFlag);
}

TEST_F(Recovery, OfACopyThatCannotBeReadShowsNothing) {
    bench.disk.unreadable.insert({brainstormCopy, ErrorNumber::PermissionDenied});
    startWith(brainstormCopy, copyOf("ST", "MP", {"Own fleet"}));
    EXPECT_FALSE(form.fraBrainstorm.isVisible());
    EXPECT_EQ(bench.messages(), Texts{});
}

TEST_F(Recovery, KeepsTheRowsOfASessionWhoseLaterHalfIsLost) {
    const std::string whole = copyOf("ST", "MP", {"Own fleet", "Loyal customers"}, {"New rival"});
    startWith(brainstormCopy, whole.substr(0, whole.find("Loyal") + 5));
    EXPECT_EQ(bench.texts("lvBStrength"), (Texts{"Own fleet", "Loyal"}));
    EXPECT_TRUE(form.txtStrength.isReachable());
}

TEST_F(Recovery, IsOverOnceThePromptWasAnswered) {
    startWith(brainstormCopy, copyOf("ST", "MP", {"Own fleet"}));
    bench.answerMessage("no");
    bench.click("BQuit");
    bench.restart();
    EXPECT_FALSE(bench.form().fraBrainstorm.isVisible());
    EXPECT_EQ(bench.texts("lvBStrength"), Texts{});
}

/// An analyze copy with one row in a single section.
struct OneRow {
    std::string name, section, row;
    bool shown;
};
std::ostream& operator<<(std::ostream& out, const OneRow& row) { return out << row.name; }

class AnalyzeRecovery : public testing::TestWithParam<OneRow> {
protected:
    AnalyzeRecovery() {
        const std::string& section = GetParam().section;
        bench.disk.files[analyzeCopy] =
            lines({"<STEP>", "OP", "</STEP>", "<" + section + ">",
                   GetParam().row + "<!-SWOT-!>[Ann]: <!-SWOT-!>statement", "</" + section + ">"});
        bench.start();
    }
    Bench bench;
    FrmMain& form = bench.form();
};
// The opportunities and threats that count are those of the mapping lists.
INSTANTIATE_TEST_SUITE_P(Of, AnalyzeRecovery,
                         testing::Values(OneRow{"Strength", "STRENGTH", "S1", true},
                                         OneRow{"Weakness", "WEAKNESS", "W1", true},
                                         OneRow{"Opportunity", "OPPORTUNITY", "O1", false},
                                         OneRow{"Threat", "THREATS", "T1", false},
                                         OneRow{"MappedOpportunity", "OPPORTUNITYMAPPING", "O1",
                                                true},
                                         OneRow{"MappedThreat", "THREATMAPPING", "T1", true}),
                         NameOfParameter());

TEST_P(AnalyzeRecovery, ShowsTheModuleForRowsThatCount) {
    EXPECT_EQ(form.fraAnalyze.isVisible(), GetParam().shown);
    EXPECT_EQ(form.fraAOpportunity.isReachable(), GetParam().shown);
}

TEST_P(AnalyzeRecovery, MarksTheAnalyzeSessionAlone) {
    EXPECT_EQ(form.editAFlag, GetParam().shown);
    EXPECT_FALSE(form.editFlag);
}

TEST_P(AnalyzeRecovery, BringsUndoAndRedoAlongWithTheModule) {
    EXPECT_EQ(form.cmdUndo.isVisible(), GetParam().shown);
    EXPECT_EQ(form.cmdRedo.isVisible(), GetParam().shown);
}

TEST_P(AnalyzeRecovery, KeepsTheCopy) { EXPECT_TRUE(bench.disk.files.contains(analyzeCopy)); }

TEST_F(Recovery, GivesRankedRowsBackInTheirOrder) {
    AnalysisBench ranked;
    const ReviewedKind opportunities = parentKinds()[0];
    ranked.goTo(opportunities);
    ranked.drag(opportunities.list, 1, opportunities.list, 3);
    const ShownRows order{{"O2", "Ann O2"}, {"O3", "Bo O1"}, {"O1", "Ann O1"}};
    ASSERT_EQ(ranked.rows(opportunities.list), order);
    ranked.form().editAFlag = true;  // ranking alone is no change to save
    ranked.play({{"do", "tick"}});
    ranked.restart();
    EXPECT_EQ(ranked.rows(opportunities.list), order);
    EXPECT_TRUE(ranked.isShown(opportunities.panel));
}

TEST_F(Recovery, OfABrokenAnalyzeCopyKeepsTheRowsAheadOfTheBreak) {
    startWith(analyzeCopy,
              lines({"<STRENGTH>", "S1<!-SWOT-!><!-SWOT-!>one", "S1<!-SWOT-!><!-SWOT-!>twice",
                     "S3<!-SWOT-!><!-SWOT-!>three", "</STRENGTH>"}));
    EXPECT_EQ(bench.texts("lvAStrength"), Texts{"one"});
    EXPECT_TRUE(form.fraAnalyze.isVisible());
    EXPECT_EQ(bench.messages(), Texts{});
}

}  // namespace
}  // namespace orvanta::test
