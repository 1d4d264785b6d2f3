#include "core/answer_prompt.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

constexpr const char* question = "Do you want to add the answer?";

class AnswerPrompt : public testing::Test {
protected:
    AnswerPrompt() { bench.start(); }

    bool wantsAdded(const std::string& typed) {
        box.setText(typed);
        const bool wanted = wantsAnswerAdded(bench.program(), box);
        bench.play({{"do", "activate"}});  // hands over what was shown
        return wanted;
    }

    Bench bench;
    TextBox& box = bench.form().txtStrength;
};

TEST_F(AnswerPrompt, AsksWithYesAndNoUnderTheDefaultTitle) {
    bench.answerMessage("yes");
    wantsAdded("Own fleet");
    EXPECT_EQ(bench.events(), Json::array({yesNoQuestion(question, "yes")}));
}

TEST_F(AnswerPrompt, LeavesTheTextToTheAddOnYes) {
    bench.answerMessage("yes");
    EXPECT_TRUE(wantsAdded("Own fleet"));
    EXPECT_EQ(box.text(), "Own fleet");
}

TEST_F(AnswerPrompt, EmptiesTheBoxOnNo) {
    bench.answerMessage("no");
    EXPECT_FALSE(wantsAdded("Own fleet"));
    EXPECT_EQ(box.text(), "");
}

TEST_F(AnswerPrompt, AsksAboutBlanksToo) {
    bench.answerMessage("yes");
    EXPECT_TRUE(wantsAdded("  "));
    EXPECT_EQ(bench.messages(), Texts{question});
}

TEST_F(AnswerPrompt, AsksNothingAboutAnEmptyBox) {
    EXPECT_FALSE(wantsAdded(""));
    EXPECT_EQ(bench.messages(), Texts{});
}

}  // namespace
}  // namespace orvanta::test
