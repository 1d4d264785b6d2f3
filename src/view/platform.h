#pragma once

#include <array>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "view/failure.h"

namespace orvanta {

struct FrmEdit;
struct FrmReportType;
struct FrmSplash;
struct FrmAbout;

// What the program needs of the world, one small class for each thing. All texts and paths are
// Windows-1252; the implementations convert.

#ifdef _WIN32
constexpr char pathSeparator = '\\';
#else
constexpr char pathSeparator = '/';
#endif

enum class PathKind { Missing, File, Folder };

class Disk {
public:
    virtual ~Disk() = default;
    /// Missing also where the path can't be looked at.
    virtual PathKind kindOf(const std::string& path) const = 0;
    /// The bytes of a file. Fails with FileNotFound, PathNotFound, PathFileAccess or
    /// PermissionDenied.
    virtual std::string read(const std::string& path) const = 0;
    /// Puts these bytes in the place of a file, as a whole or not at all. Fails as read does,
    /// or with DiskFull; the former file is then as it was.
    virtual void replace(const std::string& path, std::string_view bytes) = 0;
    /// The same two for a file that the program keeps for itself. A link in its place is somebody
    /// else's doing: nothing is read or written through it, and the new file takes its place.
    virtual std::string readOwn(const std::string& path) const { return read(path); }
    virtual void replaceOwn(const std::string& path, std::string_view bytes) {
        replace(path, bytes);
    }
    /// Fails where the folder can't be made.
    virtual void makeFolder(const std::string& path) = 0;
    /// Deletes a file. Fails with FileNotFound, PermissionDenied or PathFileAccess.
    virtual void remove(const std::string& path) = 0;
};

enum class MessageIcon { None, Stop, Question, Information };
enum class MessageButtons { Ok, YesNo, YesNoCancel };
enum class MessageAnswer { Ok, Yes, No, Cancel };

inline constexpr std::array okAnswers{MessageAnswer::Ok};
inline constexpr std::array yesNoCancelAnswers{MessageAnswer::Yes, MessageAnswer::No,
                                               MessageAnswer::Cancel};

/// The answers that a box has, one for each of its buttons. To close the box is to give the last.
constexpr std::span<const MessageAnswer> answersOf(MessageButtons buttons) {
    const std::span<const MessageAnswer> yesNoCancel(yesNoCancelAnswers);
    switch (buttons) {
        case MessageButtons::Ok:
            break;
        case MessageButtons::YesNo:
            return yesNoCancel.first(2);
        case MessageButtons::YesNoCancel:
            return yesNoCancel;
    }
    return okAnswers;
}

struct Message {
    std::string text;
    MessageIcon icon = MessageIcon::None;
    MessageButtons buttons = MessageButtons::Ok;
    MessageAnswer defaultAnswer = MessageAnswer::Ok;
    std::optional<std::string> title{};  // none: the default title of the message service
};

class MessageBoxes {
public:
    virtual ~MessageBoxes() = default;
    virtual MessageAnswer show(const Message& message) = 0;
};

enum class FileDialogMode { Open, Save };

/// What a file dialog starts from. The filter is "description|pattern"; the initial path may
/// name a folder or a file.
struct FileDialogRequest {
    FileDialogMode mode;
    std::string filter, initialPath, fileName;
};

class FileDialogs {
public:
    virtual ~FileDialogs() = default;
    /// The chosen path as it is, whether or not it exists; none if the person cancelled.
    virtual std::optional<std::string> choose(const FileDialogRequest& request) = 0;
    /// The same where several files to open can be chosen at once, in the order of the dialog; none
    /// if the person cancelled. A dialog that can't give several gives one.
    virtual std::vector<std::string> chooseSeveral(const FileDialogRequest& request) {
        const auto chosen = choose(request);
        return chosen ? std::vector{*chosen} : std::vector<std::string>{};
    }
};

class Settings {
public:
    virtual ~Settings() = default;
    /// The stored value, or an empty text.
    virtual std::string read(std::string_view section, std::string_view key) const = 0;
    virtual void write(std::string_view section, std::string_view key,
                       const std::string& value) = 0;
};

class Shell {
public:
    virtual ~Shell() = default;
    /// Hands a file, a web page or a mail link to the program that the desktop has for it. What
    /// comes of it is not told.
    virtual void open(const std::string& target) = 0;
};

/// Plays one clip at a time. Neither call waits or fails; what is no clip is silence.
class Player {
public:
    virtual ~Player() = default;
    virtual void setMovie(const std::string& path) = 0;
    /// Starts the movie in place of whatever plays.
    virtual void play() = 0;
};

class Screen {
public:
    virtual ~Screen() = default;
    /// Twips to a pixel, across: 15 at 96 dpi, 12 at 120 dpi.
    virtual double twipsPerPixel() const = 0;
};

/// Shows the dialogs of the program, each modal. A call returns when the dialog has closed.
class ModalForms {
public:
    virtual ~ModalForms() = default;
    virtual void run(FrmSplash& form) = 0;
    virtual void run(FrmEdit& form) = 0;
    virtual void run(FrmReportType& form) = 0;
    virtual void run(FrmAbout& form) = 0;
    /// Lets a dialog draw itself before work that keeps the thread.
    virtual void repaint(FrmReportType& form) = 0;
    virtual void setWaitCursor(bool on) = 0;
};

struct QuestionSheets;

class QuestionPrinter {
public:
    virtual ~QuestionPrinter() = default;
    virtual void print(const QuestionSheets& sheets) = 0;
};

class WordProcessors;  // in reports/, with the object model that it opens

/// The run of the program itself.
class Lifetime {
public:
    virtual ~Lifetime() = default;
    /// Ends the program once the present event has been dealt with.
    virtual void end() = 0;
    /// Tells a person of a failure that no routine caught. The program goes on.
    virtual void reportUnhandled(const Failure& failure) = 0;
};

class Folders {
public:
    virtual ~Folders() = default;
    /// The user's documents folder, with no separator at its end; empty if there is none.
    virtual std::string documents() const = 0;
};

/// Hears of what the disk did not take, and of what is about to be lost.
class FailedSaves {
public:
    virtual ~FailedSaves() = default;
    /// The bytes of a session that were meant for this path and are in no file.
    virtual void sessionNotWritten(const std::string& path, std::string_view bytes) = 0;
    /// The bytes of the open session that were meant for the program's own copy of it.
    virtual void copyNotWritten(const std::string& path, std::string_view bytes) = 0;
    /// The bytes of an analysis with changes of which no question was asked: another one takes its
    /// place.
    virtual void analysisReplaced(std::string_view bytes) = 0;
    /// A report; what it was made from still stands in its own file.
    virtual void documentNotWritten(const std::string& path) = 0;
};

struct Platform {
    Disk& disk;
    MessageBoxes& messages;
    FileDialogs& fileDialogs;
    Settings& settings;
    Shell& shell;
    Player& player;
    Screen& screen;
    ModalForms& modalForms;
    QuestionPrinter& questionPrinter;
    WordProcessors& wordProcessors;
    Lifetime& lifetime;
    Folders& folders;
    FailedSaves* failedSaves = nullptr;  // null: nobody is told
};

}  // namespace orvanta
