#include <gtest/gtest.h>

#include <QApplication>
#include <QComboBox>
#include <QLocale>
#include <QPrintPreviewDialog>
#include <QPrintPreviewWidget>
#include <QPrinter>
#include <QTimer>
#include <functional>

#include "desktop/question_printer.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

/// The preview of a module with one question of each kind.
class PrintPreview : public testing::Test {
protected:
    ~PrintPreview() override { QLocale::setDefault(QLocale::system()); }

    void show(const std::function<void(QPrintPreviewDialog&)>& look) {
        bool shown = false;
        QTimer::singleShot(0, [&] {
            auto* preview = dynamic_cast<QPrintPreviewDialog*>(QApplication::activeModalWidget());
            ASSERT_TRUE(preview);
            look(*preview);
            shown = true;
            preview->reject();
        });
        QuestionSheets sheets{"sbd", "Sales & Business Development", {}};
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

}  // namespace

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

}  // namespace orvanta::test
