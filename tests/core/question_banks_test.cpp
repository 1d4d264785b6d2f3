#include "core/question_banks.h"

#include <gtest/gtest.h>

#include "bench.h"
#include "failure_of.h"

namespace orvanta::test {
namespace {

TEST(QuestionNumber, CountsFromOne) {
    const Texts questions{"first", "last"};
    EXPECT_EQ(questionAt(questions, 1), "first");
    EXPECT_EQ(questionAt(questions, 2), "last");
}

class QuestionNumberBeside : public testing::TestWithParam<int> {};
INSTANTIATE_TEST_SUITE_P(All, QuestionNumberBeside, testing::Values(-1, 0, 3));

TEST_P(QuestionNumberBeside, IsAnError) {
    const Texts questions{"first", "last"};
    EXPECT_EQ(failureOf([&] { questionAt(questions, GetParam()); }), 9);
}

}  // namespace
}  // namespace orvanta::test
