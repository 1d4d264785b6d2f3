#include "app/button_actions.h"

#include "analyze/source_files.h"
#include "analyze/statements.h"
#include "analyze/wizard.h"
#include "app/session_opening.h"
#include "app/shutdown.h"
#include "brainstorm/statements.h"
#include "brainstorm/wizard.h"
#include "presentation/about_box.h"
#include "presentation/overview_page.h"
#include "presentation/question_sheets.h"
#include "reports/report_dialog.h"

namespace orvanta {

namespace {

using Action = void (*)(Program&);

constexpr PerButton<Action> actions{{
    {Button::ABack, analyzeBack},
    {Button::About, openAboutBox},
    {Button::AFAdd, addAnalyzeSourceFiles},
    {Button::AFRemove, removeAnalyzeSourceFile},
    {Button::Analyze, openAnalyzeModule},
    {Button::ANext, analyzeNext},
    {Button::AOAdd, addAnalyzeOpportunity},
    {Button::AOEdit, editAnalyzeOpportunity},
    {Button::AORemove, removeAnalyzeOpportunity},
    {Button::AQuit, analyzeQuit},
    {Button::ASAdd, addAnalyzeStrength},
    {Button::ASEdit, editAnalyzeStrength},
    {Button::ASRemove, removeAnalyzeStrength},
    {Button::ATAdd, addAnalyzeThreat},
    {Button::ATEdit, editAnalyzeThreat},
    {Button::ATRemove, removeAnalyzeThreat},
    {Button::AWAdd, addAnalyzeWeakness},
    {Button::AWEdit, editAnalyzeWeakness},
    {Button::AWRemove, removeAnalyzeWeakness},
    {Button::BBack, brainstormBack},
    {Button::BNext, brainstormNext},
    {Button::BOAdd, addBrainstormOpportunity},
    {Button::BOEdit, editBrainstormOpportunity},
    {Button::BOpen, openBrainstormFile},
    {Button::BORemove, removeBrainstormOpportunity},
    {Button::BQuit, brainstormQuit},
    {Button::Brainstorm, openBrainstormModule},
    {Button::BSAdd, addBrainstormStrength},
    {Button::BSEdit, editBrainstormStrength},
    {Button::BSRemove, removeBrainstormStrength},
    {Button::BTAdd, addBrainstormThreat},
    {Button::BTEdit, editBrainstormThreat},
    {Button::BTRemove, removeBrainstormThreat},
    {Button::BWAdd, addBrainstormWeakness},
    {Button::BWEdit, editBrainstormWeakness},
    {Button::BWRemove, removeBrainstormWeakness},
    {Button::OAFile, openAnalyzeFile},
    {Button::Overview, openOverviewPage},
    {Button::Print, printQuestions},
    {Button::Quit, quitProgram},
    {Button::Report, openReportDialog},
}};

enum class Look { Normal, Pressed };

void show(FrmMain& form, Button button, Look look) {
    const bool pressed = look == Look::Pressed;
    const Image& large = pressed ? form.imgBtnLDown : form.imgBtnLNormal;
    const Image& small = pressed ? form.imgBtnSDown : form.imgBtnSNormal;
    const bool isLarge = faceOf(button).size == ButtonSize::Large;
    form.buttons[button].image.setArt((isLarge ? large : small).art());
}

}  // namespace

void pressButton(Program& program, Button button) { show(program.frmMain, button, Look::Pressed); }

void releaseButton(Program& program, Button button) {
    show(program.frmMain, button, Look::Normal);
    actions[button](program);
}

}  // namespace orvanta
