#include "presentation/sheet_texts.h"

#include <gtest/gtest.h>

namespace orvanta::test {
namespace {

TEST(QuestionSheet, TellsItsPageAndHowManyThereAre) { EXPECT_EQ(pageOf(2, 13), "page 2 of 13"); }

TEST(QuestionSheet, SaysWhereAKindGoesOn) {
    EXPECT_EQ(headingOf(StatementKind::Threat, true), "Threats");
    EXPECT_EQ(headingOf(StatementKind::Threat, false), "Threats, continued");
}

}  // namespace
}  // namespace orvanta::test
