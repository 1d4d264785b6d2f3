// Stands between the window and the program. The linker calls what is `WRAPPED` here in place of
// the program's function of that symbol (wrapped_events.txt), which is `ORIGINAL` then.

#include "app/list_commands.h"
#include "app/window_events.h"
#include "recorder.h"
#include "view/text_entry.h"

#define ORIGINAL(symbol) asm("__real_" symbol)
#define WRAPPED(symbol) asm("__wrap_" symbol)

namespace orvanta::monkey {

namespace {

/// Runs an event, and has it written down where it is one of the program in the window. A button
/// of the driver's own program is nobody's doing.
template <class Act>
auto told(const Program& program, const Json& line, Act act) {
    Recorder* recorder = Recorder::of(program);
    return recorder ? recorder->event(line, act) : act();
}

Json onButton(const char* act, Program& program, Button button) {
    return {{"do", act}, {"button", program.frmMain.buttons[button].baseName}};
}

Json onControl(const Control& control) { return {{"do", "click"}, {"control", control.name()}}; }

/// A press of a button in a dialog.
template <class Form, class Act>
void toldInDialog(const Program& program, const Form& form, const char* press, Act act) {
    if (Recorder* recorder = Recorder::of(program)) recorder->pressed(form, press);
    act();
}

/// None for a character that the box takes: the text that comes of it is told.
Json lineOfKey(const TextBox& box, char character, bool taken) {
    if (character == enterKey) return {{"do", "enter"}, {"control", box.name()}};
    if (taken) return nullptr;
    return {{"do", "type"}, {"control", box.name()}, {"text", driver::text({&character, 1})}};
}

}  // namespace

#define EVENT(name, symbol, line)                              \
    void original##name(Program& program) ORIGINAL(symbol);    \
    void name(Program& program) WRAPPED(symbol);               \
    void name(Program& program) {                              \
        told(program, line, [&] { original##name(program); }); \
    }

EVENT(activated, "_ZN7orvanta15windowActivatedERNS_7ProgramE", (Json{{"do", "activate"}}))
EVENT(undoClicked, "_ZN7orvanta11undoClickedERNS_7ProgramE", onControl(program.frmMain.cmdUndo))
EVENT(redoClicked, "_ZN7orvanta11redoClickedERNS_7ProgramE", onControl(program.frmMain.cmdRedo))
EVENT(distributeClicked, "_ZN7orvanta17distributeClickedERNS_7ProgramE",
      onControl(program.frmMain.lblDistribute))
EVENT(ticked, "_ZN7orvanta14autoSaveTickedERNS_7ProgramE", (Json{{"do", "tick"}}))
EVENT(mergeChosen, "_ZN7orvanta11mergeChosenERNS_7ProgramE",
      (Json{{"do", "call"}, {"routine", "mergeBrainstormFiles"}}))

bool originalClosing(Program& program) ORIGINAL("_ZN7orvanta13windowClosingERNS_7ProgramE");
bool closing(Program& program) WRAPPED("_ZN7orvanta13windowClosingERNS_7ProgramE");
bool closing(Program& program) {
    return told(program, {{"do", "close"}}, [&] { return originalClosing(program); });
}

void originalPressed(Program& program, Button button)
    ORIGINAL("_ZN7orvanta13buttonPressedERNS_7ProgramENS_6ButtonE");
void pressed(Program& program, Button button)
    WRAPPED("_ZN7orvanta13buttonPressedERNS_7ProgramENS_6ButtonE");
void pressed(Program& program, Button button) {
    told(program, onButton("press", program, button), [&] { originalPressed(program, button); });
}

void originalReleased(Program& program, Button button)
    ORIGINAL("_ZN7orvanta14buttonReleasedERNS_7ProgramENS_6ButtonE");
void released(Program& program, Button button)
    WRAPPED("_ZN7orvanta14buttonReleasedERNS_7ProgramENS_6ButtonE");
void released(Program& program, Button button) {
    told(program, onButton("release", program, button), [&] { originalReleased(program, button); });
}

void originalMute(Program& program, bool on) ORIGINAL("_ZN7orvanta11muteClickedERNS_7ProgramEb");
void mute(Program& program, bool on) WRAPPED("_ZN7orvanta11muteClickedERNS_7ProgramEb");
void mute(Program& program, bool on) {
    told(program, {{"do", "mute"}, {"on", on}}, [&] { originalMute(program, on); });
}

bool originalTyped(Program& program, TextBox& box, char character)
    ORIGINAL("_ZN7orvanta14characterTypedERNS_7ProgramERNS_7TextBoxEc");
bool typed(Program& program, TextBox& box, char character)
    WRAPPED("_ZN7orvanta14characterTypedERNS_7ProgramERNS_7TextBoxEc");
bool typed(Program& program, TextBox& box, char character) {
    const bool isKey = character == enterKey;
    if (isKey)
        return told(program, lineOfKey(box, character, true),
                    [&] { return originalTyped(program, box, character); });
    const bool taken = originalTyped(program, box, character);
    return told(program, lineOfKey(box, character, taken), [taken] { return taken; });
}

void originalDraggedOver(Program& program, StatementList& list)
    ORIGINAL("_ZN7orvanta11draggedOverERNS_7ProgramERNS_13StatementListE");
void draggedOver(Program& program, StatementList& list)
    WRAPPED("_ZN7orvanta11draggedOverERNS_7ProgramERNS_13StatementListE");
void draggedOver(Program& program, StatementList& list) {
    if (Recorder* recorder = Recorder::of(program)) recorder->passedOver(list);
    originalDraggedOver(program, list);
}

void originalDropped(Program& program, StatementList& list, int position)
    ORIGINAL("_ZN7orvanta9droppedOnERNS_7ProgramERNS_13StatementListEi");
void dropped(Program& program, StatementList& list, int position)
    WRAPPED("_ZN7orvanta9droppedOnERNS_7ProgramERNS_13StatementListEi");
void dropped(Program& program, StatementList& list, int position) {
    Recorder* recorder = Recorder::of(program);
    told(program, recorder ? recorder->lineOfDrop(list, position) : nullptr,
         [&] { originalDropped(program, list, position); });
}

void originalHovered(Program& program, StatementList& list, int position)
    ORIGINAL("_ZN7orvanta11hoveredOverERNS_7ProgramERNS_13StatementListEi");
void hovered(Program& program, StatementList& list, int position)
    WRAPPED("_ZN7orvanta11hoveredOverERNS_7ProgramERNS_13StatementListEi");
void hovered(Program& program, StatementList& list, int position) {
    told(program, {{"do", "hover"}, {"list", list.name()}, {"row", position}},
         [&] { originalHovered(program, list, position); });
}

std::vector<ListCommand> originalCommands(const FrmMain& form, const Control& list)
    ORIGINAL("_ZN7orvanta14listCommandsOfERKNS_7FrmMainERKNS_7ControlE");
std::vector<ListCommand> commands(const FrmMain& form, const Control& list)
    WRAPPED("_ZN7orvanta14listCommandsOfERKNS_7FrmMainERKNS_7ControlE");
std::vector<ListCommand> commands(const FrmMain& form, const Control& list) {
    std::vector<ListCommand> all = originalCommands(form, list);
    if (!Recorder::of(form)) return all;
    for (ListCommand& command : all) {
        Json line{
            {"do", "menu"}, {"list", list.name()}, {"command", driver::text(command.caption)}};
        command.choose = [line, choose = command.choose](Program& program) {
            told(program, line, [&] { choose(program); });
        };
    }
    return all;
}

void originalCommit(Program& program, FrmEdit& form)
    ORIGINAL("_ZN7orvanta10commitEditERNS_7ProgramERNS_7FrmEditE");
void commit(Program& program, FrmEdit& form)
    WRAPPED("_ZN7orvanta10commitEditERNS_7ProgramERNS_7FrmEditE");
void commit(Program& program, FrmEdit& form) {
    toldInDialog(program, form, "enter", [&] { originalCommit(program, form); });
}

void originalOk(Program& program, FrmEdit& form)
    ORIGINAL("_ZN7orvanta13releaseEditOkERNS_7ProgramERNS_7FrmEditE");
void ok(Program& program, FrmEdit& form)
    WRAPPED("_ZN7orvanta13releaseEditOkERNS_7ProgramERNS_7FrmEditE");
void ok(Program& program, FrmEdit& form) {
    toldInDialog(program, form, "ok", [&] { originalOk(program, form); });
}

void originalCancel(Program& program, FrmEdit& form)
    ORIGINAL("_ZN7orvanta17releaseEditCancelERNS_7ProgramERNS_7FrmEditE");
void cancel(Program& program, FrmEdit& form)
    WRAPPED("_ZN7orvanta17releaseEditCancelERNS_7ProgramERNS_7FrmEditE");
void cancel(Program& program, FrmEdit& form) {
    toldInDialog(program, form, "cancel", [&] { originalCancel(program, form); });
}

void originalBrowse(Program& program, FrmReportType& form)
    ORIGINAL("_ZN7orvanta20browseForAnalyzeFileERNS_7ProgramERNS_13FrmReportTypeE");
void browse(Program& program, FrmReportType& form)
    WRAPPED("_ZN7orvanta20browseForAnalyzeFileERNS_7ProgramERNS_13FrmReportTypeE");
void browse(Program& program, FrmReportType& form) {
    toldInDialog(program, form, "browse", [&] { originalBrowse(program, form); });
    if (Recorder* recorder = Recorder::of(program)) recorder->shows(form);
}

void originalAccept(Program& program, FrmReportType& form)
    ORIGINAL("_ZN7orvanta12acceptReportERNS_7ProgramERNS_13FrmReportTypeE");
void accept(Program& program, FrmReportType& form)
    WRAPPED("_ZN7orvanta12acceptReportERNS_7ProgramERNS_13FrmReportTypeE");
void accept(Program& program, FrmReportType& form) {
    toldInDialog(program, form, "ok", [&] { originalAccept(program, form); });
}

}  // namespace orvanta::monkey
