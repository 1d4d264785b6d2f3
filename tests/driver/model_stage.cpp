#include <algorithm>

#include "app/window_events.h"
#include "stage.h"
#include "view/text_entry.h"

namespace orvanta::driver {

namespace {

/// The toolkit-free view: acts go to the models and the program's events as a window would
/// send them.
class ModelStage : public Stage {
public:
    void attach(Program& program) override { m_program = &program; }

    void type(TextBox& box, const std::string& text) override {
        for (const char character : text)
            typeCharacter(box, character == '\n' ? enterKey : character);
    }
    void replaceText(TextBox& box, const std::string& text) override { paste(box, text); }
    void pressEnter(TextBox& box) override { typeCharacter(box, enterKey); }
    void press(Button button) override { buttonPressed(*m_program, button); }
    void release(Button button) override { buttonReleased(*m_program, button); }

    void click(Control& control) override {
        FrmMain& form = m_program->frmMain;
        if (&control == &form.cmdUndo) undoClicked(*m_program);
        if (&control == &form.cmdRedo) redoClicked(*m_program);
        if (&control == &form.lblDistribute) distributeClicked(*m_program);
    }

    void choose(Option& option) override { option.setOn(true); }
    void switchMute(bool on) override { muteClicked(*m_program, on); }
    void select(StatementList& list, int position) override { list.select(position); }
    void selectFile(int index) override { m_program->frmMain.lstFiles.setSelectedIndex(index); }

    void drag(StatementList& from, int row, const std::vector<StatementList*>& over,
              StatementList& to, int position) override {
        from.select(row);
        draggedOver(*m_program, from);
        for (StatementList* list : over) draggedOver(*m_program, *list);
        draggedOver(*m_program, to);
        droppedOn(*m_program, to, position);
    }

    void hover(StatementList& list, int position) override {
        hoveredOver(*m_program, list, position);
    }
    void chooseFromMenu(Control&, const ListCommand& command) override {
        command.choose(*m_program);
    }
    void activate() override { windowActivated(*m_program); }
    void close() override { windowClosing(*m_program); }

    MessageAnswer answer(const Message&, MessageAnswer answer) override { return answer; }
    std::optional<std::string> answer(const FileDialogRequest&,
                                      const std::optional<std::string>& path) override {
        return path;
    }

    void run(FrmEdit& form, const std::vector<EditStep>& steps) override {
        for (const EditStep& step : steps)
            if (form.open) act(form, step);
        form.close();
    }

    void run(FrmReportType& form, const std::vector<ReportStep>& steps) override {
        for (const ReportStep& step : steps)
            if (form.open && form.enabled) act(form, step);
        form.close();
    }

    void run(FrmSplash&) override {}
    void run(FrmAbout& form) override { form.close(); }

private:
    void typeCharacter(TextBox& box, char character) {
        if (characterTyped(*m_program, box, character) && isPrintable(character))
            box.setText(box.text() + character);
    }

    /// Over the whole text of a box.
    static void paste(TextBox& box, const std::string& text) {
        box.setText(withinLimit({}, {text, text.size()}, box.maxLength()).text);
    }

    void act(FrmEdit& form, const EditStep& step) {
        switch (step.act) {
            case EditStep::Act::Text:
                paste(form.txtEdit, step.text);
                break;
            case EditStep::Act::Ok:
                pressEditButton(*m_program, form.btnOk);
                releaseEditOk(*m_program, form);
                break;
            case EditStep::Act::Cancel:
                pressEditButton(*m_program, form.btnCancel);
                releaseEditCancel(*m_program, form);
                break;
            case EditStep::Act::Enter:
                commitEdit(*m_program, form);
                break;
            case EditStep::Act::Picture:
                break;
        }
    }

    void act(FrmReportType& form, const ReportStep& step) {
        switch (step.act) {
            case ReportStep::Act::Format:
                form.cboFormat.setSelectedIndex(step.format);
                break;
            case ReportStep::Act::Text:
                paste(form.txtEdit, step.text);
                break;
            case ReportStep::Act::Browse:
                browseForAnalyzeFile(*m_program, form);
                break;
            case ReportStep::Act::Ok:
                acceptReport(*m_program, form);
                break;
            case ReportStep::Act::Cancel:
                form.close();
                break;
            case ReportStep::Act::Picture:
                break;
        }
    }

    Program* m_program = nullptr;
};

}  // namespace

std::unique_ptr<Stage> makeModelStage() { return std::make_unique<ModelStage>(); }

}  // namespace orvanta::driver
