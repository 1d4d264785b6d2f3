#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <cstdlib>

#include "core/startup.h"
#include "desktop/conversions.h"
#include "desktop/main_window.h"
#include "desktop/platform.h"
#include "desktop/theme.h"
#include "view/file_disk.h"

namespace {

/// The user's own folder for this program; it need not be there.
QString dataPath() {
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
}

/// The program's own folder where it can be written, else one of the user's.
QString scratchPath() {
    QString beside = QCoreApplication::applicationDirPath();
    if (QFileInfo(beside).isWritable()) return beside;
    QDir().mkpath(dataPath());
    return dataPath();
}

}  // namespace

int main(int argc, char** argv) {
    using namespace orvanta;
    using namespace orvanta::desktop;
    QApplication application(argc, argv);
    QCoreApplication::setOrganizationName(QStringLiteral("Orvanta"));
    QCoreApplication::setApplicationName(QStringLiteral("Orvanta"));
    QGuiApplication::setDesktopFileName(QStringLiteral("orvanta"));
    QGuiApplication::setQuitOnLastWindowClosed(false);  // the splash goes before the window comes
    QSettings::setDefaultFormat(QSettings::IniFormat);
    dressApplication(application);

    FileDisk disk{RescueStore(QDir(dataPath()).filePath("rescue").toStdString())};
    DesktopPlatform desktop(disk);
    Program program(desktop.platform(), toCp1252(QCoreApplication::applicationDirPath()),
                    toCp1252(scratchPath()));
    MainWindow window(program, Input::Person);
    desktop.setProgram(program);
    startProgram(program);
    const int result = QApplication::exec();
    // All is saved by now, and cleaning up would wait for the sound for good.
    if (!desktop.endSound()) std::_Exit(result);
    return result;
}
