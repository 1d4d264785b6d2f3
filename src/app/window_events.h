#pragma once

#include "core/session_state.h"

namespace orvanta {

// What a person does to the main window, as its view reports it. Positions of rows count from
// 1; 0 is outside every row. A failure that no routine catches ends the event and is told to
// Lifetime::reportUnhandled; the program goes on.

void windowActivated(Program& program);
/// True if the window may close; the program then ends.
bool windowClosing(Program& program);

void buttonPressed(Program& program, Button button);
void buttonReleased(Program& program, Button button);
void undoClicked(Program& program);
void redoClicked(Program& program);
void distributeClicked(Program& program);
void muteClicked(Program& program, bool on);

/// A character, or Enter as code 13, is about to go into a text box. False if the box refuses
/// it.
bool characterTyped(Program& program, TextBox& box, char character);

/// A drag passes over a list, the one in which it began included.
void draggedOver(Program& program, StatementList& list);
/// A drag ends on a row of a list.
void droppedOn(Program& program, StatementList& list, int position);
/// What a drop would act on: it can light up while a drag is over it. What is unseen takes the
/// drop but shows no change.
enum class DropTarget { Nothing, Unseen, Row, WholeList };
/// What a person is to know of a drop ahead of it.
struct DropPreview {
    DropTarget target = DropTarget::Nothing;
    const Row* statement = nullptr;    // what the drop would move, map or take back; null for none
    std::vector<std::string> lines{};  // Windows-1252; none where nothing lights up

    friend bool operator==(const DropPreview&, const DropPreview&) = default;
};
/// What a drop on a list, at a row or at 0 outside every row, would do with what was dragged from
/// another or the same list.
DropPreview previewOfDrop(const Program& program, const StatementList& from,
                          const StatementList& list, int position);
/// The mouse moves over a list.
void hoveredOver(Program& program, StatementList& list, int position);

/// A person drops a file on the list of source files.
void sourceFileDropped(Program& program, const std::string& path);

void autoSaveTicked(Program& program);

// Commands of the lists' menus.
void mergeChosen(Program& program);
void removeOpportunityMappingChosen(Program& program);
void removeThreatMappingChosen(Program& program);

}  // namespace orvanta
