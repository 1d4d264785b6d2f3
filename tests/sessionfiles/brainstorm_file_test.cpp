#include "sessionfiles/brainstorm_file.h"

#include <gtest/gtest.h>

#include "bench.h"

namespace orvanta::test {
namespace {

/// A bench on which a brainstorm file can be read into either module.
class BrainstormFile : public ::testing::Test {
protected:
    BrainstormFile() { bench.start(); }

    void read(const Texts& file, const std::string& target = "BS", bool restoreStep = false) {
        bench.disk.files["docs/x.bsm"] = lines(file);
        loadBrainstormData(bench.program(), "docs/x.bsm", target, restoreStep);
    }

    Bench bench;
};

TEST_F(BrainstormFile, HoldsNameModuleAndStatementsInOrder) {
    bench.openBrainstorm("optMP");
    bench.enter("txtStrength", {"Loyal customers", "Delivery in < 24 hours"});
    EXPECT_EQ(brainstormBytes(bench.form(), false),
              lines({"<NAME>", "Dana Reyes", "</NAME>", "<MODULE>", "MP", "</MODULE>", "<STRENGTH>",
                     "Loyal customers", "Delivery in &lt; 24 hours", "</STRENGTH>", "<WEAKNESS>",
                     "</WEAKNESS>", "<OPPORTUNITY>", "</OPPORTUNITY>", "<THREATS>", "</THREATS>"}));
}

TEST_F(BrainstormFile, TellsTheStepInItsTemporaryFormAlone) {
    bench.openBrainstorm("optMP");
    bench.form().fraStrength.hide();
    bench.form().fraWeakness.show();
    EXPECT_TRUE(brainstormBytes(bench.form(), true)
                    .starts_with(lines({"<STEP>", "WE", "</STEP>", "<NAME>", "Dana Reyes"})));
    EXPECT_EQ(brainstormBytes(bench.form(), false).find("<STEP>"), std::string::npos);
}

TEST_F(BrainstormFile, NamesTheLastOfSeveralVisibleStepsAndNoneByAnEmptyLine) {
    EXPECT_TRUE(brainstormBytes(bench.form(), true).starts_with(lines({"<STEP>", "", "</STEP>"})));
    bench.form().fraStrength.show();
    bench.form().fraOpportunity.show();
    EXPECT_TRUE(
        brainstormBytes(bench.form(), true).starts_with(lines({"<STEP>", "OP", "</STEP>"})));
}

TEST_F(BrainstormFile, KeepsTheNameUntrimmedAndTheStatementsTrimmed) {
    bench.openBrainstorm("optGBS", "  Dana  ");
    bench.enter("txtStrength", {"One"});
    bench.list("lvBStrength").setText(1, "  edited  ");
    const std::string bytes = brainstormBytes(bench.form(), false);
    EXPECT_NE(bytes.find("<NAME>\r\n  Dana  \r\n"), std::string::npos);
    EXPECT_NE(bytes.find("<STRENGTH>\r\nedited\r\n"), std::string::npos);
}

TEST_F(BrainstormFile, WithoutAStepLeavesEveryPanelAsItIs) {
    read({"<NAME>", "Lee", "</NAME>", "<STRENGTH>", "One", "</STRENGTH>"}, "BS", true);
    EXPECT_FALSE(bench.form().brainstormSteps.hasVisible());
}

TEST_F(BrainstormFile, ShowsItsStepOnlyWhereThatIsWanted) {
    const Texts file{"<STEP>", " TH ", "</STEP>"};
    read(file);
    EXPECT_FALSE(bench.form().fraThreats.isVisible());
    read(file, "BS", true);
    EXPECT_TRUE(bench.form().fraThreats.isVisible());
}

TEST_F(BrainstormFile, IgnoresAnUnknownStepOrModule) {
    bench.form().optPSD.setOn(true);
    read({"<STEP>", "st", "</STEP>", "<MODULE>", "gbs", "</MODULE>"}, "BS", true);
    EXPECT_FALSE(bench.form().brainstormSteps.hasVisible());
    EXPECT_TRUE(bench.form().optPSD.isOn());
}

TEST_F(BrainstormFile, WithoutANameLeavesTheNameAloneAndItsRowsUnlabelled) {
    bench.form().txtName.setText("Somebody");
    read({"<STRENGTH>", "One", "</STRENGTH>"}, "AZ");
    EXPECT_EQ(bench.form().txtName.text(), "Somebody");
    EXPECT_EQ(bench.list("lvAStrength").row(1).subItem, "");
}

TEST_F(BrainstormFile, WithoutAModuleLeavesTheSelectionAlone) {
    bench.form().optHRP.setOn(true);
    read({"<NAME>", "Lee", "</NAME>"});
    EXPECT_TRUE(bench.form().optHRP.isOn());
}

TEST_F(BrainstormFile, CountsAnEmptyLineInASectionAsAStatement) {
    read({"<STRENGTH>", "", "   ", "Two", "</STRENGTH>"});
    EXPECT_EQ(bench.rows("lvBStrength"), (ShownRows{{"S1", ""}, {"S2", ""}, {"S3", "Two"}}));
}

TEST_F(BrainstormFile, AddsNothingForASectionWithoutLines) {
    read({"<WEAKNESS>", "</WEAKNESS>"});
    EXPECT_EQ(bench.list("lvBWeakness").count(), 0);
    EXPECT_EQ(bench.form().keyCountW, 0);
}

TEST_F(BrainstormFile, KeepsTheLastOfSeveralNameLines) {
    read({"<NAME>", "Dana", " Lee ", "</NAME>", "<STRENGTH>", "One", "</STRENGTH>"}, "AZ");
    EXPECT_EQ(bench.form().txtName.text(), " Lee ");
    EXPECT_EQ(bench.list("lvAStrength").row(1).subItem, "[Lee]: ");
}

TEST_F(BrainstormFile, LabelsRowsOfAnEmptyNameWithEmptyBrackets) {
    bench.form().txtName.setText("Somebody");
    read({"<NAME>", "", "</NAME>", "<THREATS>", "One", "</THREATS>"}, "AZ");
    EXPECT_EQ(bench.form().txtName.text(), "");
    EXPECT_EQ(bench.list("lvAThreat").row(1).subItem, "[]: ");
}

TEST_F(BrainstormFile, LabelsOnlyTheRowsBehindTheName) {
    read({"<STRENGTH>", "One", "</STRENGTH>", "<NAME>", "Lee", "</NAME>", "<STRENGTH>", "Two",
          "</STRENGTH>"},
         "AZ");
    EXPECT_EQ(bench.list("lvAStrength").row(1).subItem, "");
    EXPECT_EQ(bench.list("lvAStrength").row(2).subItem, "[Lee]: ");
}

TEST_F(BrainstormFile, EndsASectionEarlyAtAStatementThatIsAClosingTag) {
    read(
        {"<WEAKNESS>", "One", "</NAME>", "lost", "</WEAKNESS>", "<THREATS>", "Kept", "</THREATS>"});
    EXPECT_EQ(bench.texts("lvBWeakness"), Texts{"One"});
    EXPECT_EQ(bench.texts("lvBThreat"), Texts{"Kept"});
}

TEST_F(BrainstormFile, LosesAStatementThatIsAnOpeningTag) {
    read({"<THREATS>", "One", "<STRENGTH>", "Two", "</THREATS>"});
    EXPECT_EQ(bench.texts("lvBThreat"), (Texts{"One", "Two"}));
    EXPECT_EQ(bench.list("lvBStrength").count(), 0);
}

TEST_F(BrainstormFile, KeepsAStrengthWhoseWholeTextIsATag) {
    bench.openBrainstorm();
    bench.enter("txtStrength", {"</STRENGTH>"});
    const std::string bytes = brainstormBytes(bench.form(), false);
    bench.disk.files["docs/x.bsm"] = bytes;
    bench.list("lvBStrength").clear();
    loadBrainstormData(bench.program(), "docs/x.bsm", "BS", false);
    EXPECT_EQ(bench.texts("lvBStrength"), Texts{"</STRENGTH>"});
}

TEST_F(BrainstormFile, UnescapesAllKindsButThreats) {
    read({"<STRENGTH>", "a &lt; b &lt; c", "</STRENGTH>", "<WEAKNESS>", "&lt;", "</WEAKNESS>",
          "<OPPORTUNITY>", "x&lt;y", "</OPPORTUNITY>", "<THREATS>", "&lt;", "</THREATS>"});
    EXPECT_EQ(bench.texts("lvBStrength"), Texts{"a < b < c"});
    EXPECT_EQ(bench.texts("lvBWeakness"), Texts{"<"});
    EXPECT_EQ(bench.texts("lvBOpportunity"), Texts{"x<y"});
    EXPECT_EQ(bench.texts("lvBThreat"), Texts{"&lt;"});
}

TEST_F(BrainstormFile, ReadsIndentedTagsAndAnyLineEnd) {
    bench.disk.files["docs/x.bsm"] = "  <STRENGTH> \nOne\rTwo\r\n </STRENGTH>\n<WEAKNESS>\nThree";
    loadBrainstormData(bench.program(), "docs/x.bsm", "BS", false);
    EXPECT_EQ(bench.texts("lvBStrength"), (Texts{"One", "Two"}));
    EXPECT_EQ(bench.texts("lvBWeakness"), Texts{"Three"});
}

TEST_F(BrainstormFile, ReadForAnAnalysisStillSetsNameAndModule) {
    read({"<NAME>", "Lee", "</NAME>", "<MODULE>", "SBD", "</MODULE>"}, "AZ");
    EXPECT_EQ(bench.form().txtName.text(), "Lee");
    EXPECT_TRUE(bench.form().optSBD.isOn());
}

TEST_F(BrainstormFile, ThatIsMissingIsReadAsNothing) {
    loadBrainstormData(bench.program(), "docs/none.bsm", "BS", true);
    EXPECT_EQ(bench.events(), Json::array());
}

TEST_F(BrainstormFile, ThatCannotBeReadFails) {
    bench.disk.files["docs/x.bsm"] = "<STRENGTH>";
    bench.disk.unreadable.insert({"docs/x.bsm", ErrorNumber::PermissionDenied});
    EXPECT_THROW(loadBrainstormData(bench.program(), "docs/x.bsm", "BS", true), Failure);
}

TEST_F(BrainstormFile, SurvivesTheRoundTripOfEveryByteButLineEnds) {
    bench.openBrainstorm();
    std::string all = "x";
    for (int byte = 1; byte < 256; ++byte)
        if (byte != '\r' && byte != '\n') all += static_cast<char>(byte);
    all += std::string(10'000, 'y');
    bench.list("lvBThreat").add({.key = "T1", .text = all, .image = 4, .largeImage = 4});
    saveBrainstormData(bench.program(), "docs/x.bsm", false);
    bench.list("lvBThreat").clear();
    loadBrainstormData(bench.program(), "docs/x.bsm", "BS", false);
    EXPECT_EQ(bench.texts("lvBThreat"), Texts{all});
}

}  // namespace
}  // namespace orvanta::test
