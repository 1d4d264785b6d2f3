#pragma once

#include <map>
#include <string>
#include <vector>

namespace orvanta::test {

// What the eight statement lists, their copies and the journal are told to do, on plain vectors
// and texts: the yardstick for runs of random changes. It shares nothing with the program.

/// A row as far as changes touch it. `mark` is "green" or "red" for a mapped row, else empty.
struct ReferenceRow {
    std::string key, text;
    int image = 0, largeImage = 0;
    std::string subItem, mark;

    friend bool operator==(const ReferenceRow&, const ReferenceRow&) = default;
};
using ReferenceRows = std::vector<ReferenceRow>;

class ReferenceSession {
public:
    std::map<std::string, ReferenceRows> lists;     // by the name of the control
    std::map<char, int> lastNumbers;                // of the keys, by kind
    std::vector<std::string> undoStack, redoStack;  // oldest first

    // Module is 'B' or 'A', kind 'S', 'W', 'O' or 'T'. Positions count from 1.
    void add(char module, char kind, const std::string& typed);
    void edit(char module, char kind, int position, const std::string& typed);
    void remove(char module, char kind, int position);
    /// A row of a ranked list is dropped on another.
    void move(char module, char kind, int position, int onto);
    /// The row of a picking list is dropped on a row of the mapping list of `side`, 'O' or 'T'.
    void map(char side, char kind, int picked, int onto);
    /// A row of the mapping list is dropped on the picking list of a kind.
    void dragBack(char side, int position, char kind);
    /// A row of the mapping list is taken out by the command.
    void unmap(char side, int position);
    void undo() { replay(undoStack, redoStack); }
    void redo() { replay(redoStack, undoStack); }

    static std::string mainList(char module, char kind);
    static std::string pickingList(char side, char kind);
    static std::string mappingList(char side) { return side == 'O' ? "lvOpportunity" : "lvThreat"; }

private:
    using Fields = std::vector<std::string>;

    void recordChange(const Fields& fields);
    void replay(std::vector<std::string>& from, std::vector<std::string>& to);
    bool replayStatement(Fields& fields);
    bool replayMapping(Fields& fields);
    void replayRemovedRows(const Fields& fields);
    void setMappedTexts(const std::string& child, const std::string& text);
};

}  // namespace orvanta::test
