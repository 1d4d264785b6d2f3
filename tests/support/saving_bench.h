#pragma once

#include <functional>
#include <ostream>
#include <string>
#include <vector>

#include "bench.h"

namespace orvanta::test {

/// What a person sees of the saving of one session. The tests' own table, told apart from the
/// program's.
struct SavedSession {
    std::string name;  // of its tests
    bool FrmMain::*changed;
    std::string FrmMain::*lastPath;
    std::string panel, filter, settingKey, temporaryFile, question, doneMessage;
    bool (*save)(Program&);    // the save dialog and what follows
    bool (*prompt)(Program&);  // the question about unsaved changes
    void (*begin)(Bench&);     // opens the module and adds a strength
    std::string saved;         // the file of what was begun, byte by byte

    /// The copy of what was begun, made while the strengths are on screen.
    std::string copy() const { return "<STEP>\r\nST\r\n</STEP>\r\n" + saved; }
};
std::ostream& operator<<(std::ostream& out, const SavedSession& session);

const std::vector<SavedSession>& savedSessions();

/// A started program in which one of the sessions was begun and so has unsaved changes.
class BegunSession {
public:
    explicit BegunSession(const SavedSession& session);

    /// Runs a routine of the program and takes its events down.
    bool run(bool (*routine)(Program&));
    bool isChanged() { return bench.form().*session.changed; }
    bool hasCopy() { return bench.disk.files.contains(session.temporaryFile); }

    const SavedSession& session;
    Bench bench;
};

// Events as the driver tells them.
Json fileDialog(const std::string& mode, const std::string& filter, const std::string& initialPath,
                const Json& answer);
/// The question of Yes, No and Cancel about unsaved changes.
Json savePrompt(const SavedSession& session, const std::string& answer);
/// The question before a file is overwritten; `title` is null where the box has none of its own.
Json overwriteQuestion(const std::string& answer, const Json& title);

}  // namespace orvanta::test
