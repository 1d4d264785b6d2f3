#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <cstdlib>

#include "core/constants.h"
#include "core/startup.h"
#include "desktop/auto_save_timer.h"
#include "desktop/conversions.h"
#include "desktop/main_window.h"
#include "desktop/platform.h"
#include "desktop/theme.h"
#include "view/file_disk.h"

namespace {

/// The program's own folder where it can be written, else one of the user's.
QString scratchPath() {
    QString beside = QCoreApplication::applicationDirPath();
    if (QFileInfo(beside).isWritable()) return beside;
    QString own = QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
    QDir().mkpath(own);
    return own;
}

}  // namespace

int main(int argc, char** argv) {
    using namespace orvanta;
    using namespace orvanta::desktop;
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(fromCp1252(appTitle));
    QCoreApplication::setApplicationName(fromCp1252(appTitle));
    QGuiApplication::setDesktopFileName(QStringLiteral("orvanta"));
    QGuiApplication::setQuitOnLastWindowClosed(false);  // the splash goes before the window comes
    QSettings::setDefaultFormat(QSettings::IniFormat);
    dressApplication(application);

    FileDisk disk;
    DesktopPlatform desktop(disk);
    Program program(desktop.platform(), toCp1252(QCoreApplication::applicationDirPath()),
                    toCp1252(scratchPath()));
    MainWindow window(program);
    const AutoSaveTimer autoSave(program);
    desktop.setProgram(program);
    startProgram(program);
    const int result = QApplication::exec();
    // All is saved by now, and cleaning up would wait for the sound for good.
    if (!desktop.endSound()) std::_Exit(result);
    return result;
}
