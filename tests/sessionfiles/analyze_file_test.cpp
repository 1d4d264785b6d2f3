#include "sessionfiles/analyze_file.h"

#include <gtest/gtest.h>

#include "bench.h"
#include "core/row_marks.h"
#include "failure_of.h"
#include "full_analysis.h"

namespace orvanta::test {
namespace {

class AnalyzeFile : public ::testing::Test {
protected:
    AnalyzeFile() { bench.start(); }

    void read(const Texts& file, bool restoreStep = false) {
        bench.disk.files["docs/x.aze"] = lines(file);
        loadAnalyzeData(bench.program(), "docs/x.aze", restoreStep);
    }

    Bench bench;
};

TEST_F(AnalyzeFile, ComesBackByteForByteWhenItIsReadAndWritten) {
    read(fullAnalysis);
    EXPECT_EQ(analyzeBytes(bench.form(), false), lines(fullAnalysis));
}

TEST_F(AnalyzeFile, TellsTheStepInItsTemporaryFormAlone) {
    read(fullAnalysis);
    bench.form().fraAnalyzeOpportunity.show();
    EXPECT_EQ(analyzeBytes(bench.form(), true),
              lines({"<STEP>", "AO", "</STEP>"}) + lines(fullAnalysis));
}

TEST_F(AnalyzeFile, FillsThePickingListsInStep) {
    read(fullAnalysis);
    for (const char* list : {"lvAStrength", "lvStrengthOp", "lvStrengthTh"})
        EXPECT_EQ(bench.rows(list), (ShownRows{{"S2", "Loyal customers"}, {"S1", "Strong brand"}}));
    for (const char* list : {"lvAWeakness", "lvWeaknessOp", "lvWeaknessTh"})
        EXPECT_EQ(bench.rows(list), (ShownRows{{"W1", "Slow delivery"}}));
}

TEST_F(AnalyzeFile, MarksItsMappedRows) {
    read(fullAnalysis);
    const StatementList& list = bench.list("lvOpportunity");
    EXPECT_EQ(list.row(1).image, 3);
    EXPECT_EQ(list.row(1).indent, 0);
    EXPECT_FALSE(list.row(1).colour.has_value());
    EXPECT_EQ(list.row(2).image, 1);
    EXPECT_EQ(list.row(2).indent, 2);
    EXPECT_EQ(list.row(2).colour, mappedStrengthColour);
    EXPECT_EQ(list.row(3).image, 2);
    EXPECT_EQ(list.row(3).colour, mappedWeaknessColour);
}

TEST_F(AnalyzeFile, DropsARowWhoseTextHoldsTheDelimiter) {
    read({"<STRENGTH>", rowLine("S1", "", "a<!-SWOT-!>b"), rowLine("S2", "", "kept"),
          "S3<!-SWOT-!>few", "</STRENGTH>"});
    EXPECT_EQ(bench.rows("lvAStrength"), (ShownRows{{"S2", "kept"}}));
}

TEST_F(AnalyzeFile, NumbersTopRowsWithoutAKeyByTheirPlaceAmongTopRows) {
    read({"<OPPORTUNITYMAPPING>", rowLine("", "", "first"), rowLine("X-S1", "", "mapped"),
          rowLine("  ", "", "second"), "</OPPORTUNITYMAPPING>", "<THREATMAPPING>",
          rowLine("", "", "one"), "</THREATMAPPING>"});
    EXPECT_EQ(bench.rows("lvOpportunity"),
              (ShownRows{{"O1", "first"}, {"X-S1", "mapped"}, {"O2", "second"}}));
    EXPECT_EQ(bench.rows("lvThreat"), (ShownRows{{"T1", "one"}}));
}

TEST_F(AnalyzeFile, TakesAKeyOfThreePartsForATopRow) {
    read({"<OPPORTUNITYMAPPING>", rowLine("O1-S1-S2", "", "odd"), "</OPPORTUNITYMAPPING>"});
    EXPECT_EQ(bench.list("lvOpportunity").row(1).image, 3);
}

TEST_F(AnalyzeFile, RaisesTheKeyCounterToTheHighestKeyAndNeverLowersIt) {
    read({"<STRENGTH>", rowLine("S1", "", "a"), rowLine("S9", "", "b"), rowLine("S3", "", "c"),
          "</STRENGTH>"});
    EXPECT_EQ(getNextKey(bench.program(), "S"), "S10");
    bench.form().keyCountW = 20;
    read({"<WEAKNESS>", rowLine("W7", "", "a"), "</WEAKNESS>"});
    EXPECT_EQ(bench.form().keyCountW, 20);
}

TEST_F(AnalyzeFile, LeavesTheCounterAloneForAKeyWithoutANumber) {
    read({"<STRENGTH>", rowLine("Sx", "", "a"), rowLine("", "", "b"), rowLine("S", "", "c"),
          rowLine("S-4", "", "d"), rowLine("S1e-400", "", "e"), "</STRENGTH>"});
    EXPECT_EQ(bench.form().keyCountS, 0);
    EXPECT_EQ(bench.list("lvAStrength").count(), 5);
}

TEST_F(AnalyzeFile, RoundsAFractionAndTakesLeadingDigitsAlone) {
    read({"<STRENGTH>", rowLine("S2.6", "", "a"), "</STRENGTH>", "<WEAKNESS>",
          rowLine("W12abc", "", "b"), "</WEAKNESS>"});
    EXPECT_EQ(bench.form().keyCountS, 3);
    EXPECT_EQ(bench.form().keyCountW, 12);
}

TEST_F(AnalyzeFile, CountsANumberWithASign) {
    read({"<STRENGTH>", rowLine("S+7", "", "a"), rowLine("S+", "", "b"), rowLine("S++9", "", "c"),
          rowLine("S-12", "", "d"), "</STRENGTH>"});
    EXPECT_EQ(bench.form().keyCountS, 7);
}

TEST_F(AnalyzeFile, CountsUpToTheLastNumberOfTheCounter) {
    read({"<STRENGTH>", rowLine("S2147483647", "", "a"), "</STRENGTH>"});
    EXPECT_EQ(bench.form().keyCountS, 2'147'483'647);
}

TEST_F(AnalyzeFile, WithAKeyBeyondTheCounterFails) {
    for (const char* key : {"S2147483648", "S1e10", "S1e400", "S+1e400"})
        EXPECT_EQ(failureOf([&] {
                      read({"<STRENGTH>", rowLine(key, "", "a"), "</STRENGTH>"});
                  }),
                  6)
            << key;
    EXPECT_EQ(bench.form().keyCountS, 0);
}

TEST_F(AnalyzeFile, LeavesTheCounterAloneForANumberFarBelowZeroOrNextToIt) {
    read({"<STRENGTH>", rowLine("S-1e400", "", "a"), rowLine("S1e-400", "", "b"),
          rowLine("S-1e-400", "", "c"), "</STRENGTH>"});
    EXPECT_EQ(bench.form().keyCountS, 0);
    EXPECT_EQ(bench.texts("lvAStrength"), (Texts{"a", "b", "c"}));
}

TEST_F(AnalyzeFile, WithAKeyTwiceInAListFailsAndKeepsTheRowsReadSoFar) {
    EXPECT_THROW(
        read({"<STRENGTH>", rowLine("S1", "", "a"), rowLine("S1", "", "b"), "</STRENGTH>"}),
        Failure);
    EXPECT_EQ(bench.texts("lvAStrength"), Texts{"a"});
}

TEST_F(AnalyzeFile, ShowsItsStepOnlyWhereThatIsWanted) {
    const Texts file{"<STEP>", "AT", "</STEP>"};
    read(file);
    EXPECT_FALSE(bench.form().analyzeSteps.hasVisible());
    read(file, true);
    EXPECT_TRUE(bench.form().fraAnalyzeThreat.isVisible());
}

TEST_F(AnalyzeFile, WithoutAStepLeavesEveryPanelAsItIsWhereItsStepIsWanted) {
    bench.openAnalyze();
    bench.form().fraAThreats.show();
    const Json before = bench.answerTo({{"do", "state"}})["state"]["panels"];
    read(fullAnalysis, true);
    EXPECT_EQ(bench.answerTo({{"do", "state"}})["state"]["panels"], before);
    EXPECT_EQ(bench.list("lvAStrength").count(), 2);
}

TEST_F(AnalyzeFile, HoldsTheLabelOfNobodyAsTwoDelimitersInARow) {
    const Row row{.key = "S1", .text = "Typed", .image = 1, .largeImage = 1};
    bench.list("lvAStrength").add(row);
    EXPECT_NE(analyzeBytes(bench.form(), false)
                  .find("<STRENGTH>\r\nS1<!-SWOT-!><!-SWOT-!>Typed\r\n</STRENGTH>"),
              std::string::npos);
}

TEST_F(AnalyzeFile, TrimsTextsAndKeepsKeysAndLabelsAsTheyStand) {
    read({"<OPPORTUNITY>", rowLine(" O1", " [x]: ", "  text  "), "</OPPORTUNITY>"});
    EXPECT_EQ(bench.rows("lvAOpportunity"), (ShownRows{{" O1", "text"}}));
    EXPECT_EQ(bench.list("lvAOpportunity").row(1).subItem, " [x]: ");
}

TEST_F(AnalyzeFile, EscapesNothing) {
    read({"<STRENGTH>", rowLine("S1", "", "a < b &lt; c"), "</STRENGTH>"});
    EXPECT_EQ(bench.texts("lvAStrength"), Texts{"a < b &lt; c"});
    EXPECT_NE(analyzeBytes(bench.form(), false).find("a < b &lt; c"), std::string::npos);
}

TEST_F(AnalyzeFile, ThatIsMissingIsReadAsNothing) {
    loadAnalyzeData(bench.program(), "docs/none.aze", true);
    EXPECT_EQ(bench.list("lvAStrength").count(), 0);
}

}  // namespace
}  // namespace orvanta::test
