#include "desktop/question_printer.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGraphicsScene>
#include <QGraphicsView>
#include <QLineEdit>
#include <QLocale>
#include <QPageRanges>
#include <QPainter>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QToolBar>
#include <utility>

#include "desktop/art.h"
#include "desktop/conversions.h"
#include "desktop/enlargement.h"
#include "desktop/file_chooser.h"
#include "desktop/question_sheet_pages.h"
#include "desktop/screen_room.h"
#include "desktop/theme.h"
#include "presentation/sheet_texts.h"
#include "view/path_text.h"

namespace orvanta::desktop {

namespace {

QPageSize::PageSizeId usualPaper() {
    return QLocale().measurementSystem() == QLocale::ImperialUSSystem ? QPageSize::Letter
                                                                      : QPageSize::A4;
}

/// Of the dialog's two boxes: the other one is that of the magnification.
bool isPageBox(const QLineEdit& box) { return !qobject_cast<QComboBox*>(box.parentWidget()); }

/// Lets a person choose the paper. The dialog's own page setup refuses to show where there is no
/// printer.
void addPaperChoice(QPrintPreviewDialog& preview, QPrinter& printer) {
    auto* tools = preview.findChild<QToolBar*>();
    auto* pages = preview.findChild<QPrintPreviewWidget*>();
    if (!tools || !pages) return;
    auto* choice = new QComboBox(tools);
    choice->setAccessibleName(fromCp1252(paperBox));
    choice->setToolTip(fromCp1252(paperBox));
    for (const auto size : {QPageSize::A4, QPageSize::Letter})
        choice->addItem(QPageSize::name(size), size);
    choice->setCurrentIndex(choice->findData(usualPaper()));
    QObject::connect(choice, &QComboBox::currentIndexChanged, &preview, [=, &printer] {
        printer.setPageSize(QPageSize(choice->currentData().value<QPageSize::PageSizeId>()));
        pages->updatePreview();
    });
    tools->addWidget(choice);
    for (QLineEdit* box : preview.findChildren<QLineEdit*>())
        if (isPageBox(*box)) QWidget::setTabOrder(box, choice);  // not from the pages below
}

/// The dialog leaves its two boxes, the magnification and the page, without a name.
void nameBoxes(QPrintPreviewDialog& preview) {
    for (QLineEdit* box : preview.findChildren<QLineEdit*>())
        box->setAccessibleName(fromCp1252(isPageBox(*box) ? pageBox : zoomBox));
}

/// The program's own pictures in place of the toolkit's, which are made for one size, and a ground
/// of the window's colours.
void dress(QPrintPreviewDialog& preview) {
    constexpr std::pair<const char*, const char*> pictures[] = {
        {"Fit width", "fit_width"},
        {"Fit page", "fit_page"},
        {"Zoom in", "zoom_in"},
        {"Zoom out", "zoom_out"},
        {"Portrait", "portrait"},
        {"Landscape", "landscape"},
        {"First page", "page_first"},
        {"Previous page", "page_previous"},
        {"Next page", "page_next"},
        {"Last page", "page_last"},
        {"Show single page", "pages_single"},
        {"Show facing pages", "pages_facing"},
        {"Show overview of all pages", "pages_all"},
        {"Page setup", "page_setup"},
        {"Print", "print"},
    };
    for (QAction* action : preview.findChildren<QAction*>())
        for (const auto& [words, name] : pictures)
            if (action->text() == QPrintPreviewDialog::tr(words))
                action->setIcon(pictureIcon(QLatin1String(name)));
    for (QGraphicsView* pages : preview.findChildren<QGraphicsView*>())
        pages->scene()->setBackgroundBrush(theme::hairline);
}

/// False for a page, from 1, that the person has left out in the print dialog.
bool isWanted(const QPrinter& printer, int page) {
    return printer.printRange() != QPrinter::PageRange || printer.pageRanges().contains(page);
}

void tellWhatIsMissing(const QuestionSheets& sheets) {
    const FileChoice missing{.act = FileChoiceAct::Refuse,
                             .path = nativeFromPath(sheets.bankPath),
                             .reason = nothingToPrint};
    boxOfRefusal(missing, QApplication::activeWindow())->exec();
}

}  // namespace

void printQuestionSheets(QPrinter& printer, const QuestionSheets& sheets) {
    const QSizeF printable = printer.pageRect(QPrinter::DevicePixel).size();
    const std::vector<SheetPage> pages = sheetPages(sheets, printable, printer);
    QPainter painter;  // begins with the first page, as it would print an empty one for none
    for (std::size_t page = 0; page < pages.size(); ++page) {
        if (!isWanted(printer, static_cast<int>(page) + 1)) continue;
        if (painter.isActive())
            printer.newPage();
        else if (!painter.begin(&printer))
            return;
        paintSheetPage(painter, sheets, pages, page, printable);
    }
}

void PreviewingPrinter::print(const QuestionSheets& sheets) {
    if (isEmpty(sheets)) return tellWhatIsMissing(sheets);
    const QString title = fromCp1252(sheets.title);
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(fromCp1252(documentNameOf(sheets)));  // also that of a PDF file
    printer.setPageSize(QPageSize(usualPaper()));
    printer.setPageMargins({20, 16, 20, 12}, QPageLayout::Millimeter);
    QPrintPreviewDialog preview(&printer, QApplication::activeWindow());
    preview.setWindowTitle(title);
    constexpr QSize roomy{900, 760};
    preview.resize(enlarged(roomy).boundedTo(roomForWindow()));
    dress(preview);
    nameBoxes(preview);
    addPaperChoice(preview, printer);
    QObject::connect(&preview, &QPrintPreviewDialog::paintRequested,
                     [&](QPrinter* paper) { printQuestionSheets(*paper, sheets); });
    preview.exec();
}

}  // namespace orvanta::desktop
