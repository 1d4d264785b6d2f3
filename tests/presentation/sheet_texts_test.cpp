#include "presentation/sheet_texts.h"

#include <gtest/gtest.h>

namespace orvanta::test {
namespace {

TEST(QuestionSheet, TellsItsPageAndHowManyThereAre) { EXPECT_EQ(pageOf(2, 13), "page 2 of 13"); }

}  // namespace
}  // namespace orvanta::test
