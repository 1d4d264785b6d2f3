#include "questions/clip_names.h"

#include <gtest/gtest.h>

namespace orvanta::test {
namespace {

TEST(ClipName, IsModuleLetterAndNumberWithoutZerosAhead) {
    EXPECT_EQ(clipName("gbs", StatementKind::Strength, 1), "gbs_S1");
    EXPECT_EQ(clipName("hrp", StatementKind::Weakness, 9), "hrp_W9");
    EXPECT_EQ(clipName("mp", StatementKind::Opportunity, 10), "mp_O10");
    EXPECT_EQ(clipName("sbd", StatementKind::Threat, 123), "sbd_T123");
}

}  // namespace
}  // namespace orvanta::test
