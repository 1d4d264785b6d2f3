#include <gtest/gtest.h>

#include <algorithm>
#include <random>

#include "analysis_bench.h"
#include "core/text.h"
#include "failure_of.h"
#include "questions/bank_reader.h"
#include "questions/question_banks.h"

namespace orvanta::test {
namespace {

constexpr int files = 1000;

/// Makes files that nobody would write: whole ones with damage, or lines and bytes at random.
class Vandal {
public:
    Vandal(unsigned seed, std::string whole) : m_random(seed), m_whole(std::move(whole)) {}

    std::string file() {
        std::string bytes = upTo(3) == 0 ? scribble() : m_whole;
        const int wounds = upTo(8);
        for (int i = 0; i < wounds; ++i) wound(bytes);
        return bytes;
    }

private:
    int upTo(int most) { return std::uniform_int_distribution<int>(0, most)(m_random); }
    std::size_t placeIn(const std::string& bytes) {
        return static_cast<std::size_t>(upTo(static_cast<int>(bytes.size())));
    }

    std::string line() {
        static const Texts known{"<QUESTION>",     "<STRENGTH>",   "</STRENGTH>", "<WEAKNESS>",
                                 "</WEAKNESS>",    "<THREATS>",    "</THREATS>",  "<OPPORTUNITY>",
                                 "</OPPORTUNITY>", " <QUESTION> ", "\t",          "   ",
                                 "<question>",     "What?",        "<",           ""};
        return known[static_cast<std::size_t>(upTo(static_cast<int>(known.size()) - 1))];
    }
    std::string scribble() {
        static const Texts ends{"\r\n", "\n", "\r", ""};
        std::string bytes;
        const int lines = upTo(120);
        for (int i = 0; i < lines; ++i)
            bytes += (upTo(9) == 0 ? std::string(1, static_cast<char>(upTo(255))) : line()) +
                     ends[static_cast<std::size_t>(upTo(3))];
        return bytes;
    }
    void wound(std::string& bytes) {
        const std::size_t place = placeIn(bytes);
        switch (upTo(4)) {
            case 0:
                if (place < bytes.size()) bytes[place] = static_cast<char>(upTo(255));
                break;
            case 1:
                bytes.erase(place, static_cast<std::size_t>(upTo(40)));
                break;
            case 2:
                bytes.insert(place, "\r\n" + line() + "\r\n");
                break;
            case 3:
                bytes += bytes.substr(place);
                break;
            case 4:
                bytes.resize(place);
                break;
        }
    }

    std::mt19937 m_random;
    const std::string m_whole;
};

struct ReadList {
    int count;
    const Texts* questions;
};
std::vector<ReadList> listsOf(const QuestionBanks& banks) {
    return {{banks.strengthCount, &banks.strengthQuestions},
            {banks.weaknessCount, &banks.weaknessQuestions},
            {banks.opportunityCount, &banks.opportunityQuestions},
            {banks.threatCount, &banks.threatQuestions}};
}

int tagsIn(const std::string& bytes) {
    int tags = 0;
    LineSource lines(bytes);
    while (const auto line = lines.next()) tags += trimBlanks(*line) == "<QUESTION>";
    return tags;
}

/// What holds of the lists whatever stood in the file.
void expectInBounds(const QuestionBanks& banks, const std::string& bytes) {
    int questions = 0;
    for (const ReadList& list : listsOf(banks)) {
        EXPECT_GE(list.count, 0);
        EXPECT_EQ(list.questions->size() % 10, 1u);
        questions += list.count;
        for (std::size_t i = static_cast<std::size_t>(list.count); i < list.questions->size(); ++i)
            EXPECT_EQ((*list.questions)[i], "") << "beyond the count";
        for (const std::string& question : *list.questions) {
            EXPECT_EQ(question.find_first_of("\r\n"), std::string::npos);
            EXPECT_TRUE(question.empty() || question.starts_with(' '));
        }
    }
    EXPECT_LE(questions, tagsIn(bytes));
}

TEST(ADamagedBank, LeavesCountsAndTextsInBounds) {
    Bench bench;
    Vandal vandal(1, bankOf(12));
    int whole = 0, broken = 0;
    for (int i = 0; i < files && !testing::Test::HasFailure(); ++i) {
        const std::string bytes = bench.disk.files["app/gbsquestions.txt"] = vandal.file();
        bool complete = false;
        const int failure =
            failureOf([&] { complete = loadModuleQuestions(bench.program(), "gbs"); });
        EXPECT_TRUE(failure == 0 || failure == subscriptOutOfRange) << failure;
        expectInBounds(bench.program().questions, bytes);
        const bool everyList =
            std::ranges::all_of(listsOf(bench.program().questions),
                                [](const ReadList& list) { return list.count > 0; });
        EXPECT_TRUE(failure != 0 || complete == everyList) << "file " << i;
        whole += complete;
        broken += failure != 0;
    }
    EXPECT_GT(whole, files / 20);
    EXPECT_GT(broken, files / 20);
}

Json named(const Json& events, std::string_view name) {
    Json found = Json::array();
    for (const Json& event : events)
        if (event["event"] == name) found.push_back(event);
    return found;
}

/// Walks into the questions of a bank, and some of them forwards and backwards.
void walk(Bench& bench) {
    bench.click("Brainstorm");
    bench.set("txtName", "Dana Reyes");
    bench.play({{"do", "choose"}, {"option", "optGBS"}});
    for (int i = 0; i < 6; ++i) bench.click("BNext");
    for (int i = 0; i < 2 && bench.form().picBBack.isVisible(); ++i) bench.click("BBack");
}

TEST(ADamagedBank, LeavesTheWizardUsable) {
    Bench bench;
    bench.start();
    Vandal vandal(2, bankOf(3));
    for (int i = 0; i < files && !testing::Test::HasFailure(); ++i) {
        bench.disk.files["app/gbsquestions.txt"] = vandal.file();
        walk(bench);
        const Json seen = bench.events();
        EXPECT_EQ(named(seen, "unhandledError"), Json::array()) << "file " << i;
        for (const Json& message : named(seen, "message"))
            EXPECT_EQ(message["text"], "[9] Subscript out of range") << "file " << i;
        bench.disk.files["app/gbsquestions.txt"] = bankOf(3);
        bench.openBrainstorm();
        EXPECT_EQ(bench.form().lblSQuestion.caption(), " S question 1") << "file " << i;
    }
}

TEST(ADamagedAnalyzeText, FillsTheHeadingsOrIsReported) {
    Bench bench;
    bench.start();
    const FrmMain& form = bench.form();
    const auto shown = [&] {
        return Texts{form.lblAStrength.caption(),    form.lblAWeakness.caption(),
                     form.lblAOpportunity.caption(), form.lblAThreats.caption(),
                     form.lblAOMapping.caption(),    form.lblATMapping.caption()};
    };
    Vandal vandal(3, bench.disk.files["app/analyzequestions.txt"]);
    int reported = 0;
    for (int i = 0; i < files && !testing::Test::HasFailure(); ++i) {
        const std::string bytes = bench.disk.files["app/analyzequestions.txt"] = vandal.file();
        const Texts before = shown();
        loadAnalyzeQuestions(bench.program());
        bench.play({{"do", "activate"}});
        const int tags = tagsIn(bytes);
        const Texts messages = bench.messages();
        EXPECT_EQ(messages, tags == 0 ? Texts{"Subscript out of range"} : Texts{}) << "file " << i;
        EXPECT_TRUE(tags > 0 || shown() == before) << "file " << i;
        EXPECT_TRUE(tags == 0 || 6 - std::ranges::count(shown(), "") < tags) << "file " << i;
        reported += !messages.empty();
    }
    EXPECT_GT(reported, files / 100);
    bench.click("Analyze");
    EXPECT_TRUE(form.lstFiles.isReachable());
}

}  // namespace
}  // namespace orvanta::test
