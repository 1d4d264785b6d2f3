#pragma once

#include "analysis_bench.h"

namespace orvanta::test {

/// What a person sees of one statement kind in the Brainstorm module. The tests' own table, told
/// apart from the program's.
struct AnsweredKind {
    std::string name;    // of its tests
    std::string letter;  // of keys, records and clips
    int image;
    std::string panel, question, box, list;
    std::string buttons;  // base name of Add, Edit and Remove
    std::string blankMessage;

    std::string key(int number) const { return letter + std::to_string(number); }
    std::string tag(const std::string& operation) const { return operation + "_B_" + letter; }
    /// The text of a question in the bank that a bench has.
    std::string asks(int number) const {
        return " " + letter + " question " + std::to_string(number);
    }
};
std::ostream& operator<<(std::ostream& out, const AnsweredKind& kind);

/// In the order in which the wizard asks for them.
const std::vector<AnsweredKind>& answeredKinds();

/// A program whose Brainstorm wizard asks its first question, of three a list. No clip is there.
class BrainstormBench : public Bench {
public:
    BrainstormBench();

    /// Presses Next or Back so many times; nothing is kept of what was shown.
    void next(int presses);
    void back(int presses);
    /// Goes from the first question of all to a question of a kind.
    void goTo(const AnsweredKind& kind, int question = 1);

    /// Puts the clips of all questions of a module on the disk.
    void addClips(const std::string& code);

    std::string asked(const AnsweredKind& kind);
    /// The panels of the four lists that are switched on, by name.
    Texts stepsShown();
};

}  // namespace orvanta::test
