#include "desktop/skinned_button_view.h"

#include <gtest/gtest.h>

#include <QtTest>

#include "painted_contrast.h"
#include "window_bench.h"

namespace orvanta::test {

namespace {

/// The button "Brainstorm" of the real window, pressed at a place of the screen.
class SkinnedButtonView : public testing::Test {
protected:
    SkinnedButtonView() { bench.start(); }

    /// What a person hits in the middle of the button.
    QWidget& hit() {
        QWidget& picture = bench.widget("imgBtnBrainstorm");
        return *bench.window().childAt(picture.mapTo(&bench.window(), picture.rect().center()));
    }
    Art art() { return bench.form().buttons[Button::Brainstorm].image.art(); }
    Label& label() { return bench.form().buttons[Button::Brainstorm].label; }
    bool isWideEnough() {
        auto& caption = bench.widget<QLabel>("lblBtnBrainstorm");
        return caption.width() >= caption.fontMetrics().size(0, caption.text()).width();
    }
    bool hasActed() { return bench.form().fraBrainstorm.isVisible(); }

    WindowBench<> bench;
};

}  // namespace

TEST_F(SkinnedButtonView, IsHitOnItsCaption) {
    EXPECT_EQ(hit().objectName(), QStringLiteral("lblBtnBrainstorm"));
}

TEST_F(SkinnedButtonView, HasItsCaptionInTheMiddle) {
    QWidget& caption = bench.widget("lblBtnBrainstorm");
    const QImage whole = paintedAs(caption);
    const QImage painted = whole.copy(whole.rect().adjusted(10, 10, -10, -10));  // no round corners
    QRect ink;
    for (int y = 0; y < painted.height(); ++y)
        for (int x = 0; x < painted.width(); ++x)
            if (painted.pixelColor(x, y).lightness() > 200) ink |= QRect(x, y, 1, 1);
    ASSERT_GT(painted.width(), ink.width() + 20);
    EXPECT_NEAR(ink.center().x(), painted.rect().center().x(), 2);
}

TEST_F(SkinnedButtonView, HasRoomForACaptionThatIsWiderThanItsPlace) {
    label().setCaption("A caption that is wider than any button");
    EXPECT_TRUE(isWideEnough());
}

TEST_F(SkinnedButtonView, HasRoomForACaptionThatItGotWhileItWasHidden) {
    label().setVisible(false);
    label().setCaption("A caption that is wider than any button");
    ASSERT_FALSE(isWideEnough());
    label().setVisible(true);
    EXPECT_TRUE(isWideEnough());
}

TEST_F(SkinnedButtonView, IsPressedAndLetGoOnItsCaption) {
    QTest::mousePress(&hit(), Qt::LeftButton);
    EXPECT_EQ(art(), Art::LargeDown);
    EXPECT_FALSE(hasActed());
    QTest::mouseRelease(&hit(), Qt::LeftButton);
    EXPECT_EQ(art(), Art::LargeNormal);
    EXPECT_TRUE(hasActed());
}

TEST_F(SkinnedButtonView, ActsWhenItIsLetGoBesideIt) {
    for (const char* part : {"imgBtnBrainstorm", "lblBtnBrainstorm"}) {
        bench.form().fraBrainstorm.hide();
        QTest::mousePress(&bench.widget(part), Qt::LeftButton);
        QTest::mouseMove(&bench.widget(part), {-50, 300});
        QTest::mouseRelease(&bench.widget(part), Qt::LeftButton, {}, {-50, 300});
        EXPECT_TRUE(hasActed()) << part;
        EXPECT_EQ(art(), Art::LargeNormal) << part;
    }
}

TEST_F(SkinnedButtonView, TakesAnyButtonOfTheMouse) {
    for (const auto mouseButton : {Qt::LeftButton, Qt::RightButton, Qt::MiddleButton})
        for (const char* part : {"imgBtnBrainstorm", "lblBtnBrainstorm"}) {
            bench.form().fraBrainstorm.hide();
            QTest::mousePress(&bench.widget(part), mouseButton);
            EXPECT_EQ(art(), Art::LargeDown) << part;
            QTest::mouseRelease(&bench.widget(part), mouseButton);
            EXPECT_TRUE(hasActed()) << part;
        }
}

TEST_F(SkinnedButtonView, ActsTwiceAtADoubleClick) {
    bench.openBrainstorm();
    QWidget& caption = bench.widget("lblBtnBNext");
    QTest::mouseClick(&caption, Qt::LeftButton);
    QTest::mouseDClick(&caption, Qt::LeftButton);  // only the second press of the two
    QTest::mouseRelease(&caption, Qt::LeftButton);
    EXPECT_EQ(bench.form().questionStep, 3);
    EXPECT_EQ(bench.form().buttons[Button::BNext].image.art(), Art::SmallNormal);
}

}  // namespace orvanta::test
