#include "desktop/letter_widths.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/statement_row_painter.h"

namespace orvanta::test {
namespace {

TEST(LetterWidths, AddUpToNearlyTheWidthOfATextLaidOut) {
    const QFontMetrics metrics(QApplication::font());
    const desktop::LetterWidths widths(metrics);
    for (const char* text : {"", "Loyal customers", "AVAVAVAV fi ffi", "caf\xe9 \x80 20", "a\tb"})
        EXPECT_NEAR(widths.of(text), metrics.horizontalAdvance(desktop::lineOf(text)),
                    2 + 0.05 * widths.of(text))
            << text;
}

}  // namespace
}  // namespace orvanta::test
