#pragma once

#include <QPointer>
#include <QSettings>
#include <QWidget>

#include "desktop/dialogs.h"
#include "desktop/player.h"
#include "desktop/question_printer.h"
#include "reports/document_writer.h"
#ifdef _WIN32
#include "reports/windows_word_processor.h"
#endif

namespace orvanta::desktop {

// What the program needs of the world, as the desktop has it.

class DesktopMessageBoxes : public MessageBoxes {
public:
    MessageAnswer show(const Message& message) override;
};

class DesktopFileDialogs : public FileDialogs {
public:
    std::optional<std::string> choose(const FileDialogRequest& request) override;
    std::vector<std::string> chooseSeveral(const FileDialogRequest& request) override;
};

/// One file for each user; on Windows in the user's part of the registry.
class DesktopSettings : public Settings {
public:
    std::string read(std::string_view section, std::string_view key) const override;
    void write(std::string_view section, std::string_view key, const std::string& value) override;

private:
#ifdef _WIN32
    QSettings m_settings{QStringLiteral("HKEY_CURRENT_USER\\Software\\Orvanta"),
                         QSettings::NativeFormat};
#else
    QSettings m_settings;
#endif
};

/// Opens the installed copy of a page whose address can lead nowhere.
class DesktopShell : public Shell {
public:
    void open(const std::string& target) override;
};

class DesktopScreen : public orvanta::Screen {
public:
    double twipsPerPixel() const override;
};

class DesktopForms : public ModalForms {
public:
    void setProgram(Program& program) { m_program = &program; }

    /// What is done as soon as the splash is seen, and again when it has gone.
    void doBehindSplash(std::function<void()> act) { m_behindSplash = std::move(act); }

    void run(FrmSplash& form) override;
    void run(FrmEdit& form) override;
    void run(FrmReportType& form) override;
    void run(FrmAbout& form) override;
    void repaint(FrmReportType& form) override;
    void setWaitCursor(bool on) override;

private:
    Program& program() const;

    Program* m_program = nullptr;
    std::function<void()> m_behindSplash = [] {};
    QPointer<ReportDialog> m_report;
};

class DesktopLifetime : public Lifetime {
public:
    explicit DesktopLifetime(MessageBoxes& messages) : m_messages(messages) {}

    void end() override;
    void reportUnhandled(const Failure& failure) override;

private:
    MessageBoxes& m_messages;
};

/// Makes the documents folder, with its parents, where it is not there yet.
class DesktopFolders : public orvanta::Folders {
public:
    std::string documents() const override;
};

/// All of it together.
class DesktopPlatform {
public:
    /// The disk must outlive the platform.
    explicit DesktopPlatform(Disk& disk);

    Platform& platform() { return m_platform; }
    /// Called before the program starts.
    void setProgram(Program& program) { m_forms.setProgram(program); }
    void doBehindSplash(std::function<void()> act) { m_forms.doBehindSplash(std::move(act)); }
    /// False if the system's sound doesn't answer.
    bool endSound() { return m_player->end(); }

private:
    DesktopMessageBoxes m_messages;
    DesktopFileDialogs m_fileDialogs;
    DesktopSettings m_settings;
    DesktopShell m_shell;
    std::unique_ptr<DesktopPlayer> m_player = makePlayer();
    DesktopScreen m_screen;
    DesktopForms m_forms;
    PreviewingPrinter m_printer;
    DocumentWriter m_documentWriter;
#ifdef _WIN32
    WindowsWordProcessors m_wordProcessors{m_documentWriter};
#else
    WordProcessors& m_wordProcessors = m_documentWriter;
#endif
    DesktopLifetime m_lifetime;
    DesktopFolders m_folders;
    Platform m_platform;
};

}  // namespace orvanta::desktop
