#pragma once

#include <ostream>
#include <string>
#include <vector>

#include "bench.h"

namespace orvanta::test {

/// What a person sees of one statement kind in the Analyze module. The tests' own table, told
/// apart from the program's.
struct ReviewedKind {
    std::string name;    // of its tests
    std::string letter;  // of keys and records
    int image;
    std::string panel, box, list;
    Texts companions;     // the lists that a change goes on to
    std::string buttons;  // base name of Add, Edit and Remove
    std::string blankMessage;
    int presses;  // of Next, from the source files to its screen

    std::string key(int number) const { return letter + std::to_string(number); }
    std::string tag(const std::string& operation) const { return operation + "_A_" + letter; }
};
std::ostream& operator<<(std::ostream& out, const ReviewedKind& kind);

const std::vector<ReviewedKind>& reviewedKinds();
/// Strengths and weaknesses, which are picked for mappings.
std::vector<ReviewedKind> pickedKinds();
/// Opportunities and threats, which take mappings.
std::vector<ReviewedKind> parentKinds();

/// One of the two mapping screens.
struct MappingSide {
    std::string name;
    std::string letter;  // of the parents' keys
    int image;           // of the parents
    std::string panel, list, strengths, weaknesses;
    std::string parentWord;  // in messages
    std::string tagEnding;   // of journal records
    std::string unmapRoutine;
    int presses;

    std::string parent(int number) const { return letter + std::to_string(number); }
};
std::ostream& operator<<(std::ostream& out, const MappingSide& side);

const std::vector<MappingSide>& mappingSides();

/// The name of a parameter, for the names of tests.
struct NameOfParameter {
    template <class Info>
    std::string operator()(const Info& info) const {
        return info.param.name;
    }
};

/// A program whose Analyze module is open, with two brainstorm files listed: Ann's with two
/// statements of each kind and Bo's with one. Ann's first strength is "Ann S1".
class AnalysisBench : public Bench {
public:
    AnalysisBench();

    /// Presses Next so many times; nothing is kept of what was shown.
    void next(int presses);
    void goTo(const ReviewedKind& kind) { next(kind.presses); }
    void goTo(const MappingSide& side) { next(side.presses); }

    /// Drags a row of a picking list onto a row of a mapping list.
    void map(const std::string& pickingList, int row, const std::string& mappingList, int at);

    /// Puts every clip of the Analyze module on the disk.
    void addClips();

    const Row& row(const std::string& name, int position) { return list(name).row(position); }
    Texts keys(const std::string& name);
    /// Puts a row of another source label in the place of a row, all else the same.
    void relabel(const std::string& name, int position, const std::string& sourceLabel);

    /// The panels of the Analyze wizard that are switched on, by name.
    Texts stepsShown();
    bool isShown(const std::string& name);
};

std::string clipPath(const std::string& name);

// Events as the driver tells them.
Json narration(const std::string& movie);
Json stopped();
Json focusOn(const std::string& control);
Json refusal(const std::string& text);
Json information(const std::string& text);
/// A question of Yes and No without a title.
Json yesNoQuestion(const std::string& text, const std::string& answer);
Json setting(const std::string& key, const std::string& value);

}  // namespace orvanta::test
