#include "desktop/letter_widths.h"

#include "desktop/statement_row_painter.h"

namespace orvanta::desktop {

LetterWidths::LetterWidths(const QFontMetrics& metrics) {
    const QFontMetricsF exact(metrics);
    for (std::size_t code = 0; code < m_widths.size(); ++code) {
        const char letter = static_cast<char>(code);
        m_widths[code] = static_cast<float>(exact.horizontalAdvance(lineOf({&letter, 1})));
    }
}

double LetterWidths::of(std::string_view text) const {
    float width = 0;
    for (const char letter : text) width += m_widths[static_cast<unsigned char>(letter)];
    return width;
}

}  // namespace orvanta::desktop
