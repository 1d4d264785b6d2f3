#include <gtest/gtest.h>

#include <QtTest>

#include "desktop/dialogs.h"
#include "window_bench.h"

namespace orvanta::test {

using namespace orvanta::desktop;

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

}  // namespace orvanta::test
