#include "questions/question_banks.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

const std::string headingsFile = "app/analyzequestions.txt";
const std::string builtIn =
    "Before we move on, take a look through your list and see if there are any that should drop "
    "off or perhaps be consolidated with others.";

/// A program that starts with these Analyze texts.
class Headings : public testing::Test {
protected:
    void startWith(const Texts& file) {
        bench.disk.files[headingsFile] = lines(file);
        bench.play({{"do", "start"}});
    }
    Texts shown() const {
        const FrmMain& form = program.frmMain;
        return {form.lblAStrength.caption(),    form.lblAWeakness.caption(),
                form.lblAOpportunity.caption(), form.lblAThreats.caption(),
                form.lblAOMapping.caption(),    form.lblATMapping.caption()};
    }

    Bench bench;
    Program& program = bench.program();
};

/// So many tags, each with a text behind it.
Texts tagged(int tags) {
    Texts file{"A remark"};
    for (int i = 1; i <= tags; ++i)
        file.insert(file.end(), {"<QUESTION>", "Text " + std::to_string(i)});
    return file;
}

TEST_F(Headings, OfSevenTagsFillAllSixLabels) {
    startWith(tagged(7));
    EXPECT_EQ(shown(), (Texts{" Text 1", " Text 2", " Text 3", " Text 4", " Text 5", " Text 6"}));
}

TEST_F(Headings, AreNotReadBehindTheSeventhTag) {
    startWith(tagged(12));
    EXPECT_EQ(shown(), (Texts{" Text 1", " Text 2", " Text 3", " Text 4", " Text 5", " Text 6"}));
    EXPECT_EQ(program.questions.analyzeQuestions[6], "");
}

TEST_F(Headings, OfSixTagsLoseTheSixth) {
    startWith(tagged(6));
    EXPECT_EQ(shown(), (Texts{" Text 1", " Text 2", " Text 3", " Text 4", " Text 5", ""}));
}

class FewHeadings : public Headings, public testing::WithParamInterface<int> {};
INSTANTIATE_TEST_SUITE_P(Tags, FewHeadings, testing::Range(1, 7));

TEST_P(FewHeadings, LoseTheLastOne) {
    startWith(tagged(GetParam()));
    Texts expected(6);
    for (int i = 1; i < GetParam(); ++i)
        expected[static_cast<std::size_t>(i) - 1] = " Text " + std::to_string(i);
    EXPECT_EQ(shown(), expected);
}

TEST_F(Headings, AreAllEmptyWithoutAFile) {
    bench.disk.files.erase(headingsFile);
    bench.play({{"do", "start"}});
    EXPECT_EQ(shown(), Texts(6));
    EXPECT_EQ(bench.messages(), Texts{});
}

TEST_F(Headings, JoinTheirRawLinesByOneBlankBehindALeadingOne) {
    startWith({"<QUESTION>", "Look at", "", " your list ", "<QUESTION>"});
    EXPECT_EQ(shown()[0], " Look at  your list ");
}

TEST_F(Headings, KnowTheirTagWithBlanksAroundItAndInUpperCaseAlone) {
    startWith({"  <QUESTION> ", "Look at", "<question>", "<QUESTION>"});
    EXPECT_EQ(shown()[0], " Look at <question>");
}

TEST_F(Headings, WithoutATagAreReportedByDescriptionAloneAndLeaveTheLabels) {
    startWith({"no tag at all"});
    EXPECT_EQ(bench.events("message"), Json::array({{{"event", "message"},
                                                     {"text", "Subscript out of range"},
                                                     {"icon", "none"},
                                                     {"buttons", "ok"},
                                                     {"default", "ok"},
                                                     {"title", nullptr},
                                                     {"answer", "ok"}}}));
    EXPECT_EQ(shown(), Texts(6, builtIn));
}

TEST_F(Headings, InAnEmptyFileAreReportedToo) {
    startWith({});
    EXPECT_EQ(bench.messages(), Texts{"Subscript out of range"});
}

TEST_F(Headings, ThatCannotBeReadAreReportedAndLeaveTheLabels) {
    bench.disk.unreadable.insert({headingsFile, ErrorNumber::PermissionDenied});
    startWith(tagged(7));
    EXPECT_EQ(bench.messages(), Texts{"Permission denied"});
    EXPECT_EQ(shown(), Texts(6, builtIn));
    EXPECT_TRUE(program.frmMain.shown);
}

TEST_F(Headings, AreReadOnceInARun) {
    startWith(tagged(7));
    bench.disk.files[headingsFile] = lines({"<QUESTION>", "Changed", "<QUESTION>"});
    bench.click("Analyze");
    bench.play({{"do", "activate"}});
    EXPECT_EQ(shown()[0], " Text 1");
}

}  // namespace
}  // namespace orvanta::test
