#pragma once

#include "presentation/question_sheets.h"
#include "view/platform.h"

class QPrinter;

namespace orvanta::desktop {

/// Prints the sheets on the printer's paper, or nothing if it can not be written to.
void printQuestionSheets(QPrinter& printer, const QuestionSheets& sheets);

/// Shows the sheets as they will be on paper, on A4 or Letter; printing, on a printer or into a
/// PDF file, starts from there. Where there is no question it says which file should hold them.
class PreviewingPrinter : public QuestionPrinter {
public:
    void print(const QuestionSheets& sheets) override;
};

}  // namespace orvanta::desktop
