#include "desktop/whereabouts_view.h"

#include <gtest/gtest.h>

#include <QtTest>

#include "desktop/theme.h"
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

    int filledSegments() {
        told();
        const QImage line = paintedAs(bench.widget("lblWhereabouts"));
        int filled = 0;
        for (int x = 1; x < line.width(); ++x) {
            const auto isBlue = [&](int at) {
                return line.pixelColor(at, line.height() - 3) == theme::deepBlue;
            };
            filled += isBlue(x) && !isBlue(x - 1);
        }
        return filled;
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

TEST_F(WhereaboutsLine, HasItsPicturesInTheMiddleBetweenItsTopAndTheSegments) {
    bench.openBrainstorm();
    told();
    const QImage line = paintedAs(bench.widget("lblWhereabouts"));
    const QRect room = bench.widget("lblWhereabouts").contentsRect().adjusted(0, 0, 0, -6);
    QRect ink;
    for (int y = 0; y < room.bottom(); ++y)
        for (int x = room.left(); x < room.left() + 16; ++x)
            if (line.pixelColor(x, y) != QColor(Qt::white)) ink |= QRect(x, y, 1, 1);
    EXPECT_NEAR(ink.center().y(), room.center().y(), 1);
}

TEST_F(WhereaboutsLine, CoversNothing) {
    bench.openBrainstorm();
    told();
    for (const char* name : {"imgBtnBQuit", "imgBtnBBack", "imgBtnBNext", "lvBStrength"}) {
        EXPECT_FALSE(placeInWindow(name).intersects(placeInWindow("lblWhereabouts"))) << name;
    }
}

TEST_F(WhereaboutsLine, LiesAtTheHeadOfTheModuleAlsoInAWindowThatGrows) {
    bench.openBrainstorm();
    told();
    bench.window().resize(bench.window().size() + QSize(100, 100));
    const QRect line = placeInWindow("lblWhereabouts"), module = placeInWindow("fraBrainstorm");
    EXPECT_EQ(line.bottom() + 1, module.top());
    EXPECT_EQ(line.left(), module.left());
    EXPECT_EQ(line.right(), module.right());
}

TEST_F(WhereaboutsLine, FillsASegmentForEachStepThatIsReached) {
    bench.click("Brainstorm");
    EXPECT_EQ(filledSegments(), 1);
    bench.click("BQuit");
    bench.openBrainstorm();
    EXPECT_EQ(filledSegments(), 2);
    for (int press = 0; press < 9; ++press) bench.click("BNext");
    EXPECT_EQ(filledSegments(), 5);
}

TEST_F(WhereaboutsLine, ShowsThePictureOfTheKindThatTheStepIsAbout) {
    bench.openBrainstorm();
    told();
    const QRect picture(24, 8, 16, 16);
    const QImage strengths = paintedAs(bench.widget("lblWhereabouts"), picture);
    for (int press = 0; press < 3; ++press) bench.click("BNext");
    told();
    EXPECT_NE(paintedAs(bench.widget("lblWhereabouts"), picture), strengths);
}

TEST_F(WhereaboutsLine, IsHelpedByABarBesideTheButtonOfTheModule) {
    const auto barBeside = [this](const char* button) {
        const QRect place = placeInWindow(button);
        return paintedAs(bench.window()).pixelColor(place.left() - 8, place.center().y()) ==
               theme::deepBlue;
    };
    told();
    EXPECT_FALSE(barBeside("imgBtnBrainstorm"));
    bench.click("Brainstorm");
    EXPECT_TRUE(barBeside("imgBtnBrainstorm"));
    EXPECT_FALSE(barBeside("imgBtnAnalyze"));
    bench.click("BQuit");
    bench.click("Analyze");
    EXPECT_FALSE(barBeside("imgBtnBrainstorm"));
    EXPECT_TRUE(barBeside("imgBtnAnalyze"));
}

TEST_F(WhereaboutsLine, LeavesTheButtonsAtTheFootOneHeight) {
    bench.click("Analyze");
    told();
    for (const char* name : {"imgBtnOAFile", "imgBtnABack"}) {
        EXPECT_EQ(placeInWindow(name).top(), placeInWindow("imgBtnAQuit").top()) << name;
        EXPECT_EQ(placeInWindow(name).height(), placeInWindow("imgBtnAQuit").height()) << name;
    }
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
