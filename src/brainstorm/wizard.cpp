#include "brainstorm/wizard.h"

#include <algorithm>

#include "brainstorm/statements.h"
#include "core/answer_prompt.h"
#include "core/failures.h"
#include "core/kind_controls.h"
#include "core/main_window.h"
#include "core/messages.h"
#include "core/modules.h"
#include "core/text.h"
#include "questions/narration.h"
#include "questions/question_banks.h"
#include "sessionfiles/saving.h"

namespace orvanta {

namespace {

constexpr Bounds topLeftCorner(Bounds bounds) {
    bounds.left = bounds.top = {};
    return bounds;
}

/// The step on screen; null on the module choice screen.
const KindControls* stepOnScreen(const FrmMain& form) {
    const auto isShown = [&](const KindControls& kind) {
        return (form.*kind.questionPanel).isVisible();
    };
    const auto found = std::ranges::find_if(kindControls, isShown);
    return found == kindControls.end() ? nullptr : &*found;
}

void setNextToolTip(FrmMain& form, const std::string& toolTip) {
    form.buttons[Button::BNext].setToolTip(toolTip);
}

/// One press of Next or Back.
class Walk {
public:
    explicit Walk(Program& program)
        : m_program(program), m_form(program.frmMain), m_code(chosenCode(program.frmMain)) {}

    bool startsQuestions() {
        if (trimBlanks(m_form.txtName.text()).empty()) {
            refuse(m_program.platform.messages, "Please enter your name.");
            m_form.txtName.giveFocus();
            return false;
        }
        if (m_code.empty()) {
            refuse(m_program.platform.messages, "Please select any SWOT analysis type.");
            return false;
        }
        if (!loadModuleQuestions(m_program, m_code)) return false;
        m_form.onLastQuestion = false;
        enter(kindControls.front());
        return true;
    }

    /// False if the session was to be saved and was not.
    bool goesOnFrom(const KindControls& kind) {
        if (wantsAnswerAdded(m_program, m_form.*kind.answerBox))
            addBrainstormStatement(m_program, kind.kind);
        const bool last = &kind == &kindControls.back();
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

    void goBackFrom(const KindControls& kind) {
        if (m_form.questionStep > 0) {
            m_form.onLastQuestion = false;
            --m_form.questionStep;
            if (m_form.questionStep > 0)
                askAgain(kind);
            else
                goBackBeyond(kind);
        }
        // Only the last list ever turns the button into Save.
        if (&kind == &kindControls.back()) m_form.buttons[Button::BNext].label.setCaption("Next>>");
    }

private:
    const std::vector<std::string>& questionsOf(const KindControls& kind) const {
        return m_program.questions.*bankListOf(kind.kind).questions;
    }
    std::int16_t countOf(const KindControls& kind) const {
        return m_program.questions.*bankListOf(kind.kind).count;
    }
    std::string clipOf(const KindControls& kind, int number) const {
        return clipName(m_code, kind.kind, number);
    }

    void showQuestion(const KindControls& kind, int number) {
        (m_form.*kind.question).setCaption(questionAt(questionsOf(kind), number));
    }

    /// Shows a question and speaks it the first time that it is reached. One that was passed
    /// with the sound off counts as not yet heard.
    void announce(const KindControls& kind, std::int16_t number) {
        showQuestion(kind, number);
        std::int16_t& narrated = m_form.*kind.narrated;
        if (m_form.chkMute.isOn() || narrated >= number) return;
        narrate(m_program, clipOf(kind, number));
        narrated = number;
    }

    /// Unlike on the way forward, a question speaks at every return to it.
    void askAgain(const KindControls& kind) {
        showQuestion(kind, m_form.questionStep);
        narrate(m_program, clipOf(kind, m_form.questionStep));
    }

    void reachLastQuestion(const KindControls& kind, bool last) {
        ++m_form.questionStep;
        m_form.onLastQuestion = true;
        announce(kind, countOf(kind));
        if (!last) return;
        m_form.buttons[Button::BNext].label.setCaption("Save...");
        setNextToolTip(m_form, "Browse to the location you would like to save this file.");
    }

    void enter(const KindControls& kind) {
        Panel& panel = m_form.*kind.questionPanel;
        panel.show();
        clearJournal(m_program);
        panel.setBounds(topLeftCorner(panel.bounds()));
        m_form.questionStep = 1;
        announce(kind, 1);
    }

    bool leave(const KindControls& kind) {
        m_form.onLastQuestion = false;
        (m_form.*kind.questionPanel).hide();
        enter(kindControls[indexOf(kind.kind) + 1]);
        return true;
    }

    bool save() {
        if (!saveBrainstormDialog(m_program)) return false;
        setNextToolTip(m_form, {});
        m_form.onLastQuestion = false;
        clearJournal(m_program);
        return true;
    }

    void goBackBeyond(const KindControls& kind) {
        (m_form.*kind.questionPanel).hide();
        if (&kind == &kindControls.front()) {
            m_form.picBBack.hide();
            clearJournal(m_program);
            return;
        }
        const KindControls& previous = kindControls[indexOf(kind.kind) - 1];
        (m_form.*previous.questionPanel).show();
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
        Walk walk(program);
        const KindControls* step = stepOnScreen(program.frmMain);
        const bool moved = step ? walk.goesOnFrom(*step) : walk.startsQuestions();
        if (moved) program.frmMain.picBBack.show();
    });
}

void brainstormBack(Program& program) {
    reportingFailures(program.platform.messages, [&] {
        Walk walk(program);
        stopNarration(program);
        setNextToolTip(program.frmMain, {});
        if (const KindControls* step = stepOnScreen(program.frmMain)) walk.goBackFrom(*step);
    });
}

void brainstormQuit(Program& program) {
    stopNarration(program);
    if (!promptSaveBrainstorm(program)) return;
    program.frmMain.fraBrainstorm.hide();
    showUndoRedo(program.frmMain, false);
}

}  // namespace orvanta
