#include "played_program.h"

#include <QApplication>

#include "claims.h"
#include "hand.h"

namespace orvanta::monkey {

namespace {

driver::Folders foldersIn(const Sandbox& files, const char* settings) {
    return {files.path("app"), files.path("docs"), files.path(settings)};
}

/// Lets all come to rest that an act has set off.
void settle() {
    for (int i = 0; i < 3; ++i) {
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

/// Where two states are not alike.
std::string differences(const Json& window, const Json& twin) {
    if (window == twin) return {};
    std::string told = "the window's program is not as its lines make it:\n";
    for (const Json& change : Json::diff(twin, window)) told += "  " + change.dump() + "\n";
    return told;
}

}  // namespace

PlayedProgram::PlayedProgram(Sandbox& files, Monkey& monkey)
    : m_files(files),
      m_monkey(monkey),
      m_folders(foldersIn(files, "settings")),
      m_twinFolders(foldersIn(files, "home/settings")),
      m_stage([&monkey] { monkey.actInFront(); }),
      m_driver(m_stage, m_disk, m_folders),
      m_twin(*m_twinStage, files.disk, m_twinFolders) {}

PlayedProgram::~PlayedProgram() { m_stage.destroyWindow(); }

std::string PlayedProgram::start() {
    const Json line{{"do", "start"}};
    m_monkey.leave();
    const Json window = m_driver.answer(line.dump()), twin = m_twin.answer(line.dump());
    m_recorder = std::make_unique<Recorder>(m_driver.program());
    m_recorder->inputIsUnderWay = Hand::isAtWork;
    m_stage.tell(m_recorder.get());
    m_monkey.meet(m_driver.program(), m_stage.window());
    QApplication::setActiveWindow(&m_stage.window());
    settle();
    return differences(window, twin);
}

std::string PlayedProgram::act(bool inStep) {
    m_monkey.act();
    settle();
    if (QApplication::activePopupWidget()) return {};  // what it is chosen for is yet to come
    if (std::string wrong = differsFromItsLines(); !wrong.empty()) return wrong;
    return hasEnded() ? std::string() : brokenClaim(inStep);
}

std::string PlayedProgram::differsFromItsLines() {
    Json events = Json::array();
    for (const Json& line : m_recorder->take()) {
        m_lines.push_back(line);
        noteWhatIsOpened(line);
        const Json answer = m_twin.answer(line.dump());
        if (answer.contains("error")) return line.dump() + " is refused: " + answer.dump();
        events.insert(events.end(), answer["events"].begin(), answer["events"].end());
    }
    if (m_monkey.hasTickedBehindABox())  // which no line tells
        for (const std::string& copy : copies()) m_files.takeOver(copy);
    const Json state{{"do", "state"}};
    Json window = m_driver.answer(state.dump()), twin = m_twin.answer(state.dump());
    twin["events"] = std::move(events);
    return differences(window, twin);
}

void PlayedProgram::noteWhatIsOpened(const Json& line) {
    if (line.value("do", "") == "press") m_pressed = line.value("button", "");
    const Json path = line.value("path", Json());
    if (m_pressed != "OAFile" || !path.is_string()) return;
    if (m_disk.kindOf(path) != PathKind::File) return;
    if (m_disk.read(path).find("<OPPORTUNITYMAPPING>") == std::string::npos)
        m_hasOpenedNoAnalysis = true;
}

std::vector<std::string> PlayedProgram::copies() {
    const Program& program = m_driver.program();
    return {program.brainstormTemporaryFile(), program.analyzeTemporaryFile()};
}

std::string PlayedProgram::differingFile() const {
    const std::string file = m_files.differingFile();
    return file.empty() ? "" : "the file " + file + " is not as its lines make it";
}

std::string PlayedProgram::brokenClaim(bool inStep) {
    const Program& program = m_driver.program();
    if (!m_recorder->ownDoing().empty())
        return "without anybody's doing: " + m_recorder->ownDoing();
    if (std::string wrong = looseRecord(program.frmMain); !wrong.empty()) return wrong;
    if (std::string wrong = wronglyShown(program, m_stage.window()); !wrong.empty()) return wrong;
    return inStep && !m_hasOpenedNoAnalysis ? outOfStep(program.frmMain) : std::string();
}

}  // namespace orvanta::monkey
