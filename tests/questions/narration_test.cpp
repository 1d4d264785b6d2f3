#include "questions/narration.h"

#include <gtest/gtest.h>

#include "brainstorm_bench.h"

namespace orvanta::test {
namespace {

Json mute(bool on) { return {{"do", "mute"}, {"on", on}}; }

TEST(Clip, LiesInTheSoundsFolderUnderItsName) {
    Bench bench;
    EXPECT_EQ(narrationPath(bench.program(), "analyze_OM"),
              systemPath("app/Sounds/analyze_OM.swf"));
}

TEST(Clip, OfTheTenthThreatHasNoLeadingZero) {
    Bench bench;
    bench.disk.files["app/sbdquestions.txt"] = bankOf(10);
    bench.disk.files["app/Sounds/sbd_T10.swf"] = "clip";
    bench.start();
    bench.openBrainstorm("optSBD");
    for (int i = 0; i < 38; ++i) bench.click("BNext");
    bench.events();
    bench.click("BNext");
    EXPECT_EQ(bench.form().questionStep, 10);
    EXPECT_EQ(bench.events("narration"),
              Json::array({stopped(), narration("app/Sounds/sbd_T10.swf")}));
}

TEST(Clip, PlaysIfItIsThereAndTheSoundIsOn) {
    Bench bench;
    bench.disk.files[clipPath("any")] = "clip";
    bench.start();
    narrate(bench.program(), "any");
    bench.play({{"do", "activate"}});
    EXPECT_EQ(bench.events(), Json::array({narration(clipPath("any"))}));
}

TEST(Clip, IsSilentIfItIsMissing) {
    Bench bench;
    bench.start();
    narrate(bench.program(), "any");
    bench.play({{"do", "activate"}});
    EXPECT_EQ(bench.events(), Json::array());
}

TEST(Clip, IsSilentIfAFolderStandsInItsPlace) {
    Bench bench;
    bench.disk.folders.insert(clipPath("any"));
    bench.start();
    narrate(bench.program(), "any");
    bench.play({{"do", "activate"}});
    EXPECT_EQ(bench.events(), Json::array());
}

TEST(Silence, IsAMovieThatIsNone) {
    Bench bench;
    bench.start();
    stopNarration(bench.program());
    bench.play({{"do", "activate"}});
    EXPECT_EQ(bench.events(), Json::array({stopped()}));
}

TEST(Sound, IsOnAtEachStart) {
    Bench bench;
    bench.start();
    EXPECT_FALSE(bench.form().chkMute.isOn());
    bench.play(mute(true));
    bench.restart();
    EXPECT_FALSE(bench.form().chkMute.isOn());
}

TEST(SoundOff, StartsNoClipYetNextStillStopsOne) {
    BrainstormBench bench;
    bench.addClips("gbs");
    bench.play(mute(true));
    bench.events();
    bench.click("BNext");
    EXPECT_EQ(bench.events("narration"), Json::array({stopped()}));
}

TEST(SoundOff, SilencesAClipAtOnce) {
    BrainstormBench bench;
    bench.addClips("gbs");
    bench.next(1);
    bench.play(mute(true));
    EXPECT_EQ(bench.events("narration"), Json::array({stopped()}));
}

TEST(SoundOff, TurnedBackBringsNoClip) {
    BrainstormBench bench;
    bench.addClips("gbs");
    bench.next(1);
    bench.play(mute(true));
    bench.events();
    bench.play(mute(false));
    EXPECT_EQ(bench.events("narration"), Json::array());
}

TEST(NextQuestion, WithoutAClipStopsTheOneBefore) {
    BrainstormBench bench;
    bench.disk.files[clipPath("gbs_S2")] = "clip";
    bench.next(1);
    bench.click("BNext");
    EXPECT_EQ(bench.events("narration"), Json::array({stopped()}));
}

struct Moment {
    std::string name, button;
    bool stops;
};
std::ostream& operator<<(std::ostream& out, const Moment& moment) { return out << moment.name; }

class SoundAt : public testing::TestWithParam<Moment> {};
INSTANTIATE_TEST_SUITE_P(
    Of, SoundAt,
    testing::Values(Moment{"Next", "BNext", true}, Moment{"Back", "BBack", true},
                    Moment{"QuitOfTheModule", "BQuit", true},
                    Moment{"Brainstorm", "Brainstorm", true}, Moment{"Analyze", "Analyze", true},
                    Moment{"Report", "Report", true}, Moment{"About", "About", true},
                    Moment{"Overview", "Overview", false}, Moment{"Quit", "Quit", false},
                    Moment{"Add", "BSAdd", false}, Moment{"Edit", "BSEdit", false},
                    Moment{"Remove", "BSRemove", false}),
    NameOfParameter());

TEST_P(SoundAt, StopsOrGoesOn) {
    BrainstormBench bench;
    bench.list("lvBStrength").add({.key = "S1", .text = "Own fleet"});
    bench.select("lvBStrength", 1);
    bench.set("txtStrength", "Loyal customers");
    bench.answerMessage("no");
    bench.events();
    bench.click(GetParam().button);
    EXPECT_EQ(bench.events("narration"),
              GetParam().stops ? Json::array({stopped()}) : Json::array());
}

TEST(PrintedQuestions, StopTheSound) {
    Bench bench;
    bench.start();
    bench.click("Brainstorm");
    bench.play({{"do", "choose"}, {"option", "optGBS"}});
    bench.events();
    bench.click("Print");
    EXPECT_EQ(bench.events("narration"), Json::array({stopped()}));
}

}  // namespace
}  // namespace orvanta::test
