#include "session.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <fstream>
#include <iterator>

#include "data_folder.h"
#include "desktop/file_chooser.h"
#include "desktop/platform.h"

namespace orvanta::test {

using namespace orvanta::desktop;

namespace {

std::string bytesOf(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string folderWith(const QStringList& files) {
    QDir folder(QDir::homePath() + QStringLiteral("/My SWOT"));
    folder.removeRecursively();
    QDir().mkpath(folder.path());
    for (const QString& name : files) QFile(folder.filePath(name)).open(QIODevice::WriteOnly);
    return toCp1252(folder.path());
}

}  // namespace

Session::Session(Album& album) : m_album(album) {
    for (const char* name : {"gbs", "hrp", "mp", "psd", "sbd", "analyze"}) {
        const std::string file = std::string(name) + "questions.txt";
        m_bench.disk.files["app/" + file] = bytesOf(dataFolder() + '/' + file);
    }
}

void Session::open() {
    m_bench.start();
    m_bench.window().show();
    QApplication::setActiveWindow(&m_bench.window());
}

void Session::takeDialog(QWidget& dialog, const char* name) {
    dialog.show();
    m_album.take(dialog, QLatin1String(name));
    dialog.hide();
}

void Session::takeFileDialog(const QStringList& files) {
    FileChooser chooser({.mode = FileDialogMode::Open,
                         .filter = "All Brainstorming Files (*.bsm)|*.bsm",
                         .initialPath = folderWith(files),
                         .fileName = {}},
                        FileRules::Heeded, &m_bench.window());
    takeDialog(chooser, "file-dialog");
}

void Session::takeMenu(const std::string& name, int row) {
    m_bench.select(name, row);
    auto& list = m_bench.widget<StatementListView>(name);
    list.setFocus();
    const QPoint place = list.visualRect(list.indexAtPosition(row)).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, place, list.viewport()->mapToGlobal(place));
    QApplication::sendEvent(list.viewport(), &event);
    QWidget& menu = *QApplication::activePopupWidget();
    m_album.takeWith(m_bench.window(), menu, QStringLiteral("menu"));
    menu.close();
}

void Session::takeDrag(int strength, int threat) {
    m_bench.select("lvStrengthTh", strength);
    m_bench.widget("lvStrengthTh").setFocus();
    auto& list = m_bench.widget<StatementListView>("lvThreat");
    list.scrollTo(list.indexAtPosition(threat));
    const QPoint place = list.visualRect(list.indexAtPosition(threat)).center();
    draggedOver(m_bench.program(), m_bench.list("lvStrengthTh"));
    const StatementDrag load(m_bench.list("lvStrengthTh"));
    QDragEnterEvent enter(place, Qt::MoveAction, &load, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(list.viewport(), &enter);
    take("drag");
    QDragLeaveEvent leave;
    QApplication::sendEvent(list.viewport(), &leave);
}

void Session::goTo(const std::string& panel) {
    while (!m_bench.control(panel).isVisible()) m_bench.click("BNext");
}

void Session::openAnalysis() {
    m_bench.answerMessage("no");  // the answers are not to be saved
    m_bench.openAnalyze();
}

void Session::addSourcesOf(Team team) {
    for (const Member& member : membersOf(team))
        m_bench.addSource("docs/My SWOT/" + member.name + ".bsm", member.name, member.strengths,
                          member.weaknesses, member.opportunities, member.threats);
}

}  // namespace orvanta::test
