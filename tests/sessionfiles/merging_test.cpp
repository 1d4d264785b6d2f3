#include <gtest/gtest.h>

#include "bench.h"

namespace orvanta::test {
namespace {

class Merging : public ::testing::Test {
protected:
    Merging() {
        bench.start();
        bench.openAnalyze();
    }

    void merge() { bench.play({{"do", "call"}, {"routine", "mergeBrainstormFiles"}}); }

    Bench bench;
};

TEST_F(Merging, JoinsTheStatementsOfTheFilesInTheOrderOfTheList) {
    bench.addSource("docs/a.bsm", "Dana", {"a1", "a2", "a3"}, {"w1"}, {}, {"t1"});
    bench.addSource("docs/b.bsm", "Lee", {"b1", "b2", "b3"}, {}, {"o1"}, {"t2"});
    bench.answerFile("docs/m.bsm");
    bench.events();
    merge();
    EXPECT_EQ(bench.disk.files["docs/m.bsm"], lines({"<MODULE>",
                                                     "GBS",
                                                     "</MODULE>",
                                                     "<STRENGTH>",
                                                     "a1",
                                                     "a2",
                                                     "a3",
                                                     "b1",
                                                     "b2",
                                                     "b3",
                                                     "</STRENGTH>",
                                                     "<WEAKNESS>",
                                                     "w1",
                                                     "</WEAKNESS>",
                                                     "<OPPORTUNITY>",
                                                     "o1",
                                                     "</OPPORTUNITY>",
                                                     "<THREATS>",
                                                     "t1",
                                                     "t2",
                                                     "</THREATS>"}));
    EXPECT_EQ(bench.messages(), Texts{"Brainstorm files merged."});
}

TEST_F(Merging, LosesNoneOfManyStatements) {
    Texts many;
    for (int i = 0; i < 57; ++i) many.push_back("statement " + std::to_string(i));
    bench.addSource("docs/a.bsm", "Dana", many, {}, {}, {});
    bench.addSource("docs/b.bsm", "Lee", many, {}, {}, {});
    bench.answerFile("docs/m.bsm");
    merge();
    const std::string& merged = bench.disk.files["docs/m.bsm"];
    EXPECT_EQ(std::ranges::count(merged, '\n'), 3 + 2 + 114 + 6);
}

TEST_F(Merging, TakesTheLastModuleTrimsAndDropsBlankStatements) {
    bench.addSource("docs/a.bsm", "Dana", {"  a  ", "   ", ""}, {"x &lt; y"}, {}, {});
    bench.disk.files["docs/b.bsm"] = brainstormFile("Lee", "HRP", {}, {}, {}, {});
    bench.answerFile("docs/b.bsm");
    bench.click("AFAdd");
    bench.answerFile("docs/m.bsm");
    merge();
    EXPECT_TRUE(bench.disk.files["docs/m.bsm"].starts_with(
        lines({"<MODULE>", "HRP", "</MODULE>", "<STRENGTH>", "a", "</STRENGTH>", "<WEAKNESS>",
               "x &lt; y", "</WEAKNESS>"})));
}

TEST_F(Merging, MayWriteOverOneOfItsSources) {
    bench.addSource("docs/a.bsm", "Dana", {"a"}, {}, {}, {});
    bench.addSource("docs/b.bsm", "Lee", {"b"}, {}, {}, {});
    bench.answerFile("docs/a.bsm");
    bench.answerMessage("yes");
    merge();
    EXPECT_NE(bench.disk.files["docs/a.bsm"].find("a\r\nb\r\n"), std::string::npos);
}

TEST_F(Merging, AsksBeforeItOverwritesAndStopsAtNo) {
    bench.disk.files["docs/m.bsm"] = "old";
    bench.answerFile("docs/m.bsm");
    bench.events();
    merge();
    EXPECT_EQ(bench.disk.files["docs/m.bsm"], "old");
    const Json asked = bench.events("message");
    ASSERT_EQ(asked.size(), 1u);
    EXPECT_EQ(asked[0]["text"], "Do you want to overwrite the file?");
    EXPECT_EQ(asked[0]["default"], "no");
    EXPECT_EQ(asked[0]["title"], "Orvanta");
}

TEST_F(Merging, ReportsACancelledDialog) {
    bench.events();
    merge();
    EXPECT_EQ(bench.messages(), Texts{"[32755] Cancel was selected."});
}

TEST_F(Merging, ReportsAFileThatCannotBeWrittenAndKeepsTheOldOne) {
    bench.addSource("docs/a.bsm", "Dana", {"a"}, {}, {}, {});
    bench.disk.files["docs/m.bsm"] = "old";
    bench.disk.capacity = 10;
    bench.answerFile("docs/m.bsm");
    bench.answerMessage("yes");
    bench.events();
    merge();
    EXPECT_EQ(bench.messages().back(), "[61] Disk full");
    EXPECT_EQ(bench.disk.files["docs/m.bsm"], "old");
}

TEST_F(Merging, OfNoFilesWritesEmptySections) {
    bench.answerFile("docs/m.bsm");
    bench.events();
    merge();
    EXPECT_TRUE(bench.disk.files["docs/m.bsm"].starts_with(lines({"<MODULE>", "", "</MODULE>"})));
    EXPECT_EQ(bench.messages(), Texts{"Brainstorm files merged."});
}

TEST_F(Merging, PassesOverAMissingSourceAndTouchesNoList) {
    bench.addSource("docs/a.bsm", "Dana", {"a"}, {}, {}, {});
    bench.addSource("docs/b.bsm", "Lee", {"b"}, {}, {}, {});
    bench.disk.files.erase("docs/a.bsm");
    bench.answerFile("docs/m.bsm");
    merge();
    EXPECT_NE(bench.disk.files["docs/m.bsm"].find("<STRENGTH>\r\nb\r\n"), std::string::npos);
    EXPECT_EQ(bench.list("lvAStrength").count(), 0);
}

TEST_F(Merging, GivesAFileThatLeavesTheNameAlone) {
    bench.addSource("docs/a.bsm", "Dana", {"a"}, {}, {}, {});
    bench.answerFile("docs/m.bsm");
    merge();
    bench.answerFile("docs/m.bsm");
    bench.click("Brainstorm");
    bench.click("BOpen");
    EXPECT_EQ(bench.form().txtName.text(), "");
    EXPECT_EQ(bench.texts("lvBStrength"), Texts{"a"});
}

}  // namespace
}  // namespace orvanta::test
