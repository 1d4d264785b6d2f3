#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <set>
#include <sstream>

#include "analysis_bench.h"
#include "core/text.h"
#include "data_folder.h"
#include "questions/bank_reader.h"
#include "questions/question_banks.h"

namespace orvanta::test {
namespace {

std::string shipped(const std::string& name) {
    std::ifstream file(dataFolder() + "/" + name, std::ios::binary);
    EXPECT_TRUE(file) << name << " is missing";
    return {std::istreambuf_iterator<char>(file), {}};
}

const Texts codes{"gbs", "hrp", "mp", "psd", "sbd"};

Texts fileNames() {
    Texts names{"analyzequestions.txt"};
    for (const std::string& code : codes) names.push_back(code + "questions.txt");
    return names;
}

Texts linesIn(const std::string& bytes) {
    Texts result;
    LineSource source(bytes);
    while (const auto line = source.next()) result.emplace_back(*line);
    return result;
}

std::ptrdiff_t wordsIn(const std::string& text) {
    std::istringstream words(text);
    return std::distance(std::istream_iterator<std::string>(words), {});
}

struct NameWithoutEnding {
    template <class Info>
    std::string operator()(const Info& info) const {
        return info.param.substr(0, info.param.find('.'));
    }
};

class ShippedFile : public testing::TestWithParam<std::string> {
protected:
    const std::string bytes = shipped(GetParam());
};
INSTANTIATE_TEST_SUITE_P(Named, ShippedFile, testing::ValuesIn(fileNames()), NameWithoutEnding());

TEST_P(ShippedFile, EndsEachLineWithCrLf) {
    std::string rebuilt;
    for (const std::string& line : linesIn(bytes)) rebuilt += line + "\r\n";
    EXPECT_EQ(rebuilt, bytes);
    EXPECT_FALSE(bytes.empty());
}

TEST_P(ShippedFile, HoldsCharactersOfTheCodePageAlone) {
    const std::string unassigned = "\x7F\x81\x8D\x8F\x90\x9D";
    for (const char byte : bytes) {
        const auto code = static_cast<unsigned char>(byte);
        EXPECT_TRUE(code >= 32 || byte == '\r' || byte == '\n') << int{code};
        EXPECT_EQ(unassigned.find(byte), std::string::npos) << int{code};
    }
}

/// A lead byte of two or three with a follower behind it: hardly ever a text of the code page.
TEST_P(ShippedFile, IsNoUtf8) {
    for (std::size_t i = 0; i + 1 < bytes.size(); ++i) {
        const auto lead = static_cast<unsigned char>(bytes[i]);
        const bool followed = (bytes[i + 1] & 0xC0) == 0x80;
        EXPECT_FALSE(lead >= 0xC2 && lead < 0xF0 && followed) << "at byte " << i;
    }
}

TEST_P(ShippedFile, HasNoBlanksAroundItsLines) {
    for (const std::string& line : linesIn(bytes)) EXPECT_EQ(trimBlanks(line), line);
}

TEST_P(ShippedFile, SpellsAsAmericansDo) {
    std::string text = bytes;
    std::ranges::transform(text, text.begin(), [](unsigned char c) { return std::tolower(c); });
    for (const char* british :
         {"isation", "organis", "criticis", "recognis", "realis", "analyse", "avour", "abour",
          "colour", "behaviour", "centre", "programme", "licence", "enquir", "travell", "labelled"})
        EXPECT_EQ(text.find(british), std::string::npos) << british;
}

/// The program with the files that it is shipped with.
class ShippedBanks : public testing::Test {
protected:
    ShippedBanks() {
        for (const std::string& name : fileNames()) bench.disk.files["app/" + name] = shipped(name);
        bench.start();
    }
    /// The questions of the four lists of a bank, as the program reads them.
    std::vector<Texts> load(const std::string& code) {
        EXPECT_TRUE(loadModuleQuestions(bench.program(), code)) << code;
        std::vector<Texts> lists;
        for (const StatementKind kind : statementKinds) {
            const BankList list = bankListOf(kind);
            const QuestionBanks& banks = bench.program().questions;
            lists.emplace_back((banks.*list.questions).begin(),
                               (banks.*list.questions).begin() + banks.*list.count);
        }
        return lists;
    }

    Bench bench;
};

class ShippedBank : public ShippedBanks, public testing::WithParamInterface<std::string> {};
INSTANTIATE_TEST_SUITE_P(Of, ShippedBank, testing::ValuesIn(codes), NameWithoutEnding());

TEST_P(ShippedBank, AsksEightToTwelveQuestionsAList) {
    for (const Texts& list : load(GetParam())) {
        EXPECT_GE(list.size(), 8u);
        EXPECT_LE(list.size(), 12u);
    }
}

TEST_P(ShippedBank, AsksQuestionsThatFitOnTheirScreen) {
    for (const Texts& list : load(GetParam()))
        for (const std::string& question : list) {
            EXPECT_GE(question.size(), 20u) << question;
            EXPECT_LE(question.size(), 160u) << question;
        }
}

TEST_P(ShippedBank, AsksNothingThatIsTooLongToBeHeardOnce) {
    for (const Texts& list : load(GetParam()))
        for (const std::string& question : list) EXPECT_LE(wordsIn(question), 14) << question;
}

TEST_P(ShippedBank, BeginsOneQuestionInFiveAtMostWithWhich) {
    std::ptrdiff_t questions = 0, withWhich = 0;
    for (const Texts& list : load(GetParam())) {
        questions += std::ssize(list);
        withWhich += std::ranges::count_if(
            list, [](const std::string& question) { return question.starts_with(" Which "); });
    }
    EXPECT_LE(5 * withWhich, questions);
}

TEST_P(ShippedBank, AsksWholeQuestionsOfOneLine) {
    for (const Texts& list : load(GetParam()))
        for (const std::string& question : list) {
            EXPECT_TRUE(question.starts_with(' ')) << question;
            EXPECT_TRUE(question.ends_with('?')) << question;
            EXPECT_EQ(question.find("  "), std::string::npos) << question;
            EXPECT_EQ(question.find_first_of("<>"), std::string::npos) << question;
        }
}

TEST_P(ShippedBank, CanBeWalkedToTheEnd) {
    bench.click("Brainstorm");
    bench.set("txtName", "Dana Reyes");
    std::string option = "opt";
    for (const char letter : GetParam()) option += static_cast<char>(letter - 'a' + 'A');
    bench.play({{"do", "choose"}, {"option", option}});
    std::size_t questions = 0;
    for (const Texts& list : load(GetParam())) questions += list.size();
    for (std::size_t i = 0; i < questions; ++i) bench.click("BNext");
    EXPECT_EQ(bench.form().buttons[Button::BNext].label.caption(), "Save...");
    EXPECT_EQ(bench.messages(), Texts{});
}

TEST_F(ShippedBanks, AskNoQuestionTwice) {
    std::set<std::string> asked;
    for (const std::string& code : codes)
        for (const Texts& list : load(code))
            for (const std::string& question : list)
                EXPECT_TRUE(asked.insert(question).second) << code << question;
}

TEST_F(ShippedBanks, AreOfferedAllFive) {
    for (const char* option : {"optGBS", "optMP", "optSBD", "optPSD", "optHRP"})
        EXPECT_TRUE(bench.control(option).isVisible()) << option;
}

TEST(ShippedAnalyzeText, HasSevenTagsTheLastAtItsEnd) {
    const Texts lines = linesIn(shipped("analyzequestions.txt"));
    EXPECT_EQ(std::ranges::count(lines, "<QUESTION>"), 7);
    ASSERT_FALSE(lines.empty());
    EXPECT_EQ(lines.back(), "<QUESTION>");
}

TEST_F(ShippedBanks, ComeWithSixHeadingsThatDifferAndFitOnTheirScreens) {
    const FrmMain& form = bench.form();
    std::set<std::string> headings;
    for (const Label* label : {&form.lblAStrength, &form.lblAWeakness, &form.lblAOpportunity,
                               &form.lblAThreats, &form.lblAOMapping, &form.lblATMapping}) {
        EXPECT_GE(label->caption().size(), 40u) << label->name();
        EXPECT_LE(wordsIn(label->caption()), 25) << label->name();
        EXPECT_TRUE(label->caption().ends_with('.')) << label->name();
        headings.insert(label->caption());
    }
    EXPECT_EQ(headings.size(), 6u);
    EXPECT_EQ(bench.messages(), Texts{});
}

// A drop lands below a row, and the mapping lists keep the order in which their rows came.
TEST_F(ShippedBanks, ComeWithHeadingsThatTellHowToRankAndHowFarThatReaches) {
    const FrmMain& form = bench.form();
    EXPECT_NE(form.lblAOpportunity.caption().find("drag the top row down"), std::string::npos);
    EXPECT_NE(form.lblAThreats.caption().find("mapping steps"), std::string::npos);
}

}  // namespace
}  // namespace orvanta::test
