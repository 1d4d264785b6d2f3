#include "core/failures.h"

#include <gtest/gtest.h>

#include <stdexcept>

#include "analysis_bench.h"

namespace orvanta::test {
namespace {

TEST(Failure, IsTheOnlyThingThatCarryingOnPassesOver) {
    const BestEffort step;
    EXPECT_TRUE(step([] {}));
    EXPECT_FALSE(step([] { throw Failure(ErrorNumber::DiskFull); }));
    EXPECT_THROW(step([] { throw std::runtime_error("our own mistake"); }), std::runtime_error);
}

TEST(Failure, IsShownWithItsNumberInBrackets) {
    Bench bench;
    bench.start();
    reportingFailures(bench.program().platform.messages,
                      [] { throw Failure(ErrorNumber::FileNotFound); });
    bench.play({{"do", "activate"}});
    EXPECT_EQ(bench.events(), Json::array({refusal("[53] File not found")}));
}

TEST(Failure, LeavesTheStepsAheadOfItDone) {
    Bench bench;
    int done = 0;
    reportingFailures(bench.program().platform.messages, [&] {
        ++done;
        throw Failure(ErrorNumber::FileNotFound);
    });
    EXPECT_EQ(done, 1);
}

TEST(Narrowing, KeepsWhatFitsAndFailsBeyond) {
    EXPECT_EQ(narrowed<std::int16_t>(32767), 32767);
    EXPECT_THROW(narrowed<std::int16_t>(32768), Failure);
    EXPECT_EQ(narrowed<std::int32_t>(std::int64_t{2147483647}), 2147483647);
    EXPECT_THROW(narrowed<std::int32_t>(std::int64_t{2147483648}), Failure);
}

TEST(Failure, EndsItsEventAloneAtTheEdge) {
    Bench bench;
    bench.start();
    int done = 0;
    endingEventOnFailure(bench.program().platform.lifetime, [&] {
        ++done;
        throw Failure(ErrorNumber::Overflow);
    });
    bench.play({{"do", "activate"}});
    EXPECT_EQ(done, 1);
    EXPECT_EQ(
        bench.events(),
        Json::array({{{"event", "unhandledError"}, {"number", 6}, {"description", "Overflow"}}}));
}

}  // namespace
}  // namespace orvanta::test
