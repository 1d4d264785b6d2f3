#include "app/shutdown.h"

#include <gtest/gtest.h>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

const Json ended{{"event", "exit"}};

/// A session in each module that the autosave has copied.
void leaveCopies(Bench& bench) {
    bench.start();
    bench.openBrainstorm();
    bench.enter("txtStrength", {"Fleet"});
    bench.play({{"do", "tick"}});
    bench.disk.files["app/analyze.tmp"] = bench.disk.files.at("app/brainstorm.tmp");
    bench.form().editAFlag = true;
    bench.events();
}

Texts copiesLeft(const Bench& bench) {
    Texts left;
    for (const auto& [path, bytes] : bench.disk.files)
        if (path.ends_with(".tmp")) left.push_back(path);
    return left;
}

TEST(EndingTheProgram, LeavesNoTemporaryFileBehind) {
    Bench bench;
    leaveCopies(bench);
    bench.answerMessage("no");
    bench.answerMessage("no");
    bench.click("Quit");
    EXPECT_EQ(bench.events("exit"), Json::array({ended}));
    EXPECT_EQ(copiesLeft(bench), Texts{});
}

TEST(EndingTheProgram, KeepsTheCopyOfTheSessionWhosePromptIsCancelled) {
    Bench bench;
    leaveCopies(bench);
    bench.answerMessage("no");
    bench.answerMessage("cancel");
    bench.click("Quit");
    EXPECT_EQ(bench.events("exit"), Json::array());
    EXPECT_EQ(copiesLeft(bench), Texts{"app/analyze.tmp"});
}

TEST(ClosingTheWindow, StopsTheSoundAsksInOrderAndEnds) {
    Bench bench;
    leaveCopies(bench);
    bench.answerMessage("no");
    bench.answerMessage("no");
    bench.play({{"do", "close"}});
    const Json seen = bench.events();
    ASSERT_EQ(seen.size(), 4u);
    EXPECT_EQ(seen[0], stopped());
    EXPECT_EQ(seen[1]["text"], "Do you want to save changes in brainstorm session?");
    EXPECT_EQ(seen[2]["text"], "Do you want to save changes in analyze session?");
    EXPECT_EQ(seen[3], ended);
}

TEST(ClosingTheWindow, IsRefusedWhenAPromptIsCancelledAndTheSoundHasStoppedAllTheSame) {
    Bench bench;
    bench.start();
    bench.form().editAFlag = true;
    bench.answerMessage("cancel");
    EXPECT_FALSE(closeMainWindow(bench.program()));
    bench.play({{"do", "activate"}});
    const Json seen = bench.events();
    ASSERT_EQ(seen.size(), 2u);
    EXPECT_EQ(seen[0], stopped());
    EXPECT_EQ(seen[1]["answer"], "cancel");
}

TEST(ClosingTheWindow, IsAllowedWithoutChanges) {
    Bench bench;
    bench.start();
    EXPECT_TRUE(closeMainWindow(bench.program()));
}

TEST(QuitButton, EndsACleanProgramWithoutStoppingTheSound) {
    AnalysisBench bench;
    bench.events();
    bench.click("Quit");
    EXPECT_EQ(withoutArt(bench.events()), Json::array({{{"event", "exit"}}}));
}

TEST(QuitButton, AsksForBothSessionsTheBrainstormFirst) {
    AnalysisBench bench;
    bench.form().editFlag = bench.form().editAFlag = true;
    bench.answerMessage("no");
    bench.answerMessage("no");
    bench.click("Quit");
    EXPECT_EQ(bench.messages(), (Texts{"Do you want to save changes in brainstorm session?",
                                       "Do you want to save changes in analyze session?"}));
}

TEST(QuitButton, GoesNoFurtherThanTheFirstPromptThatIsCancelled) {
    AnalysisBench bench;
    bench.form().editFlag = bench.form().editAFlag = true;
    bench.answerMessage("cancel");
    bench.click("Quit");
    const Json seen = withoutArt(bench.events());
    ASSERT_EQ(seen.size(), 1u);
    EXPECT_EQ(seen[0]["text"], "Do you want to save changes in brainstorm session?");
}

TEST(QuitButton, StaysWhenTheSecondPromptIsCancelled) {
    AnalysisBench bench;
    bench.form().editAFlag = true;
    bench.answerMessage("cancel");
    bench.click("Quit");
    EXPECT_EQ(bench.events("exit"), Json::array());
}

}  // namespace
}  // namespace orvanta::test
