#pragma once

#include <optional>

#include "analyze/mapping_counts.h"
#include "desktop/letter_widths.h"
#include "desktop/statement_row_painter.h"
#include "view/statement_list.h"

namespace orvanta::desktop {

/// How many lines the rows of a list need: all of one height, so that a long list stays fast.
class RowFit {
public:
    /// `counts`: what is told at the end of parent rows; null for none.
    RowFit(const StatementList& list, const MappingCounts* counts)
        : m_list(list), m_counts(counts) {}

    /// Measures every row in rows of this width.
    void measure(const QFontMetrics& metrics, int rowWidth);
    /// Measures one row more; true if the answers below differ now.
    bool include(int position);

    /// 1 while every statement fits on a line, else 2.
    int linesPerRow() const { return m_mostOfOne > 1 ? 2 : 1; }
    /// How many lines of this width show any statement whole; 0 if the rows do so.
    int linesToRead(int width) const;

private:
    const StatementList& m_list;
    const MappingCounts* m_counts;
    std::optional<QFontMetrics> m_metrics;
    std::optional<LetterWidths> m_letters;
    RowLengths m_lengths;
    int m_rowWidth = 0;
    // The most lines that a text needs in its row, while rows have one and two.
    double m_mostOfOne = 0, m_mostOfTwo = 0;
    double m_widest = 0;  // pixels of the longest text
};

}  // namespace orvanta::desktop
