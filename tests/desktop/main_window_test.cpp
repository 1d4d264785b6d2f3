#include "desktop/main_window.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QLabel>
#include <QtTest>

#include "app/home_steps.h"
#include "painted_contrast.h"
#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

bool isForPeople(const Control& control) {
    const bool holdsArt = control.is<Image>() && control.bounds().width == Twips{};
    return !holdsArt && !control.is<Panel>();
}

QRect placeOfControl(const Control& control, double twipsPerPixel) {
    const auto pixels = [twipsPerPixel](Twips from, Twips length = {}) {
        return qRound((from.value + length.value) / twipsPerPixel);
    };
    const Bounds& bounds = control.bounds();
    return {QPoint(pixels(bounds.left), pixels(bounds.top)),
            QPoint(pixels(bounds.left, bounds.width) - 1, pixels(bounds.top, bounds.height) - 1)};
}

}  // namespace

TEST(MainWindow, HasAWidgetForEveryControlUnderItsName) {
    WindowBench bench;
    for (const Control* control : bench.form().controls.all())
        EXPECT_TRUE(bench.window().findChild<QWidget*>(fromCp1252(control->name())))
            << control->name();
}

TEST(MainWindow, NamesEveryControlForThoseWhoDoNotSeeIt) {
    WindowBench bench;
    bench.start();
    bench.openBrainstorm();
    for (const Control* control : bench.form().controls.all()) {
        const auto* label = dynamic_cast<const Label*>(control);
        if (!isForPeople(*control) || (label && label->caption().empty())) continue;
        auto* told = QAccessible::queryAccessibleInterface(&bench.widget(control->name()));
        EXPECT_FALSE(told->text(QAccessible::Name).isEmpty()) << control->name();
    }
}

TEST(MainWindow, KeepsTheNameOfItsOwnThatAButtonHas) {
    WindowBench bench;
    bench.start();
    bench.form().buttons[Button::Quit].label.changed();
    auto* told = QAccessible::queryAccessibleInterface(&bench.widget("imgBtnQuit"));
    EXPECT_EQ(told->text(QAccessible::Name), QStringLiteral("Quit Orvanta"));
}

class MainWindowAt : public testing::TestWithParam<double> {};

TEST_P(MainWindowAt, PlacesEveryControlWhereItsModelIs) {
    WindowBench bench;
    bench.play({{"do", "start"}, {"twipsPerPixel", GetParam()}});
    const FrmMain& form = bench.form();
    EXPECT_EQ(bench.window().size(),
              QSize(qRound(form.width.value / GetParam()), qRound(form.height.value / GetParam())));
    for (const Control* control : form.controls.all())
        EXPECT_EQ(bench.widget(control->name()).geometry(), placeOfControl(*control, GetParam()))
            << control->name();
}
INSTANTIATE_TEST_SUITE_P(Screens, MainWindowAt, testing::Values(15.0, 12.0, 10.0));

TEST(MainWindow, GivesWhatItGrowsToTheListsOfAScreen) {
    WindowBench bench;
    bench.start();
    bench.window().show();
    const QWidget& list = bench.widget("lvBStrength");
    const QRect before = list.geometry();
    bench.window().resize(bench.window().size() + QSize(120, 80));
    EXPECT_EQ(list.geometry(), before.adjusted(0, 0, 120, 80));
}

TEST(MainWindow, KeepsTheWizardButtonsAboveAStepThatReachesOverThem) {
    WindowBench bench;
    bench.play({{"do", "start"}, {"twipsPerPixel", 12}});
    bench.openBrainstorm();
    QWidget& next = bench.widget("picBNext");
    QWidget* hit = bench.widget("fraBrainstorm").childAt(next.geometry().center());
    ASSERT_TRUE(hit);
    EXPECT_TRUE(next.isAncestorOf(hit)) << hit->objectName().toStdString();
}

TEST(MainWindow, GivesTheKeyboardToTheAnswerBoxOfANewScreen) {
    WindowBench bench;
    bench.start();
    bench.window().show();
    bench.openBrainstorm();
    QCoreApplication::processEvents();
    EXPECT_EQ(bench.window().focusWidget(), &bench.widget("txtStrength"));
    bench.play({{"do", "activate"}});
    EXPECT_TRUE(bench.events("focus").empty());  // the window's own act, not the program's
}

TEST(MainWindow, KeepsTheKeyboardAwayFromWhatAScreenCovers) {
    WindowBench bench;
    bench.start();
    bench.click("Brainstorm");
    bench.window().show();
    EXPECT_TRUE(bench.widget("txtName").isVisible());
    bench.openBrainstorm();
    EXPECT_FALSE(bench.widget("txtName").isVisible());
    EXPECT_TRUE(bench.widget("txtStrength").isVisible());
    bench.click("BBack");
    EXPECT_TRUE(bench.widget("txtName").isVisible());
}

TEST(MainWindow, LetsTheKeyboardPressASkinnedButton) {
    WindowBench bench;
    bench.start();
    bench.openBrainstorm();
    QTest::keyClick(&bench.widget("imgBtnBNext"), Qt::Key_Space);
    EXPECT_EQ(bench.form().questionStep, 2);
    EXPECT_EQ(bench.form().buttons[Button::BNext].image.art(), Art::SmallNormal);
}

TEST(MainWindow, TakesUpTheLastPathsWhenItIsShownForTheFirstTime) {
    WindowBench bench;
    bench.program().workFolder = "docs/My SWOT";
    bench.form().shown = true;
    bench.form().shownChanged();
    EXPECT_TRUE(bench.window().isVisible());
    EXPECT_EQ(bench.form().lastPathBSM, "docs/My SWOT");
}

TEST(MainWindow, LeavesABoxAloneThatNobodyCanReach) {
    WindowBench bench;
    bench.start();
    bench.window().show();
    bench.form().txtStrength.setEnabled(false);
    bench.openBrainstorm();
    QCoreApplication::processEvents();
    EXPECT_EQ(bench.window().focusWidget(), &bench.widget("lvBStrength"));
}

TEST(MainWindow, ShowsAQuestionAsItStandsWithoutTheBlanksAroundIt) {
    WindowBench bench;
    bench.start();
    bench.form().lblSQuestion.setCaption(" R&D && more");
    EXPECT_EQ(bench.widget<QLabel>("lblSQuestion").text(), "R&D && more");
}

TEST(MainWindow, ShowsTwoAmpersandsOfAButtonAsOne) {
    WindowBench bench;
    bench.start();
    bench.form().buttons[Button::Brainstorm].label.setCaption("R && D");
    EXPECT_EQ(bench.widget<QLabel>("lblBtnBrainstorm").text(), "R & D");
    EXPECT_EQ(bench.widget("imgBtnBrainstorm").accessibleName(), "R & D");
}

TEST(MainWindow, SaysBesideTheButtonsOfTheStepsWhatTheyAreForWhileNoModuleIsOpen) {
    WindowBench<> bench;
    bench.start();
    bench.window().show();
    const auto wordsBeside = [&bench](Button button) {
        const std::string& name = bench.form().buttons[button].image.name();
        const QRect place = bench.widget(name).geometry();
        const QRect beside(QPoint(place.right() + 20, place.top()), QSize(160, place.height()));
        return writtenContrast(paintedAs(bench.window(), beside));
    };
    for (const HomeStep& step : homeSteps) EXPECT_GE(wordsBeside(step.button), 4.5) << step.words;
    EXPECT_EQ(wordsBeside(Button::Overview), 1);
    EXPECT_EQ(wordsBeside(Button::Quit), 1);
}

}  // namespace orvanta::test
