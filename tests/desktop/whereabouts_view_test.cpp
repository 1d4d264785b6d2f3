#include "desktop/whereabouts_view.h"

#include <gtest/gtest.h>

#include <QtTest>

#include "painted_contrast.h"
#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

class WhereaboutsLine : public testing::Test {
protected:
    WhereaboutsLine() {
        bench.start();
        bench.window().show();
    }

    std::string told() {
        QCoreApplication::processEvents();
        return toCp1252(bench.widget<QLabel>("lblWhereabouts").text());
    }

    QRect placeInWindow(const char* name) {
        QWidget& widget = bench.widget(name);
        return {widget.mapTo(&bench.window(), QPoint()), widget.size()};
    }

    WindowBench<> bench;
};

}  // namespace

TEST_F(WhereaboutsLine, IsAwayWhileNoModuleIsOpen) {
    told();
    EXPECT_FALSE(bench.widget("lblWhereabouts").isVisible());
    bench.click("Brainstorm");
    told();
    EXPECT_TRUE(bench.widget("lblWhereabouts").isVisible());
    bench.click("BQuit");
    told();
    EXPECT_FALSE(bench.widget("lblWhereabouts").isVisible());
}

TEST_F(WhereaboutsLine, FollowsTheWizardAndTheLists) {
    bench.openBrainstorm();
    EXPECT_EQ(told(),
              "Step 2 of 5: Strengths, question 1 of 3. "
              "Strengths 0, Weaknesses 0, Opportunities 0, Threats 0.");
    bench.enter("txtStrength", {"A", "B"});
    bench.click("BNext");
    EXPECT_EQ(told(),
              "Step 2 of 5: Strengths, question 2 of 3. "
              "Strengths 2, Weaknesses 0, Opportunities 0, Threats 0.");
}

TEST_F(WhereaboutsLine, FollowsAWizardWhoseQuestionsAreAllTheSame) {
    bench.openBrainstorm();
    for (std::string& question : bench.program().questions.strengthQuestions) question = " Why?";
    bench.form().lblSQuestion.setCaption(" Why?");
    told();
    QTest::mouseClick(&bench.widget("imgBtnBNext"), Qt::LeftButton);
    EXPECT_TRUE(told().starts_with("Step 2 of 5: Strengths, question 2 of 3."));
}

TEST_F(WhereaboutsLine, CoversNothing) {
    bench.openBrainstorm();
    told();
    for (const char* name : {"imgBtnBQuit", "imgBtnBBack", "imgBtnBNext", "lvBStrength"}) {
        EXPECT_FALSE(placeInWindow(name).intersects(placeInWindow("lblWhereabouts"))) << name;
    }
}

TEST_F(WhereaboutsLine, KeepsAwayFromTheLargeButtonAboveIt) {
    bench.click("Analyze");
    told();
    EXPECT_GT(placeInWindow("lblWhereabouts").top(), placeInWindow("imgBtnOAFile").bottom() + 1);
}

TEST_F(WhereaboutsLine, StaysAtTheFootOfAWindowThatGrows) {
    bench.openBrainstorm();
    told();
    const QWidget& line = bench.widget("lblWhereabouts");
    const int below = bench.window().height() - line.geometry().bottom();
    bench.window().resize(bench.window().size() + QSize(100, 100));
    EXPECT_EQ(bench.window().height() - line.geometry().bottom(), below);
}

TEST_F(WhereaboutsLine, StaysCheapWhileALongListFills) {
    bench.openBrainstorm();
    told();
    const int before = bench.window().findChildren<QObject*>().size();
    for (int i = 0; i < 100'000; ++i)
        bench.form().lvBStrength.add({.key = {}, .text = "Row", .image = 1});
    // One look for all rows: no timer for each.
    EXPECT_EQ(bench.window().findChildren<QObject*>().size(), before);
    EXPECT_NE(told().find("Strengths 100000,"), std::string::npos);
}

}  // namespace orvanta::test
