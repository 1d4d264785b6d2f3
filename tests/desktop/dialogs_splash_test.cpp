#include <gtest/gtest.h>

#include <QApplication>
#include <QtTest>
#include <algorithm>
#include <set>
#include <vector>

#include "desktop/dialogs.h"
#include "desktop/platform.h"
#include "window_bench.h"

namespace orvanta::test {

using namespace orvanta::desktop;

namespace {

/// The lengths of the bars that a row of pixels passes through on a white ground.
std::vector<int> barsIn(const QImage& picture, int row, int left, int right) {
    std::vector<int> lengths;
    for (int x = left; x < right; ++x) {
        if (picture.pixelColor(x, row) == Qt::white) continue;
        if (x == left || picture.pixelColor(x - 1, row) == Qt::white) lengths.push_back(0);
        ++lengths.back();
    }
    return lengths;
}

}  // namespace

TEST(Splash, EndsEarlyAtAnyKey) {
    for (const Qt::Key key : {Qt::Key_Space, Qt::Key_Escape, Qt::Key_F5, Qt::Key_Shift}) {
        WindowBench bench;
        FrmSplash form;
        SplashDialog splash(bench.program(), form);
        splash.show();
        QTest::keyClick(&splash, key);
        EXPECT_FALSE(splash.isVisible()) << key;
    }
}

TEST(Splash, EndsByItselfWithoutAKey) {
    WindowBench bench;
    FrmSplash form;
    SplashDialog splash(bench.program(), form);
    splash.exec();  // comes back when it has ended
    EXPECT_FALSE(splash.isVisible());
}

TEST(Splash, EndsAtAKeyThatIsPressedWhileItComesUp) {
    WindowBench bench;
    FrmSplash form;
    SplashDialog splash(bench.program(), form);
    QTimer::singleShot(0, &splash, [&splash] { QTest::keyClick(&splash, Qt::Key_Space); });
    splash.exec();  // comes back when it has ended
    EXPECT_FALSE(splash.isVisible());
}

TEST(Splash, LetsTheWindowBeMadeOnceItIsSeenAndBeforeItGoes) {
    Bench bench;
    DesktopForms forms;
    FrmSplash form;
    std::vector<bool> seen;
    forms.setProgram(bench.program());
    forms.doBehindSplash([&seen] {
        const QWidgetList windows = QApplication::topLevelWidgets();
        seen.push_back(std::ranges::any_of(windows, &QWidget::isVisible));
    });
    forms.run(form);
    EXPECT_EQ(seen, (std::vector{true, false}));
}

TEST(Splash, LetsTheWindowBeMadeAlsoWhereNobodySeesIt) {
    Bench bench;
    DesktopForms forms;
    FrmSplash form;
    int made = 0;
    forms.setProgram(bench.program());
    forms.doBehindSplash([&made] { ++made; });
    // A key ends it before it is painted.
    QTimer::singleShot(0, [] {
        for (QWidget* window : QApplication::topLevelWidgets())
            QTest::keyClick(window, Qt::Key_Space);
    });
    forms.run(form);
    EXPECT_GE(made, 1);
}

TEST(Splash, FillsItsFormWithThePicture) {
    WindowBench bench;
    FrmSplash form;
    SplashDialog splash(bench.program(), form);
    const QImage picture = splash.grab().toImage();
    QSet<QRgb> colours;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) colours.insert(picture.pixel(x, y));
    EXPECT_GT(colours.size(), 5);
}

TEST(Splash, HasFourBarsOfOneLength) {
    WindowBench bench;
    FrmSplash form;
    SplashDialog splash(bench.program(), form);
    const QImage picture = splash.grab().toImage();
    const std::vector<int> bars = barsIn(picture, 250, 150, 450);
    ASSERT_EQ(bars.size(), 4);
    EXPECT_EQ(std::set<int>(bars.begin(), bars.end()).size(), 1);
}

}  // namespace orvanta::test
