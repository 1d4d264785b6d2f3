#include "desktop/question_printer.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QGraphicsView>
#include <QLineEdit>
#include <QLocale>
#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QProcess>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolButton>
#include <functional>

#include "desktop/message_box.h"
#include "desktop/theme.h"
#include "own_pictures.h"
#include "printed_sheets.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

/// The preview of a module with one question of each kind.
class PrintPreview : public testing::Test {
protected:
    ~PrintPreview() override { QLocale::setDefault(QLocale::system()); }

    void show(const std::function<void(QPrintPreviewDialog&)>& look,
              const std::string& title = "Sales & Business Development") {
        bool shown = false;
        QTimer::singleShot(0, [&] {
            auto* preview = dynamic_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(preview);
            look(*preview);
            shown = true;
            preview->reject();
        });
        QuestionSheets sheets{"sbd", title, {}};
        for (const StatementKind kind : statementKinds)
            sheets.questions[kind] = {std::string(nameOf(kind)) + "?"};
        PreviewingPrinter().print(sheets);
        EXPECT_TRUE(shown);
    }

    static QComboBox& paperOf(QPrintPreviewDialog& preview) {
        for (QComboBox* box : preview.findChildren<QComboBox*>())
            if (box->accessibleName() == QLatin1String("Paper")) return *box;
        throw std::logic_error("the preview offers no paper");
    }
    static QPageSize::PageSizeId sizeOf(QPrintPreviewDialog& preview) {
        return preview.printer()->pageLayout().pageSize().id();
    }
};

class QuestionSheetPdf : public testing::Test {
protected:
    QuestionSheetPdf() {
        printer.setOutputFormat(QPrinter::PdfFormat);
        printer.setOutputFileName(m_path);
        printer.setPageSize(QPageSize(QPageSize::A4));
    }

    QString printed(const QuestionSheets& sheets) {
        printQuestionSheets(printer, sheets);
        QProcess reader;
        reader.start(QStringLiteral("pdftotext"), {QStringLiteral("-layout"), m_path, "-"});
        EXPECT_TRUE(reader.waitForFinished()) << "pdftotext is needed";
        return QString::fromUtf8(reader.readAllStandardOutput());
    }

    QPrinter printer{QPrinter::HighResolution};

private:
    QTemporaryDir m_folder;
    QString m_path = m_folder.filePath(QStringLiteral("sheets.pdf"));
};

}  // namespace

TEST_F(PrintPreview, HasThePicturesOfTheProgramOnItsButtons) {
    show([](QPrintPreviewDialog& preview) {
        int actions = 0;
        for (const QToolButton* button : preview.findChildren<QToolButton*>()) {
            EXPECT_TRUE(isOwnPicture(button->icon())) << button->text().toStdString();
            actions += button->defaultAction() ? 1 : 0;
        }
        EXPECT_EQ(actions, 15);
    });
}

TEST_F(PrintPreview, LaysItsPagesOnTheGroundOfTheWindow) {
    show([](QPrintPreviewDialog& preview) {
        const auto& pages = *preview.findChild<QGraphicsView*>();
        EXPECT_EQ(pages.scene()->backgroundBrush().color(), theme::hairline);
    });
}

TEST_F(PrintPreview, ShowsTheSheetsUnderTheNameOfTheModule) {
    show([](QPrintPreviewDialog& preview) {
        EXPECT_EQ(preview.windowTitle(), QStringLiteral("Sales & Business Development"));
        EXPECT_EQ(preview.findChild<QPrintPreviewWidget*>()->pageCount(), 4);
    });
}

TEST_F(PrintPreview, BeginsWithThePaperOfTheCountry) {
    struct Country {
        const char* name;
        QPageSize::PageSizeId size;
    };
    for (const Country& country : {Country{"en_US", QPageSize::Letter}, {"de_DE", QPageSize::A4}}) {
        QLocale::setDefault(QLocale(QLatin1String(country.name)));
        show([&](QPrintPreviewDialog& preview) {
            EXPECT_EQ(sizeOf(preview), country.size) << country.name;
            EXPECT_EQ(paperOf(preview).currentData().value<QPageSize::PageSizeId>(), country.size);
        });
    }
}

TEST_F(PrintPreview, TakesTheOtherPaperFromItsChoice) {
    QLocale::setDefault(QLocale(QStringLiteral("de_DE")));
    show([](QPrintPreviewDialog& preview) {
        paperOf(preview).setCurrentIndex(1);
        EXPECT_EQ(sizeOf(preview), QPageSize::Letter);
        EXPECT_EQ(preview.findChild<QPrintPreviewWidget*>()->pageCount(), 4);
    });
}

TEST_F(PrintPreview, OffersANameThatAPdfFileCanHave) {
    const auto look = [](QPrintPreviewDialog& preview) {
        preview.printer()->setOutputFormat(QPrinter::PdfFormat);
        QPrintDialog dialog(preview.printer());
        const auto* name = dialog.findChild<QLineEdit*>(QStringLiteral("filename"));
        ASSERT_TRUE(name);
        const QFileInfo offered(name->text());
        EXPECT_EQ(offered.fileName(), QStringLiteral("Product-Service.pdf"));
        EXPECT_TRUE(offered.absoluteDir().exists()) << name->text().toStdString();
    };
    show(look, "Product/Service");
}

TEST_F(PrintPreview, GivesWayToTheFileThatShouldHoldTheQuestionsWhereThereAreNone) {
    QString said;
    QTimer::singleShot(0, [&said] {
        QWidget* shown = QApplication::activeModalWidget();
        if (auto* box = dynamic_cast<MessageBox*>(shown)) said = box->text();
        shown->close();
    });
    QuestionSheets sheets = sheetsWith(0);
    sheets.bankPath = "app/mpquestions.txt";
    PreviewingPrinter().print(sheets);
    EXPECT_EQ(said, QStringLiteral("There are no questions to print. They should be in this "
                                   "file:\napp/mpquestions.txt"));
}

TEST_F(QuestionSheetPdf, HoldsTheModuleTheKindsTheQuestionsAndThePageNumbers) {
    const QString text = printed(sheetsWith(8));
    const auto pages = text.count('\f');
    EXPECT_GE(pages, 4);
    for (const char* expected : {"Marketing", "Strengths", "Threats", "Name", "Date",
                                 "S1: What do we do well?", "T8: What do we do well?"})
        EXPECT_TRUE(text.contains(QLatin1String(expected))) << expected;
    EXPECT_TRUE(text.contains(QStringLiteral("page %1 of %1").arg(pages)));
}

TEST_F(QuestionSheetPdf, SaysOnEachPageWhoseItIsAndWhereAKindGoesOn) {
    const QStringList pages = printed(sheetsWith(12)).split('\f', Qt::SkipEmptyParts);
    ASSERT_GT(pages.size(), 4);
    for (const QString& page : pages) {
        EXPECT_TRUE(page.contains(QStringLiteral("Name"))) << page.toStdString();
        EXPECT_NE(page.contains(QStringLiteral("continued")), page.contains(QStringLiteral("Date")))
            << page.toStdString();
    }
}

TEST_F(QuestionSheetPdf, HoldsThePagesThatWereAskedFor) {
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(2, 3);
    const QString text = printed(sheetsWith(1));
    EXPECT_EQ(text.count('\f'), 2);
    EXPECT_TRUE(text.contains(QStringLiteral("page 2 of 4"))) << text.toStdString();
    EXPECT_TRUE(text.contains(QStringLiteral("page 3 of 4"))) << text.toStdString();
}

TEST_F(QuestionSheetPdf, IsNotWrittenForPagesThatThereAreNot) {
    printer.setPrintRange(QPrinter::PageRange);
    printer.setFromTo(5, 9);
    printQuestionSheets(printer, sheetsWith(1));
    EXPECT_FALSE(QFile::exists(printer.outputFileName()));
}

}  // namespace orvanta::test
