#include "questions/bank_reader.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>

#include "analysis_bench.h"
#include "failure_of.h"
#include "questions/question_banks.h"

namespace orvanta::test {
namespace {

class BankFile : public testing::Test {
protected:
    BankFile() { bench.start(); }

    bool read(const std::string& bytes) {
        bench.disk.files["app/gbsquestions.txt"] = bytes;
        return loadModuleQuestions(bench.program(), "gbs");
    }
    bool read(const Texts& bank) { return read(lines(bank)); }
    /// The error that reading ends with; 0 for none.
    int failureOfReading(const Texts& bank) {
        return failureOf([&] { read(bank); });
    }
    Texts strengths() const {
        return {banks.strengthQuestions.begin(),
                banks.strengthQuestions.begin() + banks.strengthCount};
    }
    std::vector<int> counts() const {
        return {banks.strengthCount, banks.weaknessCount, banks.opportunityCount,
                banks.threatCount};
    }

    Bench bench;
    QuestionBanks& banks = bench.program().questions;
};

/// A strengths section with these lines in it.
Texts strengthSection(const Texts& inside) {
    Texts section{"<STRENGTH>"};
    section.insert(section.end(), inside.begin(), inside.end());
    section.push_back("</STRENGTH>");
    return section;
}

Texts numbered(int first, int last) {
    Texts questions;
    for (int i = first; i <= last; ++i)
        questions.insert(questions.end(), {"<QUESTION>", "Question " + std::to_string(i) + "?"});
    return questions;
}

TEST_F(BankFile, FillsTheFourLists) {
    EXPECT_TRUE(read(bankOf(2)));
    EXPECT_EQ(counts(), (std::vector{2, 2, 2, 2}));
    EXPECT_EQ(questionAt(banks.strengthQuestions, 2), " S question 2");
    EXPECT_EQ(questionAt(banks.weaknessQuestions, 1), " W question 1");
    EXPECT_EQ(questionAt(banks.opportunityQuestions, 1), " O question 1");
    EXPECT_EQ(questionAt(banks.threatQuestions, 2), " T question 2");
}

TEST_F(BankFile, IsTheOneOfItsCode) {
    bench.disk.files["app/sbdquestions.txt"] = bankOf(5);
    EXPECT_TRUE(loadModuleQuestions(bench.program(), "sbd"));
    EXPECT_EQ(banks.strengthCount, 5);
    EXPECT_EQ(bankPath(bench.program().appPath, "sbd"), systemPath("app/sbdquestions.txt"));
}

TEST_F(BankFile, MayHoldItsSectionsInAnyOrder) {
    EXPECT_TRUE(read(Texts{"<THREATS>", "<QUESTION>", "t", "</THREATS>", "<WEAKNESS>", "<QUESTION>",
                           "w", "</WEAKNESS>", "<STRENGTH>", "<QUESTION>", "s", "</STRENGTH>",
                           "<OPPORTUNITY>", "<QUESTION>", "o", "</OPPORTUNITY>"}));
    EXPECT_EQ(questionAt(banks.threatQuestions, 1), " t");
    EXPECT_EQ(questionAt(banks.opportunityQuestions, 1), " o");
}

TEST_F(BankFile, MayHoldRemarksOutsideItsSections) {
    read(Texts{"A remark", "<QUESTION>", "not asked", "<STRENGTH>", "<QUESTION>", "asked",
               "</STRENGTH>", "Another", "<QUESTION>"});
    EXPECT_EQ(strengths(), Texts{" asked"});
}

TEST_F(BankFile, JoinsTheLinesOfAQuestionByOneBlankBehindALeadingOne) {
    read(strengthSection({"<QUESTION>", "What do", "your customers", "praise?"}));
    EXPECT_EQ(strengths(), Texts{" What do your customers praise?"});
}

TEST_F(BankFile, KeepsTheBlanksOfARawLine) {
    read(strengthSection({"<QUESTION>", "  What  do ", " they praise? "}));
    EXPECT_EQ(strengths(), Texts{"   What  do   they praise? "});
}

TEST_F(BankFile, DropsBlankLinesEverywhere) {
    read(
        Texts{"", "<STRENGTH>", "  ", "<QUESTION>", "", "What", "   ", "then?", "", "</STRENGTH>"});
    EXPECT_EQ(strengths(), Texts{" What then?"});
}

TEST_F(BankFile, CountsATabAsText) {
    read(strengthSection({"<QUESTION>", "\t", "What?"}));
    EXPECT_EQ(strengths(), Texts{" \t What?"});
}

TEST_F(BankFile, KnowsItsTagsWithBlanksAroundThem) {
    EXPECT_FALSE(read(Texts{"  <STRENGTH> ", " <QUESTION>", "one", "   <QUESTION>   ", "two",
                            " </STRENGTH>  ", "outside"}));
    EXPECT_EQ(strengths(), (Texts{" one", " two"}));
}

TEST_F(BankFile, TakesATagInLowerCaseForText) {
    read(strengthSection({"<QUESTION>", "one", "<question>", "</strength>", "<Weakness>"}));
    EXPECT_EQ(strengths(), Texts{" one <question> </strength> <Weakness>"});
}

TEST_F(BankFile, TakesATagThatIsNotAloneOnItsLineForText) {
    read(strengthSection({"<QUESTION>", "one", "<QUESTION> two", "\t<QUESTION>"}));
    EXPECT_EQ(strengths(), Texts{" one <QUESTION> two \t<QUESTION>"});
}

TEST_F(BankFile, TakesTheSingularOfTheThreatTagForText) {
    read(strengthSection({"<QUESTION>", "one", "<THREAT>", "</THREAT>"}));
    EXPECT_EQ(strengths(), Texts{" one <THREAT> </THREAT>"});
}

TEST_F(BankFile, DropsAnOpeningTagInsideAnOpenSection) {
    read(strengthSection({"<QUESTION>", "one", "<WEAKNESS>", "still one", "<QUESTION>", "two"}));
    EXPECT_EQ(strengths(), (Texts{" one still one", " two"}));
    EXPECT_EQ(banks.weaknessCount, 0);
}

TEST_F(BankFile, DropsAClosingTagOfAnotherSection) {
    read(strengthSection({"<QUESTION>", "one", "</WEAKNESS>", "still one"}));
    EXPECT_EQ(strengths(), Texts{" one still one"});
}

TEST_F(BankFile, ReadsAnyLineEndAndNeedsNoneAtTheLast) {
    read(std::string("<STRENGTH>\n<QUESTION>\rone\r\n<QUESTION>\ntwo"));
    EXPECT_EQ(strengths(), (Texts{" one", " two"}));
}

TEST_F(BankFile, MayLeaveAQuestionEmpty) {
    read(strengthSection({"<QUESTION>", "<QUESTION>", "two"}));
    EXPECT_EQ(strengths(), (Texts{"", " two"}));
}

class BankOfMany : public BankFile, public testing::WithParamInterface<int> {};
INSTANTIATE_TEST_SUITE_P(Questions, BankOfMany, testing::Values(1, 9, 10, 11, 20, 21, 100));

TEST_P(BankOfMany, KeepsThemAllInEveryList) {
    const int last = GetParam();
    ASSERT_TRUE(read(bankOf(last)));
    EXPECT_EQ(counts(), (std::vector{last, last, last, last}));
    for (int number = 1; number <= last; ++number) {
        const std::string ending = " question " + std::to_string(number);
        EXPECT_EQ(questionAt(banks.strengthQuestions, number), " S" + ending);
        EXPECT_EQ(questionAt(banks.threatQuestions, number), " T" + ending);
    }
}

/// How many questions a list has room for, beyond the one that is never used.
TEST_P(BankOfMany, MakesRoomInStepsOfTen) {
    read(bankOf(GetParam()));
    const std::size_t steps = static_cast<std::size_t>(GetParam()) / 10 + 1;
    EXPECT_EQ(banks.strengthQuestions.size(), steps * 10 + 1);
}

TEST_F(BankFile, MayHoldAsManyQuestionsAsTheCountCanTell) {
    const int most = std::numeric_limits<std::int16_t>::max();
    EXPECT_TRUE(read(bankOf(most)));
    EXPECT_EQ(banks.threatCount, most);
    EXPECT_EQ(questionAt(banks.threatQuestions, most), " T question 32767");
}

TEST_F(BankFile, WithMoreQuestionsThanTheCountCanTellIsAnError) {
    EXPECT_EQ(failureOf([&] { read(bankOf(32768)); }), 6);
}

TEST_F(BankFile, WithTextAheadOfTheFirstQuestionIsAnError) {
    EXPECT_EQ(failureOfReading(strengthSection({"What?", "<QUESTION>"})), 9);
}

TEST_F(BankFile, WithTextAheadOfTheFirstQuestionKeepsWhatWasRead) {
    Texts bank = strengthSection(numbered(1, 2));
    bank.insert(bank.end(), {"<WEAKNESS>", "What?"});
    EXPECT_EQ(failureOfReading(bank), 9);
    EXPECT_EQ(counts(), (std::vector{2, 0, 0, 0}));
}

TEST_F(BankFile, MayRepeatASectionAsLongAsThereIsRoom) {
    Texts bank = strengthSection(numbered(1, 4));
    const Texts more = strengthSection(numbered(5, 12));
    bank.insert(bank.end(), more.begin(), more.end());
    read(bank);
    EXPECT_EQ(banks.strengthCount, 12);
    EXPECT_EQ(questionAt(banks.strengthQuestions, 12), " Question 12?");
}

TEST_F(BankFile, HasNoRoomToGrowInARepeatedSectionOfMany) {
    Texts bank = strengthSection(numbered(1, 12));
    const Texts more = strengthSection(numbered(13, 22));
    bank.insert(bank.end(), more.begin(), more.end());
    EXPECT_EQ(failureOfReading(bank), 9);
    EXPECT_EQ(questionAt(banks.strengthQuestions, 21), " Question 21?");
}

TEST_F(BankFile, ThatIsMissingEmptiesTheCountsAndKeepsTheTexts) {
    read(bankOf(3));
    EXPECT_FALSE(loadModuleQuestions(bench.program(), "nil"));
    EXPECT_EQ(counts(), (std::vector{0, 0, 0, 0}));
    EXPECT_EQ(questionAt(banks.strengthQuestions, 3), " S question 3");
}

TEST_F(BankFile, ReplacesTheOneBeforeWhole) {
    read(bankOf(25));
    read(bankOf(2));
    EXPECT_EQ(banks.strengthQuestions.size(), 11u);
    EXPECT_EQ(questionAt(banks.strengthQuestions, 3), "");
}

class BankWithAnEmptyList : public BankFile, public testing::WithParamInterface<std::string> {};
INSTANTIATE_TEST_SUITE_P(Of, BankWithAnEmptyList,
                         testing::Values("STRENGTH", "WEAKNESS", "OPPORTUNITY", "THREATS"));

TEST_P(BankWithAnEmptyList, IsIncompleteButStaysInMemory) {
    Texts bank;
    for (const char* section : {"STRENGTH", "WEAKNESS", "OPPORTUNITY", "THREATS"}) {
        bank.push_back("<" + std::string(section) + ">");
        if (section != GetParam()) bank.insert(bank.end(), {"<QUESTION>", "What?"});
        bank.push_back("</" + std::string(section) + ">");
    }
    EXPECT_FALSE(read(bank));
    EXPECT_EQ(std::ranges::count(counts(), 0), 1);
    EXPECT_EQ(std::ranges::count(counts(), 1), 3);
}

TEST_F(BankFile, ThatCannotBeReadFails) {
    bench.disk.unreadable.insert({"app/gbsquestions.txt", ErrorNumber::PermissionDenied});
    EXPECT_EQ(failureOf([&] { loadModuleQuestions(bench.program(), "gbs"); }), 70);
}

}  // namespace
}  // namespace orvanta::test
