#include "desktop/last_copy.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

namespace orvanta::test {

using desktop::LastCopy;

// That it is made at the end of a display is seen from outside, in life_test.py.

TEST(LastCopy, BelongsToTheApplicationAsLongAsItLives) {
    QCoreApplication& application = *QCoreApplication::instance();
    const auto before = application.children().size();
    {
        int copies = 0;
        const LastCopy last(application, [&copies] { ++copies; });
        ASSERT_EQ(application.children().size(), before + 1);
        dynamic_cast<const LastCopy&>(*application.children().back()).make();
        EXPECT_EQ(copies, 1);
    }
    EXPECT_EQ(application.children().size(), before);
}

}  // namespace orvanta::test
