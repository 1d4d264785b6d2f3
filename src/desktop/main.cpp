#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <algorithm>
#include <cstdlib>
#include <functional>
#include <optional>

#include "app/rescued_saves.h"
#include "app/startup.h"
#include "core/constants.h"
#include "desktop/auto_save_timer.h"
#include "desktop/conversions.h"
#include "desktop/display_needed.h"
#include "desktop/instance_lock.h"
#include "desktop/main_window.h"
#include "desktop/platform.h"
#include "desktop/system_signals.h"
#include "desktop/theme.h"
#include "sessionfiles/saving.h"
#include "view/file_disk.h"

namespace {

using namespace orvanta::desktop;

/// The user's own folder for this program; it need not be there.
QString dataPath() {
    return QStandardPaths::writableLocation(QStandardPaths::AppLocalDataLocation);
}

QString rescuePath() { return QDir(dataPath()).filePath("rescue"); }

QString ownFolder() {
    QDir().mkpath(dataPath());
    return dataPath();
}

/// What a package installs for all users says so in a file beside the program. Nobody's sessions
/// belong there then, not even root's, who may write anywhere.
bool takesSessions(const QString& programFolder) {
    return !QFileInfo::exists(programFolder + "/system-wide") &&
           QFileInfo(programFolder).isWritable();
}

/// The program's own folder where that takes sessions and nobody else uses it, else one of the
/// user's. None where another program of this user's has it; that one comes to the front.
std::optional<QString> scratchFolder(InstanceLock& lock) {
    using Holder = InstanceLock::Holder;
    QString folder = QCoreApplication::applicationDirPath();
    if (!takesSessions(folder)) folder = ownFolder();
    Holder holder = lock.take(folder);
    if (holder == Holder::OtherProgram) holder = lock.take(folder = ownFolder());
    if (holder != Holder::OwnProgram) return folder;
    lock.raiseHolder();
    return std::nullopt;
}

/// Programs that were killed while they wrote have left these, in folders of the program's own.
void removeLeftovers(const QString& scratch) {
    for (const QString& folder : {scratch, scratch + "/System", dataPath(), rescuePath()})
        orvanta::FileDisk::removeLeftovers(toPath(folder));
}

void bringToFront(QWidget& window) {
    QWidget* modal = QApplication::activeModalWidget();
    QWidget& front = modal ? *modal : window;
    front.setWindowState(front.windowState() & ~Qt::WindowMinimized);
    front.raise();
    front.activateWindow();
}

}  // namespace

int main(int argc, char** argv) {
    using namespace orvanta;
    int programNameAlone =
        std::min(argc, 1);  // the program takes no argument, the toolkit's included
    std::optional<DisplayNeeded> starting(std::in_place);
    QApplication application(programNameAlone, argv);
    starting.reset();
    QCoreApplication::setOrganizationName(fromCp1252(appTitle));
    QCoreApplication::setApplicationName(fromCp1252(appTitle));
    QGuiApplication::setDesktopFileName(QStringLiteral("orvanta"));
    QGuiApplication::setQuitOnLastWindowClosed(false);  // the splash goes before the window comes
    QSettings::setDefaultFormat(QSettings::IniFormat);
    applyTheme(application);

    std::function<void()> end, raise;
    // Ahead of the lock: a second start signals whoever holds it.
    const SystemSignals systemSignals(
        [&end] {
            if (end) end();
        },
        [&raise] {
            if (raise) raise();
        });
    InstanceLock lock;
    const auto scratch = scratchFolder(lock);
    if (!scratch) return EXIT_SUCCESS;
    removeLeftovers(*scratch);

    const RescueStore rescue(rescuePath().toStdString());
    FileDisk disk(rescue);
    RescuedSaves rescuedSaves(rescue);
    DesktopPlatform desktop(disk);
    desktop.platform().failedSaves = &rescuedSaves;
    Program program(desktop.platform(), toPath(QCoreApplication::applicationDirPath()),
                    toPath(*scratch));
    MainWindow window(program);
    window.tellOf(rescuedSaves);
    const AutoSaveTimer autoSave(program);
    bool ended = false;
    end = [&] {
        ended = true;
        copyUnsavedSession(program);
        QCoreApplication::exit();
    };
    raise = [&window] { bringToFront(window); };
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &window,
                     [&program] { copyUnsavedSession(program); });
    desktop.setProgram(program);
    startProgram(program);
    const int result = ended ? EXIT_SUCCESS : QApplication::exec();
    // All is saved by now, and cleaning up would wait for the sound for good.
    if (!desktop.endSound()) std::_Exit(result);
    return result;
}
