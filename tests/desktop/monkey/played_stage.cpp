#include "played_stage.h"

#include <QApplication>
#include <QTimer>

#include "words.h"

namespace orvanta::monkey {

/// What stands in front keeps an event loop of its own.
template <class Show>
auto PlayedStage::whileActing(Show show) {
    QTimer turns;
    // What has closed may still be waited for: nobody acts on what is behind it until then.
    const QWidget* behind = QApplication::activeModalWidget();
    QObject::connect(&turns, &QTimer::timeout, [this, behind] {
        if (!behind || QApplication::activeModalWidget() != behind) m_act();
    });
    turns.start(0);
    return show();
}

template <class Form>
void PlayedStage::runTold(Form& form, std::string_view name) {
    if (m_recorder) {
        m_recorder->dialogOpened();
        m_recorder->shows(form);
    }
    whileActing([&] { m_forms.run(form); });
    if (m_recorder) m_recorder->dialogClosed(name);
}

void PlayedStage::attach(Program& program) {
    m_forms.setProgram(program);
    m_window = std::make_unique<desktop::MainWindow>(program);
}

MessageAnswer PlayedStage::answer(const Message& message, MessageAnswer) {
    const MessageAnswer answer =
        whileActing([&] { return desktop::DesktopMessageBoxes().show(message); });
    tellAnswer({{"answer", "message"}, {"button", driver::wordOf(answer)}});
    return answer;
}

std::optional<std::string> PlayedStage::answer(const FileDialogRequest& request,
                                               const std::optional<std::string>&) {
    auto path = whileActing([&] { return desktop::DesktopFileDialogs().choose(request); });
    tellAnswer({{"answer", "fileDialog"}, {"path", path ? driver::text(*path) : Json(nullptr)}});
    return path;
}

void PlayedStage::run(FrmEdit& form, const std::vector<driver::EditStep>&) {
    runTold(form, "frmEdit");
}

void PlayedStage::run(FrmReportType& form, const std::vector<driver::ReportStep>&) {
    runTold(form, "frmReportType");
}

void PlayedStage::run(FrmSplash& form) {
    whileActing([&] { m_forms.run(form); });
}

void PlayedStage::run(FrmAbout& form) {
    whileActing([&] { m_forms.run(form); });
}

}  // namespace orvanta::monkey
