#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QLabel>
#include <QLineEdit>
#include <QTextEdit>
#include <QtTest>

#include "desktop/dialogs.h"
#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

const std::string hostile = "<b>x<img src=x.png> & y";
const QString shown = fromCp1252(hostile);

/// The window of a leader who got a file whose name, author and statements hold markup.
class ReceivedTexts : public testing::Test {
protected:
    ReceivedTexts() {
        bench.start();
        bench.window().show();
        bench.click("Analyze");
        bench.addSource("docs/" + hostile + ".bsm", hostile, {hostile}, {}, {hostile}, {});
    }

    void hover(const char* list) { bench.play({{"do", "hover"}, {"list", list}, {"row", 1}}); }

    QString textOfRow(const char* list, int role = Qt::DisplayRole) {
        const auto& view = bench.widget<QAbstractItemView>(list);
        return view.model()->index(0, 0).data(role).toString();
    }

    /// All that Qt would take for markup unless it is told otherwise.
    void expectNothingIsMarkup() {
        for (const QWidget* widget : bench.window().findChildren<QWidget*>()) {
            const QString name = widget->objectName();
            EXPECT_FALSE(widget->toolTip().contains(QLatin1String("<img"))) << name.toStdString();
        }
        for (const QLabel* label : bench.window().findChildren<QLabel*>())
            EXPECT_EQ(label->textFormat(), Qt::PlainText) << label->objectName().toStdString();
        EXPECT_TRUE(bench.window().findChildren<QTextEdit*>().isEmpty());
    }

    WindowBench<> bench;
};

}  // namespace

TEST_F(ReceivedTexts, NameAFileAsItIsCalled) {
    EXPECT_EQ(textOfRow("lstFiles"), fromCp1252("docs/" + hostile + ".bsm"));
    const QString toolTip = textOfRow("lstFiles", Qt::ToolTipRole);
    EXPECT_TRUE(toolTip.contains(shown.toHtmlEscaped())) << toolTip.toStdString();
    EXPECT_FALSE(toolTip.contains(QLatin1String("<img")));
    expectNothingIsMarkup();
}

TEST_F(ReceivedTexts, StandInTheListsAndTheirToolTipsAsTheyAre) {
    bench.click("ANext");
    hover("lvAStrength");
    EXPECT_EQ(textOfRow("lvAStrength"), shown);
    const QString toolTip = bench.widget("lvAStrength").toolTip();
    EXPECT_TRUE(toolTip.contains(fromCp1252("[" + hostile + "]: " + hostile).toHtmlEscaped()))
        << toolTip.toStdString();
    expectNothingIsMarkup();
}

TEST_F(ReceivedTexts, StandInTheDialogThatEditsThemAsTheyAre) {
    bench.click("ANext");
    bench.select("lvAStrength", 1);
    FrmEdit form;
    form.txtEdit.setText(hostile);
    EditDialog dialog(bench.program(), form, &bench.window());
    EXPECT_EQ(dialog.findChild<QLineEdit*>(QStringLiteral("txtEdit"))->text(), shown);
    for (const QLabel* label : dialog.findChildren<QLabel*>())
        EXPECT_EQ(label->textFormat(), Qt::PlainText);
}

}  // namespace orvanta::test
