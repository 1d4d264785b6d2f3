#pragma once

#include <initializer_list>
#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "driver.h"
#include "memory_disk.h"

namespace orvanta::test {

using driver::Json;

/// A row as a test compares it: key and text.
struct ShownRow {
    std::string key, text;

    friend bool operator==(const ShownRow&, const ShownRow&) = default;
    friend std::ostream& operator<<(std::ostream& out, const ShownRow& row) {
        return out << '{' << row.key << ", " << row.text << '}';
    }
};
using ShownRows = std::vector<ShownRow>;
ShownRows rowsOf(const StatementList& list);

using Texts = std::vector<std::string>;

/// The whole program on a memory disk, behind the toolkit-free view, played by the lines of the
/// test driver. The program's folder is "app", the documents folder "docs". Five banks of three
/// questions a list and seven-tag Analyze texts lie ready; a test may change the disk before it
/// starts the program. Texts of the helpers are Windows-1252, those of raw lines UTF-8.
class Bench {
public:
    Bench();
    ~Bench();

    MemoryDisk disk;
    Program& program() { return m_driver->program(); }
    FrmMain& form() { return program().frmMain; }

    /// Starts the program, with nothing kept of what it showed while starting.
    void start();
    /// A second run of the program on the same disk, settings included.
    void restart();

    /// Plays one line; the test fails if it is refused. Its events are added to events().
    void play(const Json& line);
    /// What the driver answers to a line, an error included; with slashes in its paths.
    Json answerTo(const Json& line);

    /// Everything that happened since the last call, in order.
    Json events();
    /// The events of one name among those.
    Json events(std::string_view name);
    /// The texts of the message boxes since the last call of either.
    Texts messages();

    // What a person does.
    void openBrainstorm(const std::string& option = "optGBS",
                        const std::string& name = "Dana Reyes");
    void openAnalyze() { click("Analyze"); }
    void enter(const std::string& box, std::initializer_list<std::string> texts);
    void set(const std::string& box, const std::string& text);
    void click(const std::string& button);          // a skinned button by its base name
    void clickControl(const std::string& control);  // cmdUndo, cmdRedo, lblDistribute
    void select(const std::string& list, int row);
    void drag(const std::string& from, int row, const std::string& to, int at);
    void answerMessage(const std::string& button);
    void answerFile(const std::string& path);
    /// Replaces the text in the Edit Statement dialog and presses OK.
    void answerEdit(const std::string& text);
    /// Puts a brainstorm file on the disk and in the list of source files.
    void addSource(const std::string& path, const std::string& name, const Texts& strengths,
                   const Texts& weaknesses, const Texts& opportunities, const Texts& threats);

    Control& control(const std::string& name);
    StatementList& list(const std::string& name);
    TextBox& box(const std::string& name);
    Button button(const std::string& baseName);
    ShownRows rows(const std::string& list);
    Texts texts(const std::string& list);
    /// The records of a journal stack that are not empty, oldest first.
    Texts undoRecords();
    Texts redoRecords();

private:
    void makeDriver();

    std::unique_ptr<driver::Stage> m_stage;
    std::unique_ptr<driver::Driver> m_driver;
    std::string m_settingsFile;
    Json m_events = Json::array();
};

/// What is left of a click's events without the button's own art.
Json withoutArt(const Json& events);

/// A bank with this many questions in each list, "S question 1" and so on.
std::string bankOf(int questions);

/// A brainstorm file.
std::string brainstormFile(const std::string& name, const std::string& moduleWord,
                           const Texts& strengths, const Texts& weaknesses,
                           const Texts& opportunities, const Texts& threats);

/// The lines with CR LF behind each.
std::string lines(const Texts& lines);

/// One journal record.
std::string record(const std::string& tag, int position, const std::string& key,
                   const std::string& text, const std::string& extra = {});

}  // namespace orvanta::test
