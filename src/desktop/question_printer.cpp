#include "desktop/question_printer.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <array>

#include "core/statement_kind.h"
#include "desktop/conversions.h"
#include "desktop/theme.h"

namespace orvanta::desktop {

namespace {

constexpr std::array<const char*, 4> headings{"Strengths", "Weaknesses", "Opportunities",
                                              "Threats"};
constexpr auto ruledLine =
    "<table width='100%' cellspacing='0' cellpadding='0'><tr><td style='border-bottom:1px solid "
    "#8a94a8'><p style='font-size:15pt'>&nbsp;</p></td></tr></table>";

QString questionHtml(int number, const std::string& question) {
    constexpr int answerLines = 3;
    QString html = QStringLiteral("<p style='margin-top:10px; margin-bottom:0'>%1.&nbsp; %2</p>")
                       .arg(number)
                       .arg(fromCp1252(question).toHtmlEscaped());
    for (int line = 0; line < answerLines; ++line) html += QLatin1String(ruledLine);
    return html;
}

QString headHtml(const QuestionSheets& sheets) {
    return QStringLiteral(
               "<h1 style='color:#003399; margin-bottom:4px'>%1</h1>"
               "<table width='100%' cellspacing='0' cellpadding='4'><tr>"
               "<td width='65%' style='border-bottom:1px solid #8a94a8'>Name:</td>"
               "<td width='35%' style='border-bottom:1px solid #8a94a8'>Date:</td>"
               "</tr></table>")
        .arg(fromCp1252(sheets.title).toHtmlEscaped());
}

void printPage(QPainter& painter, const QTextDocument& document, int page, int pageCount) {
    const QSizeF size = document.pageSize();
    painter.save();
    painter.translate(0, -page * size.height());
    QAbstractTextDocumentLayout::PaintContext context;
    context.clip = QRectF(0, page * size.height(), size.width(), size.height());
    context.palette.setColor(QPalette::Text, Qt::black);
    document.documentLayout()->draw(&painter, context);
    painter.restore();
    const QRectF foot(0, size.height(), size.width(), 2 * painter.fontMetrics().height());
    painter.setPen(theme::quietInk);
    painter.drawText(foot, Qt::AlignHCenter | Qt::AlignBottom,
                     QStringLiteral("%1 / %2").arg(page + 1).arg(pageCount));
}

/// Lays the document out for the paper and prints it, a page number at the foot of each page.
void printOn(QPrinter& printer, QTextDocument& document) {
    QPainter painter(&printer);
    if (!painter.isActive()) return;
    document.documentLayout()->setPaintDevice(&printer);
    QFont font = document.defaultFont();
    painter.setFont(font);
    const double footHeight = 2.0 * painter.fontMetrics().height();
    const QSizeF paper = printer.pageRect(QPrinter::DevicePixel).size();
    document.setPageSize({paper.width(), paper.height() - footHeight});
    const int pageCount = document.pageCount();
    for (int page = 0; page < pageCount; ++page) {
        if (page > 0) printer.newPage();
        printPage(painter, document, page, pageCount);
    }
}

}  // namespace

std::unique_ptr<QTextDocument> questionDocument(const QuestionSheets& sheets) {
    QString html = headHtml(sheets);
    for (const StatementKind kind : statementKinds) {
        html +=
            QStringLiteral("<h2 style='color:#003399; margin-top:22px; margin-bottom:0'>%1</h2>")
                .arg(QLatin1String(headings[indexOf(kind)]));
        int number = 0;
        for (const std::string& question : sheets.questions[indexOf(kind)])
            html += questionHtml(++number, question);
    }
    auto document = std::make_unique<QTextDocument>();
    QFont font(QStringList{QStringLiteral("Verdana"), QStringLiteral("DejaVu Sans")});
    font.setPointSizeF(9);
    document->setDefaultFont(font);
    document->setDocumentMargin(0);
    document->setHtml(html);
    return document;
}

void PreviewingPrinter::print(const QuestionSheets& sheets) {
    const auto document = questionDocument(sheets);
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(fromCp1252(sheets.title));
    printer.setPageMargins({20, 18, 20, 14}, QPageLayout::Millimeter);
    QPrintPreviewDialog preview(&printer, QApplication::activeWindow());
    preview.setWindowTitle(fromCp1252(sheets.title));
    preview.resize(900, 760);
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested,
                     [&](QPrinter* paper) { printOn(*paper, *document); });
    preview.exec();
}

}  // namespace orvanta::desktop
