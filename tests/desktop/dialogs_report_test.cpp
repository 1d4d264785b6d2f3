#include <gtest/gtest.h>

#include <QPushButton>
#include <QTimer>
#include <QtTest>

#include "desktop/platform.h"
#include "report_bench.h"
#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

/// Counts how often a widget is painted.
class Paintings : public QObject {
public:
    bool eventFilter(QObject*, QEvent* event) override {
        count += event->type() == QEvent::Paint;
        return false;
    }
    int count = 0;
};

/// The real report dialog before a program whose documents are made by a word processor that
/// looks at the dialog first. OK is pressed as soon as the dialog has come up.
class ReportDialogView : public testing::Test, private WordProcessors {
protected:
    ReportDialogView() {
        bench.disk.files["docs/team.aze"] = smallAnalysis().bytes();
        bench.start();
        forms.setProgram(program);
    }

    enum class Ok { Clicked, EnterInTheTextBox };

    void makeDocument(Ok ok = Ok::Clicked) {
        FrmReportType form;
        form.txtEdit.setText("docs/team.aze");
        bench.answerFile("docs/team.rtf");
        QTimer::singleShot(0, [this, ok] { pressOk(ok); });
        forms.run(form);
    }

    Bench bench;
    Paintings paintings;  // of the wait text
    bool waitTextShown = false, buttonShown = true, enabled = true;
    int painted = 0, documents = 0;
    std::optional<Qt::CursorShape> cursor;
    std::function<void()> whileMaking = [] {};

private:
    WordObjectPtr createApplication() override {
        ++documents;
        QWidget* dialog = QApplication::activeModalWidget();
        waitTextShown = widget("lblGenerating").isVisible();
        buttonShown = widget("OKButton").isVisible();
        enabled = widget("txtEdit").isEnabled();
        painted = paintings.count;
        if (QApplication::overrideCursor()) cursor = QApplication::overrideCursor()->shape();
        EXPECT_TRUE(dialog && dialog->isVisible());
        return m_writer.createApplication();
    }

    static QWidget& widget(const char* name) {
        return *QApplication::activeModalWidget()->findChild<QWidget*>(QLatin1String(name));
    }

    void pressOk(Ok ok) {
        // Nothing is painted in a window that is not on the screen yet.
        ASSERT_TRUE(QTest::qWaitForWindowExposed(QApplication::activeModalWidget()));
        widget("lblGenerating").installEventFilter(&paintings);
        if (ok == Ok::Clicked)
            QTest::mouseClick(&widget("OKButton"), Qt::LeftButton);
        else
            QTest::keyClick(&widget("txtEdit"), Qt::Key_Return);
    }

    DocumentWriter m_writer{bench.disk};
    DesktopForms forms;
    Platform m_platform = withOthers(bench.program().platform, forms, *this);
    Program program{m_platform, "app", "app"};
};

}  // namespace

TEST_F(ReportDialogView, ShowsTheWaitTextInPlaceOfAllElseWhileADocumentIsMade) {
    makeDocument();
    EXPECT_TRUE(waitTextShown);
    EXPECT_FALSE(buttonShown || enabled);
}

TEST_F(ReportDialogView, HasPaintedTheWaitTextBeforeADocumentIsBegun) {
    makeDocument();
    EXPECT_GE(painted, 1);
}

TEST_F(ReportDialogView, ShowsTheWaitCursorWhileADocumentIsMadeAndNotAfterwards) {
    makeDocument();
    EXPECT_EQ(cursor, Qt::WaitCursor);
    EXPECT_FALSE(QApplication::overrideCursor());
}

TEST_F(ReportDialogView, ClosesBehindADocumentAndOpensIt) {
    makeDocument();
    EXPECT_FALSE(QApplication::activeModalWidget());
    bench.play({{"do", "state"}});
    EXPECT_EQ(bench.events("open"),
              Json::array({{{"event", "open"}, {"target", "docs/team.rtf"}}}));
}

TEST_F(ReportDialogView, TakesEnterInTheTextBoxForOkOnce) {
    makeDocument(Ok::EnterInTheTextBox);
    EXPECT_EQ(documents, 1);
    EXPECT_FALSE(QApplication::activeModalWidget());
    bench.play({{"do", "state"}});
    EXPECT_EQ(bench.events("open"),
              Json::array({{{"event", "open"}, {"target", "docs/team.rtf"}}}));
}

}  // namespace orvanta::test
