#include <gtest/gtest.h>

#include <QApplication>
#include <QSettings>
#include <QTemporaryDir>

#include "desktop/theme.h"

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const QTemporaryDir settings;  // a file dialog keeps its columns there from run to run
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings.path());
    orvanta::desktop::applyTheme(application);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
