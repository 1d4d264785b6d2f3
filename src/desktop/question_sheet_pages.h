#pragma once

#include <QString>
#include <vector>

#include "core/statement_kind.h"
#include "presentation/question_sheets.h"

class QPainter;
class QPaintDevice;
class QSizeF;

namespace orvanta::desktop {

/// One line of a sheet: text of a question, or a rule to write on where the text is empty.
struct SheetLine {
    double bottom = 0;  // from the top of the page's printable area, in pixels of the paper
    QString number;     // on the first line of a question, else empty
    QString text;

    bool isRule() const { return text.isEmpty() && number.isEmpty(); }
};

struct SheetPage {
    StatementKind kind;
    bool opensKind = false;  // else it goes on with the questions of its kind
    std::vector<SheetLine> lines;
};

/// The pages of a module's questions for paper with this printable size, in pixels of the device.
/// Each kind begins on a page of its own, and a question stays on one page with its rules unless
/// it is longer than a page.
std::vector<SheetPage> sheetPages(const QuestionSheets& sheets, const QSizeF& printable,
                                  const QPaintDevice& device);

/// Paints one of the pages, from 0, into the printable area of the painter's device.
void paintSheetPage(QPainter& painter, const QuestionSheets& sheets,
                    const std::vector<SheetPage>& pages, std::size_t index,
                    const QSizeF& printable);

}  // namespace orvanta::desktop
