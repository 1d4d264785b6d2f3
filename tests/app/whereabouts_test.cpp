#include "app/whereabouts.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

std::string placeIn(Bench& bench) { return placeInWords(whereaboutsOf(bench.program())); }

using Counts = std::vector<int>;

Counts countsIn(Bench& bench) {
    const PerKind<int> counts = whereaboutsOf(bench.program()).counts;
    return {counts.begin(), counts.end()};
}

TEST(Whereabouts, AreUntoldWhileNoModuleIsOpen) {
    Bench bench;
    bench.start();
    EXPECT_EQ(whereaboutsOf(bench.program()), Whereabouts());
}

TEST(Whereabouts, NumberTheStepsAndQuestionsOfBrainstorming) {
    Bench bench;
    bench.start();
    bench.click("Brainstorm");
    EXPECT_EQ(placeIn(bench), "Step 1 of 5: Name and module");
    bench.openBrainstorm();
    EXPECT_EQ(placeIn(bench), "Step 2 of 5: Strengths, question 1 of 3");
    bench.click("BNext");
    bench.click("BNext");
    EXPECT_EQ(placeIn(bench), "Step 2 of 5: Strengths, question 3 of 3");
    bench.click("BNext");
    EXPECT_EQ(placeIn(bench), "Step 3 of 5: Weaknesses, question 1 of 3");
    bench.click("BBack");
    EXPECT_EQ(placeIn(bench), "Step 2 of 5: Strengths, question 3 of 3");
    for (int press = 0; press < 4; ++press) bench.click("BNext");
    EXPECT_EQ(placeIn(bench), "Step 4 of 5: Opportunities, question 1 of 3");
    for (int press = 0; press < 5; ++press) bench.click("BNext");
    EXPECT_EQ(placeIn(bench), "Step 5 of 5: Threats, question 3 of 3");
}

TEST(Whereabouts, LeaveTheQuestionOutWhereTheBankIsNotThere) {
    Bench bench;
    bench.start();
    bench.openBrainstorm();
    bench.program().questions.strengthCount = 0;
    EXPECT_EQ(placeIn(bench), "Step 2 of 5: Strengths");
}

TEST(Whereabouts, NumberTheStepsOfAnAnalysis) {
    AnalysisBench bench;
    Texts places;
    for (int step = 0; step < 7; ++step) {
        places.push_back(placeIn(bench));
        if (step < 6) bench.next(1);
    }
    EXPECT_EQ(places, (Texts{"Step 1 of 7: Source files", "Step 2 of 7: Strengths",
                             "Step 3 of 7: Weaknesses", "Step 4 of 7: Opportunities",
                             "Step 5 of 7: Threats", "Step 6 of 7: Mapping onto opportunities",
                             "Step 7 of 7: Mapping onto threats"}));
}

TEST(Whereabouts, TellTheKindThatEachStepOfAnAnalysisIsAbout) {
    AnalysisBench bench;
    std::vector<std::optional<StatementKind>> kinds;
    for (int step = 0; step < 7; ++step) {
        kinds.push_back(whereaboutsOf(bench.program()).kind);
        if (step < 6) bench.next(1);
    }
    using enum StatementKind;
    EXPECT_EQ(kinds,
              (std::vector<std::optional<StatementKind>>{
                  std::nullopt, Strength, Weakness, Opportunity, Threat, Opportunity, Threat}));
}

TEST(Whereabouts, CountTheStatementsOfTheModuleInSight) {
    AnalysisBench bench;
    bench.next(1);
    EXPECT_EQ(countsIn(bench), (Counts{3, 3, 3, 3}));
    bench.enter("txtAStrength", {"Another"});
    EXPECT_EQ(countsIn(bench), (Counts{4, 3, 3, 3}));
    bench.answerMessage("no");
    bench.openBrainstorm();
    bench.enter("txtStrength", {"A", "B"});
    EXPECT_EQ(countsIn(bench), (Counts{2, 0, 0, 0}));
}

TEST(Whereabouts, TellTheirCountsInWords) {
    const Whereabouts whereabouts{.step = 3,
                                  .stepCount = 5,
                                  .stepName = "Weaknesses",
                                  .counts = {{{StatementKind::Strength, 2},
                                              {StatementKind::Weakness, 0},
                                              {StatementKind::Opportunity, 11},
                                              {StatementKind::Threat, 1}}}};
    EXPECT_EQ(countsInWords(whereabouts), "Strengths 2, Weaknesses 0, Opportunities 11, Threats 1");
    EXPECT_EQ(inWords(whereabouts),
              "Step 3 of 5: Weaknesses. Strengths 2, Weaknesses 0, Opportunities 11, Threats 1.");
}

}  // namespace
}  // namespace orvanta::test
