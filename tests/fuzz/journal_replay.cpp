// Each line of the input is a press of Undo ("u") or Redo ("r"), or a record that goes on one of
// the stacks as it stands: on that of Undo behind "U", on that of Redo behind any other letter. No
// record ends a press, a press takes the newest record and leaves one more on the other stack at
// most, and the lists stay sound. What undoing a record of the Brainstorm lists did to their texts,
// if anything, is taken back by redoing it. (A record of a row that is not there does nothing, but
// can be redone.)

#include <algorithm>

#include "core/kind_controls.h"
#include "core/text.h"
#include "fuzzed_program.h"
#include "journal/journal.h"
#include "sessionfiles/analyze_file.h"
#include "sessionfiles/brainstorm_file.h"

namespace orvanta::fuzz {

namespace {

constexpr const char* brainstorm =
    "<STRENGTH>\nBrand\nFleet\n</STRENGTH>\n<WEAKNESS>\nPrice\n</WEAKNESS>\n"
    "<OPPORTUNITY>\nExport\nOnline\n</OPPORTUNITY>\n<THREATS>\nStrike\n</THREATS>\n";
constexpr const char* analysis =
    "<STRENGTH>\nS1<!-SWOT-!><!-SWOT-!>Brand\nS2<!-SWOT-!><!-SWOT-!>Fleet\n</STRENGTH>\n"
    "<WEAKNESS>\nW1<!-SWOT-!><!-SWOT-!>Price\n</WEAKNESS>\n"
    "<OPPORTUNITY>\nO1<!-SWOT-!><!-SWOT-!>Export\nO2<!-SWOT-!><!-SWOT-!>Online\n</OPPORTUNITY>\n"
    "<THREATS>\nT1<!-SWOT-!><!-SWOT-!>Strike\n</THREATS>\n"
    "<OPPORTUNITYMAPPING>\nO1<!-SWOT-!><!-SWOT-!>Export\nO1-S1<!-SWOT-!><!-SWOT-!>Brand\n"
    "O2<!-SWOT-!><!-SWOT-!>Online\n</OPPORTUNITYMAPPING>\n"
    "<THREATMAPPING>\nT1<!-SWOT-!><!-SWOT-!>Strike\n</THREATMAPPING>\n";

std::ptrdiff_t sizeOf(const JournalRecords& records) {
    return std::ranges::count_if(records, [](const std::string& entry) { return !entry.empty(); });
}

bool isOfBrainstorm(std::string_view record) {
    const std::string_view tag = record.substr(0, record.find('<'));
    return tag.find("_B_") != tag.npos;
}

class Journal : public FuzzedProgram {
public:
    Journal() {
        disk.files["docs/one.bsm"] = brainstorm;
        disk.files["docs/team.aze"] = analysis;
        loadBrainstormData(program(), "docs/one.bsm", "BS", false);
        loadAnalyzeData(program(), "docs/team.aze", false);
    }

    void take(std::string_view line) {
        if (line.empty()) return;
        if (line == "u") return undo();
        if (line == "r") return press(false);
        JournalRecords& records = line.front() == 'U' ? form().undoRecords : form().redoRecords;
        std::rotate(records.begin(), records.begin() + 1, records.end());
        records.back() = line.substr(1);
    }

private:
    void undo() {
        const auto newest = std::find_if(form().undoRecords.rbegin(), form().undoRecords.rend(),
                                         [](const std::string& entry) { return !entry.empty(); });
        const bool isTried = newest != form().undoRecords.rend() && isOfBrainstorm(*newest) &&
                             sizeOf(form().redoRecords) == 0;
        const std::string before = brainstormBytes(form(), false);
        press(true);
        if (!isTried || brainstormBytes(form(), false) == before) return;
        press(false);
        require(brainstormBytes(form(), false) == before, "a redo takes back what its undo did");
    }

    void press(bool toUndo) {
        JournalRecords& from = toUndo ? form().undoRecords : form().redoRecords;
        JournalRecords& onto = toUndo ? form().redoRecords : form().undoRecords;
        const std::ptrdiff_t records = sizeOf(from), others = sizeOf(onto);
        const JournalRecords former = from;
        require(failureOf([&] { replayJournal(program(), toUndo); }) == 0,
                "no record ends a press");
        require(sizeOf(from) == std::max<std::ptrdiff_t>(records - 1, 0),
                "a press takes one record");
        require(sizeOf(onto) - others <= (records > 0 ? 1 : 0),
                "a press leaves one record at most on the other stack");
        require(sizeOf(onto) >= others, "a press takes none from the other stack");
        for (std::size_t index = 0; index < from.size(); ++index)
            require(from[index] == former[index] || from[index].empty(), "the others stay");
        requireSoundLists(form());
    }
};

}  // namespace

void tryInput(std::string_view bytes) {
    Journal journal;
    LineSource lines(bytes);
    for (int played = 0; played < 60; ++played) {
        const auto line = lines.next();
        if (!line) break;
        journal.take(*line);
    }
}

}  // namespace orvanta::fuzz
