#include "brainstorm/wizard.h"

#include <optional>

#include "brainstorm/statements.h"
#include "core/answer_prompt.h"
#include "core/failures.h"
#include "core/kind_controls.h"
#include "core/messages.h"
#include "core/modules.h"
#include "core/text.h"
#include "questions/bank_reader.h"
#include "questions/narration.h"
#include "questions/question_banks.h"
#include "sessionfiles/saving.h"

namespace orvanta {

namespace {

constexpr Bounds topLeftCorner(Bounds bounds) {
    bounds.left = bounds.top = {};
    return bounds;
}

constexpr StatementKind firstKind = statementKinds.front(), lastKind = statementKinds.back();

/// The kind whose list is on screen; none on the module choice screen.
std::optional<StatementKind> kindOnScreen(const FrmMain& form) {
    for (const StatementKind kind : statementKinds)
        if ((form.*kindControls[kind].questionPanel).isVisible()) return kind;
    return std::nullopt;
}

StatementKind neighbour(StatementKind kind, int steps) {
    return static_cast<StatementKind>(static_cast<int>(kind) + steps);
}

void setNextToolTip(FrmMain& form, const std::string& toolTip) {
    form.buttons[Button::BNext].setToolTip(toolTip);
}

/// One press of Next or Back.
class WizardMove {
public:
    explicit WizardMove(Program& program)
        : m_program(program), m_form(program.frmMain), m_code(chosenCode(program.frmMain)) {}

    bool startsQuestions() {
        if (trimBlanks(m_form.txtName.text()).empty()) {
            refuse(m_program.platform.messages, "Please enter your name.");
            m_form.txtName.giveFocus();
            return false;
        }
        if (m_code.empty()) {
            refuse(m_program.platform.messages, noModuleMessage);
            return false;
        }
        if (!loadModuleQuestions(m_program, m_code)) return false;
        m_form.onLastQuestion = false;
        enter(firstKind);
        return true;
    }

    /// False if the session was to be saved and was not.
    bool goesOnFrom(StatementKind kind) {
        if (wantsAnswerAdded(m_program, m_form.*controlsOf(Session::Brainstorm, kind).box))
            addBrainstormStatement(m_program, kind);
        const bool last = kind == lastKind;
        const int count = countOf(kind);
        if (m_form.questionStep < count - 1) {
            announce(kind, ++m_form.questionStep);
        } else if (m_form.questionStep == count - 1 && !m_form.onLastQuestion) {
            reachLastQuestion(kind, last);
        } else if (m_form.onLastQuestion) {
            return last ? save() : leave(kind);
        }
        // A list of exactly one question gets here: it can't be left by Next.
        return true;
    }

    void goBackFrom(StatementKind kind) {
        if (m_form.questionStep > 0) {
            m_form.onLastQuestion = false;
            --m_form.questionStep;
            if (m_form.questionStep > 0)
                askAgain(kind);
            else
                goBackBeyond(kind);
        }
        // Only the last list ever turns the button into Save.
        if (kind == lastKind) setNextCaption(nextCaption);
    }

private:
    const std::vector<std::string>& questionsOf(StatementKind kind) const {
        return m_program.questions.*bankListOf(kind).questions;
    }
    std::int16_t countOf(StatementKind kind) const {
        return m_program.questions.*bankListOf(kind).count;
    }
    std::string clipOf(StatementKind kind, int number) const {
        return clipName(m_code, kind, number);
    }

    void setNextCaption(std::string_view caption) {
        m_form.buttons[Button::BNext].label.setCaption(std::string(caption));
    }

    void showQuestion(StatementKind kind, int number) {
        (m_form.*kindControls[kind].question).setCaption(questionAt(questionsOf(kind), number));
    }

    /// Shows a question and speaks it the first time that it is reached. One that was passed
    /// with the sound off counts as not yet heard.
    void announce(StatementKind kind, std::int16_t number) {
        showQuestion(kind, number);
        std::int16_t& narrated = m_form.*kindControls[kind].narrated;
        if (m_form.chkMute.isOn() || narrated >= number) return;
        narrate(m_program, clipOf(kind, number));
        narrated = number;
    }

    /// Unlike on the way forward, a question speaks at every return to it.
    void askAgain(StatementKind kind) {
        showQuestion(kind, m_form.questionStep);
        narrate(m_program, clipOf(kind, m_form.questionStep));
    }

    void reachLastQuestion(StatementKind kind, bool last) {
        ++m_form.questionStep;
        m_form.onLastQuestion = true;
        announce(kind, countOf(kind));
        if (!last) return;
        setNextCaption("Save...");
        setNextToolTip(m_form, "Browse to the location you would like to save this file.");
    }

    void enter(StatementKind kind) {
        Panel& panel = m_form.*kindControls[kind].questionPanel;
        panel.show();
        clearJournal(m_program);
        panel.setBounds(topLeftCorner(panel.bounds()));
        m_form.questionStep = 1;
        announce(kind, 1);
    }

    bool leave(StatementKind kind) {
        m_form.onLastQuestion = false;
        (m_form.*kindControls[kind].questionPanel).hide();
        enter(neighbour(kind, 1));
        return true;
    }

    bool save() {
        if (!saveBrainstormDialog(m_program)) return false;
        setNextToolTip(m_form, {});
        m_form.onLastQuestion = false;
        clearJournal(m_program);
        return true;
    }

    void goBackBeyond(StatementKind kind) {
        (m_form.*kindControls[kind].questionPanel).hide();
        if (kind == firstKind) {
            m_form.picBBack.hide();
            clearJournal(m_program);
            return;
        }
        const StatementKind previous = neighbour(kind, -1);
        (m_form.*kindControls[previous].questionPanel).show();
        clearJournal(m_program);
        m_form.questionStep = countOf(previous);
        m_form.onLastQuestion = true;
        askAgain(previous);
    }

    Program& m_program;
    FrmMain& m_form;
    const std::string m_code;
};

}  // namespace

void brainstormNext(Program& program) {
    reportingFailures(program.platform.messages, [&] {
        stopNarration(program);
        WizardMove move(program);
        const auto kind = kindOnScreen(program.frmMain);
        const bool moved = kind ? move.goesOnFrom(*kind) : move.startsQuestions();
        if (moved) program.frmMain.picBBack.show();
    });
}

void brainstormBack(Program& program) {
    reportingFailures(program.platform.messages, [&] {
        WizardMove move(program);
        stopNarration(program);
        setNextToolTip(program.frmMain, {});
        if (const auto kind = kindOnScreen(program.frmMain)) move.goBackFrom(*kind);
    });
}

void brainstormQuit(Program& program) {
    stopNarration(program);
    if (!promptSaveBrainstorm(program)) return;
    program.frmMain.fraBrainstorm.hide();
    showUndoRedo(program.frmMain, false);
}

}  // namespace orvanta
