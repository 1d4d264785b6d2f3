#include "desktop/platform.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QScreen>
#include <QStandardPaths>
#include <QUrl>
#include <cassert>

#include "core/failures.h"
#include "core/web_host.h"
#include "desktop/conversions.h"
#include "desktop/message_box.h"
#include "desktop/system_file_dialog.h"
#include "desktop/system_shell.h"

namespace orvanta::desktop {

namespace {

/// The window that a new dialog belongs to: the dialog in front or else the main window.
QWidget* owner() {
    if (QWidget* dialog = QApplication::activeModalWidget()) return dialog;
    for (QWidget* window : QApplication::topLevelWidgets())
        if (window->objectName() == QLatin1String("frmMain") && window->isVisible()) return window;
    return nullptr;
}

QString settingName(std::string_view section, std::string_view key) {
    return fromCp1252(section) + u'/' + fromCp1252(key);
}

QUrl urlOf(const std::string& target) {
    const QString text = fromPath(target);
    for (const char* scheme : {"http:", "https:", "mailto:"})
        if (text.startsWith(QLatin1String(scheme)))
            return QUrl(QString(text).replace(u' ', QLatin1String("%20")));
    return QUrl::fromLocalFile(text);
}

/// The path of a name from the toolkit, which parts all names with slashes.
std::string systemPath(const QString& name) { return toPath(QDir::toNativeSeparators(name)); }

/// The path of the copy that takes the target's place; empty if there is none.
QString copyBeside(const std::string& target) {
    const std::optional<std::string> copy = installedCopy(target);
    if (!copy) return {};
    const QString path = QDir(QCoreApplication::applicationDirPath()).filePath(fromCp1252(*copy));
    return QFileInfo(path).isFile() ? path : QString();
}

}  // namespace

MessageAnswer DesktopMessageBoxes::show(const Message& message) {
    MessageBox box(message, owner());
    box.exec();
    return box.answer();
}

std::optional<std::string> DesktopFileDialogs::choose(const FileDialogRequest& request) {
    const QStringList names = askForFiles(request, FileCount::One, owner());
    if (names.isEmpty()) return std::nullopt;
    return systemPath(names.front());
}

std::vector<std::string> DesktopFileDialogs::chooseSeveral(const FileDialogRequest& request) {
    std::vector<std::string> paths;
    for (const QString& name : askForFiles(request, FileCount::Several, owner()))
        paths.push_back(systemPath(name));
    return paths;
}

std::string DesktopSettings::read(std::string_view section, std::string_view key) const {
    return toPath(m_settings.value(settingName(section, key)).toString());
}

void DesktopSettings::write(std::string_view section, std::string_view key,
                            const std::string& value) {
    m_settings.setValue(settingName(section, key), fromPath(value));
    m_settings.sync();
}

void DesktopShell::open(const std::string& target) {
    const QString copy = copyBeside(target);
    openBySystem(copy.isEmpty() ? urlOf(target) : QUrl::fromLocalFile(copy));
}

double DesktopScreen::twipsPerPixel() const {
    constexpr double twipsPerInch = 1440;
    return twipsPerInch / QGuiApplication::primaryScreen()->logicalDotsPerInchX();
}

Program& DesktopForms::program() const {
    assert(m_program);
    return *m_program;
}

void DesktopForms::run(FrmSplash& form) {
    SplashDialog splash(program(), form);
    splash.whenSeen(m_behindSplash);
    splash.exec();
    m_behindSplash();
}
void DesktopForms::run(FrmEdit& form) { EditDialog(program(), form, owner()).exec(); }
void DesktopForms::run(FrmAbout& form) { AboutDialog(program(), form, owner()).exec(); }

void DesktopForms::run(FrmReportType& form) {
    ReportDialog dialog(program(), form, owner());
    m_report = &dialog;
    dialog.exec();
}

void DesktopForms::repaint(FrmReportType& form) {
    if (m_report && m_report->shows(form)) m_report->repaint();
}

void DesktopForms::setWaitCursor(bool on) {
    if (on)
        QApplication::setOverrideCursor(Qt::WaitCursor);
    else
        QApplication::restoreOverrideCursor();
}

// Quitting would close the windows first, and so ask again what has been asked.
void DesktopLifetime::end() { QCoreApplication::exit(); }

void DesktopLifetime::reportUnhandled(const Failure& failure) {
    reportFailure(m_messages, failure);
}

// A fresh account has none yet, and the program makes one folder of its own in it, not two. The
// folder may be the top of a drive.
std::string DesktopFolders::documents() const {
    QString folder = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    if (!folder.isEmpty()) QDir().mkpath(folder);
    while (folder.endsWith(u'/')) folder.chop(1);
    return systemPath(folder);
}

DesktopPlatform::DesktopPlatform(Disk& disk)
    : m_documentWriter(disk),
      m_lifetime(m_messages),
      m_platform{disk,     m_messages, m_fileDialogs, m_settings,       m_shell,    *m_player,
                 m_screen, m_forms,    m_printer,     m_wordProcessors, m_lifetime, m_folders} {}

}  // namespace orvanta::desktop
