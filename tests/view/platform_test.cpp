#include "view/platform.h"

#include <gtest/gtest.h>

#include <vector>

namespace orvanta::test {
namespace {

using Answers = std::vector<MessageAnswer>;

Answers offeredBy(MessageButtons buttons) {
    const auto answers = answersOf(buttons);
    return {answers.begin(), answers.end()};
}

TEST(MessageBox, OffersAnAnswerForEachButtonAndLastTheOneThatClosingItGives) {
    EXPECT_EQ(offeredBy(MessageButtons::Ok), Answers{MessageAnswer::Ok});
    EXPECT_EQ(offeredBy(MessageButtons::YesNo), (Answers{MessageAnswer::Yes, MessageAnswer::No}));
    EXPECT_EQ(offeredBy(MessageButtons::YesNoCancel),
              (Answers{MessageAnswer::Yes, MessageAnswer::No, MessageAnswer::Cancel}));
}

}  // namespace
}  // namespace orvanta::test
