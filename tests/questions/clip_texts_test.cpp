#include "questions/clip_texts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>

#include "bench.h"
#include "core/analyze_steps.h"
#include "core/modules.h"
#include "data_folder.h"
#include "questions/narration.h"
#include "view/file_disk.h"

namespace orvanta::test {

namespace {

Texts clipsOf(const MemoryDisk& disk) {
    Texts clips;
    for (const ClipText& clip : clipTexts(disk, "app")) clips.push_back(clip.clip);
    return clips;
}

std::string textOf(const std::vector<ClipText>& clips, const std::string& name) {
    const auto found = std::ranges::find(clips, name, &ClipText::clip);
    return found == clips.end() ? "no such clip" : found->text;
}

}  // namespace

TEST(ClipTexts, NumberTheQuestionsOfEachListFromOne) {
    MemoryDisk disk;
    disk.files["app/sbdquestions.txt"] = bankOf(2);
    EXPECT_EQ(clipsOf(disk), (Texts{"sbd_S1", "sbd_S2", "sbd_W1", "sbd_W2", "sbd_O1", "sbd_O2",
                                    "sbd_T1", "sbd_T2"}));
}

TEST(ClipTexts, WriteNumbersOfTwoDigitsWithoutZerosAhead) {
    MemoryDisk disk;
    disk.files["app/sbdquestions.txt"] = bankOf(10);
    EXPECT_EQ(clipsOf(disk).back(), "sbd_T10");
}

TEST(ClipTexts, AreTheQuestionsWithoutBlanksAtTheirEnds) {
    MemoryDisk disk;
    disk.files["app/mpquestions.txt"] = bankOf(1);
    EXPECT_EQ(textOf(clipTexts(disk, "app"), "mp_W1"), "W question 1");
}

TEST(ClipTexts, JoinTheLinesOfAQuestion) {
    MemoryDisk disk;
    disk.files["app/mpquestions.txt"] =
        lines({"<STRENGTH>", "<QUESTION>", "Who", "are we?", "</STRENGTH>"});
    EXPECT_EQ(textOf(clipTexts(disk, "app"), "mp_S1"), "Who are we?");
}

TEST(ClipTexts, LeaveOutAQuestionWithoutWords) {
    MemoryDisk disk;
    disk.files["app/mpquestions.txt"] =
        lines({"<STRENGTH>", "<QUESTION>", "<QUESTION>", "Who?", "</STRENGTH>"});
    EXPECT_EQ(clipsOf(disk), Texts{"mp_S2"});
}

TEST(ClipTexts, HoldTheSixAnalyzeHeadingsInTheOrderOfTheScreens) {
    MemoryDisk disk;
    disk.files["app/analyzequestions.txt"] =
        lines({"<QUESTION>", "a", "<QUESTION>", "b", "<QUESTION>", "c", "<QUESTION>", "d",
               "<QUESTION>", "e", "<QUESTION>", "f", "<QUESTION>"});
    EXPECT_EQ(clipsOf(disk), (Texts{"analyze_S", "analyze_W", "analyze_O", "analyze_T",
                                    "analyze_OM", "analyze_TM"}));
    EXPECT_EQ(textOf(clipTexts(disk, "app"), "analyze_OM"), "e");
}

TEST(ClipTexts, OfNoFilesAreNone) {
    const MemoryDisk disk;
    EXPECT_EQ(clipsOf(disk), Texts{});
}

TEST(ClipTexts, OfTheSuppliedFilesSpeakOnEveryScreen) {
    const std::vector<ClipText> clips = clipTexts(FileDisk(), dataFolder());
    for (const Module& module : modules)
        for (const StatementKind kind : statementKinds)
            EXPECT_NE(textOf(clips, clipName(module.code, kind, 2)), "no such clip");
    for (const StepControls& step : stepControls)
        if (step.heading) {
            EXPECT_NE(textOf(clips, std::string(step.clip)), "no such clip");
        }
}

}  // namespace orvanta::test
