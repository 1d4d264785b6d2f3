#include <gtest/gtest.h>

#include "analysis_bench.h"
#include "full_analysis.h"

namespace orvanta::test {
namespace {

/// An analyze file whose first two parents have a comma in their key, at the end or nothing else;
/// the third has no key, and none of the file's parent rows. A removed parent of such a key comes
/// back in the mapping list without one, as a comma parts the rows that its record names.
class KeylessParent : public testing::TestWithParam<ReviewedKind> {
protected:
    KeylessParent() {
        const std::string section = side.letter == "O" ? "OPPORTUNITY" : "THREATS";
        const std::string mapping = side.letter == "O" ? "OPPORTUNITYMAPPING" : "THREATMAPPING";
        bench.disk.files["docs/odd.aze"] =
            lines({"<" + section + ">", rowLine(",", "", "Comma"), rowLine("x,", "", "Letter"),
                   rowLine("", "", "Keyless"), "</" + section + ">", "<" + mapping + ">",
                   rowLine(",", "", "Comma"), rowLine("P1", "", "Other"),
                   rowLine("x,", "", "Letter"), "</" + mapping + ">"});
        bench.answerFile("docs/odd.aze");
        bench.click("OAFile");
        for (int i = 1; i < kind.presses; ++i) bench.click("ANext");
    }
    void remove(int row) {
        bench.select(kind.list, row);
        bench.click(kind.buttons + "Remove");
    }
    void edit(int row, const std::string& text) {
        bench.select(kind.list, row);
        bench.answerEdit(text);
        bench.click(kind.buttons + "Edit");
    }
    /// Makes the mapping list's rows of the first two parents keyless.
    void loseTheCommas() {
        for (const int row : {1, 2}) {
            remove(row);
            bench.clickControl("cmdUndo");
        }
        ASSERT_EQ(bench.rows(side.list),
                  (ShownRows{{"", "Comma"}, {"P1", "Other"}, {"", "Letter"}}));
        bench.form().undoRecords.fill({});
        bench.form().redoRecords.fill({});
        bench.events();
    }

    const ReviewedKind& kind = GetParam();
    const MappingSide& side = mappingSides()[kind.letter == "O" ? 0 : 1];
    AnalysisBench bench;
};
INSTANTIATE_TEST_SUITE_P(Of, KeylessParent, testing::ValuesIn(parentKinds()), NameOfParameter());

TEST_P(KeylessParent, WhoseKeyIsACommaComesBackInTheMappingListWithoutIt) {
    remove(1);
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("ADD"), 1, ",", "Comma", ",|1,")});
    bench.clickControl("cmdUndo");
    EXPECT_EQ(bench.rows(side.list).front(), (ShownRow{"", "Comma"}));
    EXPECT_EQ(bench.rows(kind.list).front(), (ShownRow{",", "Comma"}));
}

TEST_P(KeylessParent, EditedCarriesItsTextToEveryRowWithoutAKey) {
    loseTheCommas();
    edit(3, "New");
    EXPECT_EQ(bench.texts(kind.list), (Texts{"Comma", "Letter", "New"}));
    EXPECT_EQ(bench.texts(side.list), (Texts{"New", "Other", "New"}));
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("EDIT"), 3, "", "Keyless")});
}

TEST_P(KeylessParent, GetsItsFormerTextBackInEveryRowWithoutAKey) {
    loseTheCommas();
    edit(3, "New");
    bench.clickControl("cmdUndo");
    EXPECT_EQ(bench.texts(side.list), (Texts{"Keyless", "Other", "Keyless"}));
    bench.clickControl("cmdRedo");
    EXPECT_EQ(bench.texts(side.list), (Texts{"New", "Other", "New"}));
}

TEST_P(KeylessParent, RemovedTakesTheRowWithoutAKeyWithIt) {
    remove(1);
    bench.clickControl("cmdUndo");
    remove(3);
    EXPECT_EQ(bench.texts(kind.list), (Texts{"Comma", "Letter"}));
    EXPECT_EQ(bench.texts(side.list), (Texts{"Other", "Letter"}));
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("ADD"), 3, "", "Keyless", "|1,")});
}

TEST_P(KeylessParent, RemovedTakesEveryRowWithoutAKeyAndUndoBringsThemWhereEachStoodLast) {
    loseTheCommas();
    remove(3);
    EXPECT_EQ(bench.rows(side.list), (ShownRows{{"P1", "Other"}}));
    EXPECT_EQ(bench.undoRecords(), Texts{record(kind.tag("ADD"), 3, "", "Keyless", "|1,|2,")});
    bench.clickControl("cmdUndo");
    EXPECT_EQ(bench.rows(side.list),
              (ShownRows{{"", "Keyless"}, {"", "Keyless"}, {"P1", "Other"}}));
}

TEST_P(KeylessParent, ComesBackWithTheRowThatWentWithIt) {
    remove(1);
    bench.clickControl("cmdUndo");
    remove(3);
    bench.clickControl("cmdUndo");
    EXPECT_EQ(bench.rows(kind.list).back(), (ShownRow{"", "Keyless"}));
    EXPECT_EQ(bench.rows(side.list),
              (ShownRows{{"", "Keyless"}, {"P1", "Other"}, {"x,", "Letter"}}));
    bench.clickControl("cmdRedo");
    EXPECT_EQ(bench.texts(kind.list), (Texts{"Comma", "Letter"}));
    EXPECT_EQ(bench.texts(side.list), (Texts{"Other", "Letter"}));
}

TEST_P(KeylessParent, StaysAsLongAsAnythingIsMappedOnItsSide) {
    loseTheCommas();
    bench.list(side.list).add({.key = "P1-S1", .text = "Mapped", .image = 1, .largeImage = 1});
    remove(3);
    EXPECT_EQ(
        bench.messages(),
        Texts{"You must first remove all strengths and weaknesses associated with this item"});
    EXPECT_EQ(bench.rows(side.list).size(), 4u);
    EXPECT_EQ(bench.rows(kind.list).size(), 3u);
    EXPECT_EQ(bench.undoRecords(), Texts{});
}

}  // namespace
}  // namespace orvanta::test
