#include "core/analyze_steps.h"

#include <gtest/gtest.h>

#include "bench.h"

namespace orvanta::test {
namespace {

TEST(AnalyzeSteps, FollowEachOtherFromTheSourceFilesToTheThreatMapping) {
    Texts walked{std::string(stepControls[AnalyzeStep::SourceFiles].name)};
    AnalyzeStep step = AnalyzeStep::SourceFiles;
    while (step != AnalyzeStep::ThreatMapping) {
        const AnalyzeStep before = step;
        step = following(step);
        EXPECT_EQ(preceding(step), before);
        walked.emplace_back(stepControls[step].name);
    }
    EXPECT_EQ(walked, (Texts{"Source files", "Strengths", "Weaknesses", "Opportunities", "Threats",
                             "Mapping onto opportunities", "Mapping onto threats"}));
}

TEST(AnalyzeSteps, ReadTheirHeadingsInOrderFromTheFirstText) {
    EXPECT_EQ(headingIndexOf(AnalyzeStep::Strengths), 0u);
    EXPECT_EQ(headingIndexOf(AnalyzeStep::Opportunities), 2u);
    EXPECT_EQ(headingIndexOf(AnalyzeStep::ThreatMapping), 5u);
}

}  // namespace
}  // namespace orvanta::test
