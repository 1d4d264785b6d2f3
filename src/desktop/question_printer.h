#pragma once

#include <QTextDocument>
#include <memory>

#include "presentation/question_sheets.h"

namespace orvanta::desktop {

/// The sheets of one module: name and date, then each question with ruled lines below it.
std::unique_ptr<QTextDocument> questionDocument(const QuestionSheets& sheets);

/// Shows the sheets as they will be on paper; printing starts from there.
class PreviewingPrinter : public QuestionPrinter {
public:
    void print(const QuestionSheets& sheets) override;
};

}  // namespace orvanta::desktop
