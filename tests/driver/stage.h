#pragma once

#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "app/list_commands.h"
#include "core/session_state.h"
#include "presentation/about_box.h"
#include "presentation/edit_dialog.h"
#include "presentation/splash.h"
#include "reports/report_dialog.h"

namespace orvanta::driver {

/// One thing that a person does in the Edit Statement dialog.
struct EditStep {
    enum class Act { Text, Ok, Cancel, Enter, Picture } act;
    // For Text: what replaces the box's text, cut to what the box takes. For Picture: the path
    // (UTF-8) of the picture that is taken of the dialog; without a window none is.
    std::string text{};
};

/// One thing that a person does in the report dialog.
struct ReportStep {
    enum class Act { Format, Text, Browse, Ok, Cancel, Picture } act;
    int format = 0;      // for Format: the index of the item
    std::string text{};  // for Text; for Picture: as in an EditStep
};

/// Where the program is played: behind the toolkit-free view, or in the real window. What a
/// line of the script means has been decided before; a stage only carries it out. All texts
/// are Windows-1252. Positions of rows count from 1, 0 is none or outside every row.
class Stage {
public:
    virtual ~Stage() = default;

    /// Puts the program on stage: called once, before it starts. It outlives the stage's use.
    virtual void attach(Program& program) = 0;
    /// Lets everything that is still under way come to rest: called behind each line.
    virtual void settle() {}

    // A person's acts on the main window. Each control is reachable.
    virtual void type(TextBox& box, const std::string& text) = 0;  // at the end of the box
    virtual void replaceText(TextBox& box, const std::string& text) = 0;
    virtual void pressEnter(TextBox& box) = 0;
    virtual void press(Button button) = 0;
    virtual void release(Button button) = 0;
    virtual void click(Control& control) = 0;  // cmdUndo, cmdRedo or lblDistribute
    virtual void choose(Option& option) = 0;
    virtual void switchMute(bool on) = 0;
    virtual void select(StatementList& list, int position) = 0;
    virtual void selectFile(int index) = 0;  // in lstFiles, from 0; -1 none
    virtual void drag(StatementList& from, int row, const std::vector<StatementList*>& over,
                      StatementList& to, int position) = 0;
    virtual void hover(StatementList& list, int position) = 0;
    /// A command that the list's menu offers now.
    virtual void chooseFromMenu(Control& list, const ListCommand& command) = 0;
    virtual void activate() = 0;
    virtual void close() = 0;

    // What comes up. Each shows it, answers it as told, and returns what the program gets.
    virtual MessageAnswer answer(const Message& message, MessageAnswer answer) = 0;
    virtual std::optional<std::string> answer(const FileDialogRequest& request,
                                              const std::optional<std::string>& path) = 0;
    /// After the last step a dialog that is still open is closed.
    virtual void run(FrmEdit& form, const std::vector<EditStep>& steps) = 0;
    virtual void run(FrmReportType& form, const std::vector<ReportStep>& steps) = 0;
    /// These two close at once by themselves.
    virtual void run(FrmSplash& form) = 0;
    virtual void run(FrmAbout& form) = 0;
    virtual void repaint(FrmReportType&) {}

    /// Writes a picture of what a person sees; false where there is nothing to see.
    virtual bool takePicture(const std::string& path) {
        (void)path;
        return false;
    }
};

std::unique_ptr<Stage> makeModelStage();
#ifdef ORVANTA_DESKTOP
std::unique_ptr<Stage> makeWindowStage(int& argc, char** argv);
#endif

}  // namespace orvanta::driver
