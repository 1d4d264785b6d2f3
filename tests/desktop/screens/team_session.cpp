#include "team_session.h"

#include <array>

#include "desktop/dialogs.h"
#include "desktop/message_box.h"
#include "session.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

class TeamSession : Session {
public:
    TeamSession(Album& album, Team team) : Session(album), m_team(team) {}

    void takeAll() {
        open();
        takeBrainstorming();
        takeAnalysis();
        if (m_team == Team::Silent) return;
        takeMenu("lvStrengthTh", 1);
        takeDrag(1, 1);
        takeDialogs();
    }

private:
    void takeBrainstorming() {
        m_bench.openBrainstorm("optMP");
        answerAll("txtStrength", &Member::strengths);
        chooseLast("lvBStrength");
        take("question-strengths");
        goTo("fraThreats");
        answerAll("txtThreat", &Member::threats);
        while (!m_bench.form().onLastQuestion) m_bench.click("BNext");
        chooseLast("lvBThreat");
        take("question-threats");
    }

    void takeAnalysis() {
        openAnalysis();
        if (m_team == Team::Silent) take("no-source-files");
        addSourcesOf(m_team);
        take("source-files");
        for (const auto& [list, name] : {std::pair("lvAStrength", "analyze-strengths"),
                                         std::pair("lvAWeakness", "analyze-weaknesses"),
                                         std::pair("lvAOpportunity", "analyze-opportunities"),
                                         std::pair("lvAThreat", "analyze-threats")}) {
            m_bench.click("ANext");
            chooseLast(list);
            take(name);
        }
        takeMapping("Op", "lvOpportunity", "mapping-opportunities");
        takeMapping("Th", "lvThreat", "mapping-threats");
    }

    void takeMapping(const std::string& ending, const std::string& parents, const char* name) {
        m_bench.click("ANext");
        const std::string strengths = "lvStrength" + ending, weaknesses = "lvWeakness" + ending;
        if (m_team != Team::Silent)
            for (const std::string& picking : {strengths, weaknesses})
                m_bench.drag(picking, 1, parents, 1);
        for (const std::string& list : {strengths, weaknesses, parents}) chooseLast(list);
        take(name);
    }

    void takeDialogs() {
        QWidget* window = &m_bench.window();
        const std::string statement = statementOf(m_team);
        FrmEdit edit;
        edit.txtEdit.setText(statement);
        EditDialog editDialog(m_bench.program(), edit, window);
        takeDialog(editDialog, "edit-dialog");
        MessageBox question({.text = "Is this to be kept?\n" + statement,
                             .icon = MessageIcon::Question,
                             .buttons = MessageButtons::YesNoCancel},
                            window);
        takeDialog(question, "message-question");
        QStringList files;
        for (const Member& member : membersOf(m_team)) files << fromCp1252(member.name + ".bsm");
        takeFileDialog(files);
    }

    void answerAll(const std::string& box, Texts Member::*statements) {
        for (const Member& member : membersOf(m_team))
            for (const std::string& text : member.*statements) m_bench.enter(box, {text});
    }

    /// The row at the end is the one that something at the foot would cover.
    void chooseLast(const std::string& name) {
        QCoreApplication::processEvents();  // a screen that has just come up shows its first rows
        const int last = m_bench.list(name).count();
        if (last == 0) return;
        m_bench.select(name, last);
        m_bench.widget<QAbstractItemView>(name).scrollToBottom();
    }

    Team m_team;
};

}  // namespace

void takeSessionOf(Team team, Album& album) { TeamSession(album, team).takeAll(); }

}  // namespace orvanta::test
