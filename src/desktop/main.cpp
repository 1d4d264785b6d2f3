#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <system_error>

#include "app/rescued_saves.h"
#include "app/startup.h"
#include "core/constants.h"
#include "desktop/auto_save_timer.h"
#include "desktop/conversions.h"
#include "desktop/display_needed.h"
#include "desktop/end_of_session.h"
#include "desktop/last_copy.h"
#include "desktop/main_window.h"
#include "desktop/own_folders.h"
#include "desktop/platform.h"
#include "desktop/scratch_folder.h"
#include "desktop/system_signals.h"
#include "desktop/theme.h"
#include "sessionfiles/saving.h"
#include "view/file_disk.h"
#include "view/path_text.h"

namespace {

using namespace orvanta::desktop;

std::string nameOf(const QString& path) { return QDir::toNativeSeparators(path).toStdString(); }

#ifdef _WIN32
std::string programFolder() { return nameOf(QCoreApplication::applicationDirPath()); }
#else
/// The folder of the program file, as the system names it: the toolkit would lose bytes of a name
/// that is not of its code.
std::string programFolder() {
    std::error_code failure;
    const auto program = std::filesystem::read_symlink("/proc/self/exe", failure);
    return failure ? nameOf(QCoreApplication::applicationDirPath())
                   : program.parent_path().string();
}

/// A settings file that no memory can hold would end each start; it goes aside.
void setUnreadableSettingsAside() {
    constexpr qint64 most = 1 << 20;
    const QString settings =
        QStandardPaths::writableLocation(QStandardPaths::GenericConfigLocation);
    const QString file = QDir(settings).filePath(
        QStringLiteral("%1/%2.ini")
            .arg(QCoreApplication::organizationName(), QCoreApplication::applicationName()));
    if (QFileInfo(file).size() > most) QFile::rename(file, file + ".damaged");
}
#endif

/// Programs that were killed while they wrote have left these, in folders of the program's own.
void removeLeftovers(const std::string& scratch) {
    const std::string own = nameOf(dataPath()), rescue = nameOf(rescuePath());
    for (const std::string& folder :
         {scratch, scratch + orvanta::pathSeparator + "System", own, rescue})
        orvanta::FileDisk::removeLeftovers(orvanta::pathFromNative(folder));
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
#ifndef _WIN32                                          // there they lie in the registry
    QSettings::setDefaultFormat(QSettings::IniFormat);
    setUnreadableSettingsAside();
#endif
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
    const std::string ofProgram = programFolder();
    ScratchLocks locks;
    const auto scratch = scratchFolder(ofProgram, nameOf(dataPath()), locks);
    if (!scratch) return EXIT_SUCCESS;
    removeLeftovers(*scratch);

    const RescueStore rescue(nameOf(rescuePath()));
    FileDisk disk(rescue);
    RescuedSaves rescuedSaves(rescue, *scratch);
    DesktopPlatform desktop(disk);
    desktop.platform().failedSaves = &rescuedSaves;
    Program program(desktop.platform(), pathFromNative(ofProgram), pathFromNative(*scratch));
    // Its many widgets take longer to make than all that a person sees at first.
    std::optional<MainWindow> window;
    const auto makeWindow = [&]() noexcept {  // half of a window could not be taken back
        if (window) return;
        window.emplace(program);
        window->tellOf(rescuedSaves);
    };
    const AutoSaveTimer autoSave(program);
    bool ended = false;
    end = [&] {
        ended = true;
        copyUnsavedSession(program);
        QCoreApplication::exit();
    };
    raise = [&window] {
        if (window) bringToFront(*window);
    };
    QObject::connect(
        &application, &QGuiApplication::commitDataRequest, &application,
        [&program](QSessionManager& manager) { prepareForEndOfSession(program, manager); });
    desktop.setProgram(program);
    desktop.doBehindSplash(makeWindow);
    const LastCopy lastCopy(application, [&program] { copyUnsavedSession(program); });
    startProgram(program);
    makeWindow();  // the splash may have failed
    rescuedSaves.keepSessionsNotShown(program.frmMain);
    const int result = ended ? EXIT_SUCCESS : QApplication::exec();
    // A dialog that stood open at the end has given its session back only now.
    if (ended) copyUnsavedSession(program);
    // All is saved by now, and cleaning up would wait for the sound for good.
    if (!desktop.endSound()) std::_Exit(result);
    return result;
}
