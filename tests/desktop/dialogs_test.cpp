#include "desktop/dialogs.h"

#include <gtest/gtest.h>

#include <QLineEdit>
#include <QPushButton>
#include <QtTest>

#include "bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

template <class Widget = QWidget>
Widget& part(QDialog& dialog, const char* name) {
    return *dialog.findChild<Widget*>(QLatin1String(name));
}

/// The real dialog over a strength that reads "Old".
class EditDialogView : public testing::Test {
protected:
    EditDialogView() {
        bench.start();
        bench.list("lvBStrength").add({.key = "S1", .text = "Old"});
        bench.list("lvBStrength").select(1);
        form.fromControl = "BS";
        form.txtEdit.setText("New");
        dialog.show();
    }
    std::string text() { return bench.list("lvBStrength").row(1).text; }

    Bench bench;
    FrmEdit form;
    EditDialog dialog{bench.program(), form, nullptr};
};

class AboutBoxView : public testing::Test {
protected:
    AboutBoxView() {
        bench.start();
        dialog.show();
    }

    Bench bench;
    FrmAbout form;
    AboutDialog dialog{bench.program(), form, nullptr};
};

}  // namespace

TEST_F(EditDialogView, StaysOpenAtEscape) {
    for (const char* name : {"txtEdit", "imgBtnOk", "imgBtnCancel"})
        QTest::keyClick(&part(dialog, name), Qt::Key_Escape);
    EXPECT_TRUE(form.open);
    EXPECT_TRUE(dialog.isVisible());
}

TEST_F(EditDialogView, StoresByThePictureAndTheCaptionOfOk) {
    for (const char* name : {"imgBtnOk", "lblBtnOk"}) {
        bench.list("lvBStrength").setText(1, "Old");
        form.open = true;
        QTest::mouseClick(&part(dialog, name), Qt::LeftButton);
        EXPECT_EQ(text(), "New") << name;
        EXPECT_FALSE(dialog.isVisible()) << name;
        dialog.show();
    }
}

TEST_F(EditDialogView, StoresNothingByThePictureAndTheCaptionOfCancel) {
    for (const char* name : {"imgBtnCancel", "lblBtnCancel"}) {
        form.open = true;
        QTest::mouseClick(&part(dialog, name), Qt::LeftButton);
        EXPECT_EQ(text(), "Old") << name;
        EXPECT_FALSE(dialog.isVisible()) << name;
        dialog.show();
    }
    EXPECT_FALSE(bench.form().editFlag);
}

TEST_F(EditDialogView, StoresNothingWhenItsWindowIsClosed) {
    dialog.close();
    EXPECT_FALSE(form.open);
    EXPECT_EQ(text(), "Old");
}

TEST_F(EditDialogView, BeginsBehindTheTextWithNothingChosen) {
    QCoreApplication::processEvents();
    const auto& box = part<QLineEdit>(dialog, "txtEdit");
    EXPECT_FALSE(box.hasSelectedText());
    EXPECT_EQ(box.cursorPosition(), 3);
}

TEST_F(AboutBoxView, ClosesByOkByEscapeAndByItsWindow) {
    QTest::mouseClick(&part(dialog, "cmdOK"), Qt::LeftButton);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_FALSE(form.open);
    const auto reopen = [this] {
        form.open = true;
        dialog.show();
    };
    reopen();
    QTest::keyClick(&dialog, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    reopen();
    dialog.close();
    EXPECT_FALSE(form.open);
}

TEST_F(AboutBoxView, OpensTheSupportPageByItsLinkAndStays) {
    QTest::mouseClick(&part(dialog, "lblSupport"), Qt::LeftButton);
    bench.play({{"do", "activate"}});
    EXPECT_EQ(
        bench.events("open"),
        Json::array({{{"event", "open"}, {"target", "http://www.orvanta.example/support/"}}}));
    EXPECT_TRUE(dialog.isVisible());
}

}  // namespace orvanta::test
