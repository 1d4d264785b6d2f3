#include "desktop/row_fit.h"

#include <algorithm>
#include <cmath>

namespace orvanta::desktop {

namespace {

/// Lines end at words and so are seldom full.
constexpr double raggedness = 1.2;

}  // namespace

void RowFit::measure(const QFontMetrics& metrics, int rowWidth) {
    if (!m_metrics || *m_metrics != metrics) m_letters.emplace(metrics);
    m_metrics = metrics;
    m_rowWidth = rowWidth;
    m_mostOfOne = m_mostOfTwo = m_widest = 0;
    for (int position = 1; position <= m_list.count(); ++position) include(position);
}

bool RowFit::include(int position) {
    if (!m_letters) return false;
    const Row& row = m_list.row(position);
    const double width = m_letters->of(row.text);
    const auto linesOf = [&](int lines) {
        return width /
               std::max(1, textRoom(row, m_rowWidth, lines, m_counts, *m_letters, m_lengths));
    };
    const double ofOne = linesOf(1);
    const bool differs = (ofOne > 1 && m_mostOfOne <= 1) || width > m_widest;
    m_mostOfOne = std::max(m_mostOfOne, ofOne);
    m_mostOfTwo = std::max(m_mostOfTwo, linesOf(2));
    m_widest = std::max(m_widest, width);
    return differs;
}

int RowFit::linesToRead(int width) const {
    if (linesPerRow() == 1 || m_mostOfTwo * raggedness <= 2) return 0;
    return static_cast<int>(std::ceil(m_widest * raggedness / std::max(1, width)));
}

}  // namespace orvanta::desktop
