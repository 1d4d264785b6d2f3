#pragma once

#include <memory>

#include "desktop/main_window.h"
#include "desktop/platform.h"
#include "recorder.h"
#include "stage.h"

namespace orvanta::monkey {

/// The real window, in which somebody acts: not by lines, but with keys and a mouse. Its boxes and
/// dialogs stand until they are answered, as those of the program do.
class PlayedStage : public driver::Stage {
public:
    /// `act`: does something to what is in front; called again and again while a box stands.
    explicit PlayedStage(std::function<void()> act) : m_act(std::move(act)) {}

    desktop::MainWindow& window() { return *m_window; }
    /// Who writes down the answers; null as long as nobody does.
    void tell(Recorder* recorder) { m_recorder = recorder; }
    void destroyWindow() { m_window.reset(); }

    void attach(Program& program) override;
    /// The window is active once it is shown.
    void activate() override {}

    MessageAnswer answer(const Message& message, MessageAnswer) override;
    std::optional<std::string> answer(const FileDialogRequest& request,
                                      const std::optional<std::string>&) override;
    void run(FrmEdit& form, const std::vector<driver::EditStep>&) override;
    void run(FrmReportType& form, const std::vector<driver::ReportStep>&) override;
    void run(FrmSplash& form) override;
    void run(FrmAbout& form) override;
    void repaint(FrmReportType& form) override { m_forms.repaint(form); }

    // No line acts here.
    void type(TextBox&, const std::string&) override {}
    void replaceText(TextBox&, const std::string&) override {}
    void pressEnter(TextBox&) override {}
    void press(Button) override {}
    void release(Button) override {}
    void click(Control&) override {}
    void choose(Option&) override {}
    void switchMute(bool) override {}
    void select(StatementList&, int) override {}
    void selectFile(int) override {}
    void drag(StatementList&, int, const std::vector<StatementList*>&, StatementList&,
              int) override {}
    void hover(StatementList&, int) override {}
    void chooseFromMenu(Control&, const ListCommand&) override {}
    void close() override {}

private:
    template <class Show>
    auto whileActing(Show show);
    template <class Form>
    void runTold(Form& form, std::string_view name);
    void tellAnswer(const Json& answer) {
        if (m_recorder) m_recorder->answered(answer);
    }

    const std::function<void()> m_act;
    desktop::DesktopForms m_forms;
    std::unique_ptr<desktop::MainWindow> m_window;
    Recorder* m_recorder = nullptr;
};

}  // namespace orvanta::monkey
