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
    m_most = m_widest = 0;
    for (int position = 1; position <= m_list.count(); ++position) include(position);
}

bool RowFit::include(int position) {
    if (!m_letters) return false;
    const Row& row = m_list.row(position);
    const double width = m_letters->of(row.text);
    const double lines =
        width / std::max(1, textRoom(row, m_rowWidth, m_counts, *m_metrics, m_lengths));
    const bool differs = (lines > 1 && m_most <= 1) || width > m_widest;
    m_most = std::max(m_most, lines);
    m_widest = std::max(m_widest, width);
    return differs;
}

int RowFit::linesToRead(int width) const {
    if (m_most * raggedness <= linesPerRow()) return 0;
    return m_most <= 1 ? 0
                       : static_cast<int>(std::ceil(m_widest * raggedness / std::max(1, width)));
}

}  // namespace orvanta::desktop
