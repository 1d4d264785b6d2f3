#include <gtest/gtest.h>

#include <QComboBox>
#include <QLineEdit>
#include <QtTest>

#include "desktop/dialogs.h"
#include "desktop/theme.h"
#include "painted_contrast.h"
#include "program_dialogs.h"
#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

/// The controls at which Tab stops, from the first on.
std::vector<QWidget*> stopsOf(QWidget& window) {
    std::vector<QWidget*> stops;
    for (QWidget* widget = window.nextInFocusChain(); widget != &window;
         widget = widget->nextInFocusChain())
        if (widget->isVisible() && widget->isEnabled() && widget->focusPolicy() & Qt::TabFocus)
            stops.push_back(widget);
    return stops;
}

Texts namesOf(const std::vector<QWidget*>& widgets) {
    Texts names;
    for (const QWidget* widget : widgets) names.push_back(toCp1252(widget->objectName()));
    return names;
}

/// That each stop lies below the former one or at its right.
void expectReadingOrder(QWidget& window) {
    const std::vector<QWidget*> stops = stopsOf(window);
    for (std::size_t i = 1; i < stops.size(); ++i) {
        const QRect former = placeOf(*stops[i - 1]), place = placeOf(*stops[i]);
        EXPECT_TRUE(place.top() > former.bottom() || place.left() > former.right())
            << stops[i - 1]->objectName().toStdString() << " before "
            << stops[i]->objectName().toStdString();
    }
}

/// That each control looks different while it has the keyboard.
void expectVisibleFocus(QWidget& window) {
    QApplication::setActiveWindow(&window);
    for (QWidget* stop : stopsOf(window)) {
        window.setFocus();
        const QImage without = paintedAs(*stop);
        stop->setFocus(Qt::TabFocusReason);
        ASSERT_TRUE(stop->hasFocus()) << stop->objectName().toStdString();
        const QImage with = paintedAs(*stop);
        EXPECT_NE(with, without) << stop->objectName().toStdString();
    }
}

/// How far the rim of a control that has the keyboard stands out of the ground at its left.
double rimContrast(QDialog& dialog, const char* name) {
    auto& control = *dialog.findChild<QWidget*>(QLatin1String(name));
    control.setFocus(Qt::TabFocusReason);
    const QImage painted = paintedAs(control, control.rect().adjusted(-1, 0, 0, 0));
    const auto at = [&painted](int x) { return painted.pixelColor(x, painted.height() / 2); };
    return std::max(contrast(at(0), at(1)), contrast(at(0), at(2)));
}

class Keyboard : public testing::Test {
protected:
    Keyboard() { analysis.window().show(); }

    WindowBench<AnalysisBench> analysis;
};

}  // namespace

TEST_F(Keyboard, ReachesTheSwitchOfTheVoiceFirst) {
    EXPECT_EQ(stopsOf(analysis.window()).front(), &analysis.widget("chkMute"));
}

TEST_F(Keyboard, GoesThroughAListScreenAsTheEyeDoes) {
    analysis.next(1);
    QCoreApplication::processEvents();
    EXPECT_EQ(namesOf(stopsOf(analysis.window())),
              (Texts{"chkMute", "imgBtnOverview", "imgBtnBrainstorm", "imgBtnAnalyze",
                     "imgBtnReport", "imgBtnAbout", "imgBtnQuit", "cmdUndo", "cmdRedo",
                     "txtAStrength", "imgBtnASAdd", "lvAStrength", "imgBtnASEdit", "imgBtnASRemove",
                     "imgBtnAQuit", "imgBtnOAFile", "imgBtnABack", "imgBtnANext"}));
}

TEST_F(Keyboard, GoesThroughAMappingScreenColumnByColumn) {
    analysis.next(5);
    QCoreApplication::processEvents();
    const Texts stops = namesOf(stopsOf(analysis.window()));
    const auto strengths = std::ranges::find(stops, "lvStrengthOp");
    ASSERT_GE(stops.end() - strengths, 3);
    EXPECT_EQ(Texts(strengths, strengths + 3),
              (Texts{"lvStrengthOp", "lvOpportunity", "lvWeaknessOp"}));
}

TEST_F(Keyboard, GoesThroughTheDialogsAsTheEyeDoes) {
    ProgramDialogs(analysis.program()).showEach([](QDialog& dialog) {
        expectReadingOrder(dialog);
    });
}

TEST_F(Keyboard, ShowsWhereItIsOnEveryScreenOfAnAnalysis) {
    for (int screen = 0; screen < 7; ++screen) {
        QCoreApplication::processEvents();
        expectVisibleFocus(analysis.window());
        if (screen < 6) analysis.next(1);
    }
}

TEST_F(Keyboard, ShowsWhereItIsOnTheScreensOfBrainstorming) {
    analysis.click("Brainstorm");
    QCoreApplication::processEvents();
    expectVisibleFocus(analysis.window());
    analysis.openBrainstorm();
    QCoreApplication::processEvents();
    expectVisibleFocus(analysis.window());
}

TEST_F(Keyboard, ShowsWhereItIsInTheDialogs) {
    ProgramDialogs(analysis.program()).showEach([](QDialog& dialog) {
        expectVisibleFocus(dialog);
    });
}

TEST_F(Keyboard, StandsOutOfTheBlueGroundOfDialogs) {
    FrmEdit edit;
    EditDialog editDialog(analysis.program(), edit, nullptr);
    FrmReportType report;
    ReportDialog reportDialog(analysis.program(), report, nullptr);
    for (QDialog* dialog : std::initializer_list<QDialog*>{&editDialog, &reportDialog}) {
        dialog->show();
        QApplication::setActiveWindow(dialog);
        EXPECT_GE(rimContrast(*dialog, "txtEdit"), 3);
    }
    EXPECT_GE(rimContrast(reportDialog, "cmdBrowse"), 3);
    EXPECT_GE(rimContrast(reportDialog, "cboFormat"), 3);
}

TEST_F(Keyboard, GoesOnAndTypesTheNextAnswerWithoutTheMouse) {
    WindowBench bench;
    bench.start();
    bench.openBrainstorm();
    bench.window().show();
    QApplication::setActiveWindow(&bench.window());
    QCoreApplication::processEvents();
    const auto press = [&](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(bench.window().focusWidget(), key, modifiers);
        QCoreApplication::processEvents();
    };
    const auto type = [&](const char* text) {
        QTest::keyClicks(bench.window().focusWidget(), QLatin1String(text));
    };
    type("fleet");
    press(Qt::Key_Return);
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(bench.form().questionStep, 2);
    type("shop");
    press(Qt::Key_Return);
    press(Qt::Key_PageDown);
    type("name");
    press(Qt::Key_Return);
    EXPECT_EQ(bench.texts("lvBStrength"), (Texts{"fleet", "shop", "name"}));
    press(Qt::Key_PageUp);
    EXPECT_EQ(bench.form().questionStep, 2);
    bench.widget("imgBtnBNext").setFocus();
    press(Qt::Key_Space);
    EXPECT_EQ(bench.window().focusWidget(), &bench.widget("txtStrength"));
}

TEST_F(Keyboard, TypesIntoTheNextAnswerWhatCameRightBehindTheKeyThatWentOn) {
    analysis.next(1);
    analysis.window().activateWindow();
    QApplication::setActiveWindow(&analysis.window());
    QCoreApplication::processEvents();
    const auto press = [this](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(analysis.window().focusWidget(), key, modifiers);
    };
    press(Qt::Key_Return, Qt::ControlModifier);
    press(Qt::Key_A);
    EXPECT_EQ(analysis.form().txtAWeakness.text(), "a");
    analysis.widget("imgBtnANext").setFocus();
    press(Qt::Key_Space);
    press(Qt::Key_B);
    EXPECT_EQ(analysis.form().txtAOpportunity.text(), "b");
}

TEST_F(Keyboard, GoesOnFromALinkAsFromAnyControl) {
    auto& link = analysis.widget<QAbstractButton>("lblMerge");
    int presses = 0;
    QObject::connect(&link, &QAbstractButton::clicked, &link, [&presses] { ++presses; });
    QTest::keyClick(&link, Qt::Key_Enter, Qt::KeypadModifier);
    EXPECT_EQ(presses, 1);
    QTest::keyClick(&link, Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(presses, 1);
    EXPECT_EQ(analysis.stepsShown(), Texts{"fraASSummary"});
}

TEST_F(Keyboard, LeavesTheFocusAloneWhereTheMouseGoesOn) {
    analysis.next(1);
    QCoreApplication::processEvents();
    analysis.widget("lvAStrength").setFocus();
    analysis.click("ABack");
    analysis.click("ANext");
    QCoreApplication::processEvents();
    EXPECT_EQ(analysis.events("focus"), Json::array());
}

TEST_F(Keyboard, KeepsThePageKeysInAListThatHasIt) {
    analysis.next(1);
    QCoreApplication::processEvents();
    QWidget& list = analysis.widget("lvAStrength");
    list.setFocus();
    for (const Qt::Key key : {Qt::Key_PageDown, Qt::Key_PageDown, Qt::Key_PageUp})
        QTest::keyClick(&list, key);
    EXPECT_EQ(analysis.stepsShown(), Texts{"fraASSummary"});
}

TEST_F(Keyboard, UndoesTypingBeforeItUndoesAStatement) {
    analysis.next(1);
    analysis.enter("txtAStrength", {"New"});
    const int count = analysis.list("lvAStrength").count();
    QWidget& box = analysis.widget("txtAStrength");
    box.setFocus();
    QTest::keyClicks(&box, QStringLiteral("abc"));
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(analysis.form().txtAStrength.text(), "");
    EXPECT_EQ(analysis.list("lvAStrength").count(), count);
    QTest::keyClick(&box, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(analysis.list("lvAStrength").count(), count - 1);
}

TEST_F(Keyboard, TellsItsKeysToAssistivePrograms) {
    EXPECT_TRUE(analysis.widget("imgBtnANext")
                    .accessibleDescription()
                    .contains(QStringLiteral("Ctrl+Return")));
    EXPECT_TRUE(
        analysis.widget("cmdUndo").accessibleDescription().contains(QStringLiteral("Ctrl+Z")));
    EXPECT_EQ(analysis.widget("imgBtnANext").toolTip(), QString());
}

TEST(MainWindowKeyboard, TypesIntoNothingThatWasHiddenBehindAnotherWindow) {
    WindowBench bench;
    bench.start();
    bench.openBrainstorm();
    bench.window().show();
    auto& box = bench.widget<QLineEdit>("txtStrength");
    box.setFocus();
    QApplication::setActiveWindow(nullptr);
    bench.click("BQuit");
    QCoreApplication::processEvents();
    QApplication::setActiveWindow(&bench.window());
    QTest::keyClick(bench.window().windowHandle(), Qt::Key_A);
    EXPECT_FALSE(box.isVisible());
    EXPECT_EQ(box.text(), "");
}

}  // namespace orvanta::test
