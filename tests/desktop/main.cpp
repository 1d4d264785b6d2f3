#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/theme.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    orvanta::desktop::dressApplication(application);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
