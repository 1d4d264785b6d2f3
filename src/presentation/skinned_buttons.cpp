#include "presentation/skinned_buttons.h"

#include <algorithm>
#include <array>

#include "analyze/source_files.h"
#include "analyze/statements.h"
#include "analyze/wizard.h"
#include "brainstorm/statements.h"
#include "brainstorm/wizard.h"
#include "core/main_window.h"
#include "core/startup.h"
#include "core/web_host.h"
#include "presentation/about_box.h"
#include "presentation/question_sheets.h"
#include "reports/report_dialog.h"
#include "sessionfiles/saving.h"

namespace orvanta {

namespace {

constexpr std::string_view addToolTip = "Add this statement to the list below.";
constexpr std::string_view editToolTip = "Edit the currently highlighted statement.";
constexpr std::string_view removeToolTip = "Remove the currently highlighted statement.";
constexpr std::string_view openBrainstormToolTip =
    "Open a file saved from a previous Brainstorm session";
constexpr bool large = true, small = false;

constexpr std::array<ButtonDesign, buttonCount> designs{{
    {Button::ABack, "ABack", small, "<<Back", "", analyzeBack},
    {Button::About, "About", large, "About", "", openAboutBox},
    {Button::AFAdd, "AFAdd", small, "Add", "Browse to open a previously saved Brainstorm file.",
     addAnalyzeSourceFile},
    {Button::AFRemove, "AFRemove", small, "Remove", "Remove highlighted file from the list.",
     removeAnalyzeSourceFile},
    {Button::Analyze, "Analyze", large, "Analyze",
     "Once you\x92ve completed your brainstorming, use this section to begin analyzing your ideas.",
     openAnalyzeModule},
    {Button::ANext, "ANext", small, "Next>>", "", analyzeNext},
    {Button::AOAdd, "AOAdd", small, "Add", addToolTip, addAnalyzeOpportunity},
    {Button::AOEdit, "AOEdit", small, "Edit", editToolTip, editAnalyzeOpportunity},
    {Button::AORemove, "AORemove", small, "Remove", removeToolTip, removeAnalyzeOpportunity},
    {Button::AQuit, "AQuit", small, "Quit", "End this session.", analyzeQuit},
    {Button::ASAdd, "ASAdd", small, "Add", addToolTip, addAnalyzeStrength},
    {Button::ASEdit, "ASEdit", small, "Edit", editToolTip, editAnalyzeStrength},
    {Button::ASRemove, "ASRemove", small, "Remove", removeToolTip, removeAnalyzeStrength},
    {Button::ATAdd, "ATAdd", small, "Add", addToolTip, addAnalyzeThreat},
    {Button::ATEdit, "ATEdit", small, "Edit", editToolTip, editAnalyzeThreat},
    {Button::ATRemove, "ATRemove", small, "Remove", removeToolTip, removeAnalyzeThreat},
    {Button::AWAdd, "AWAdd", small, "Add", addToolTip, addAnalyzeWeakness},
    {Button::AWEdit, "AWEdit", small, "Edit", editToolTip, editAnalyzeWeakness},
    {Button::AWRemove, "AWRemove", small, "Remove", removeToolTip, removeAnalyzeWeakness},
    {Button::BBack, "BBack", small, "<<Back", "", brainstormBack},
    {Button::BNext, "BNext", small, "Next>>", "", brainstormNext},
    {Button::BOAdd, "BOAdd", small, "Add", addToolTip, addBrainstormOpportunity},
    {Button::BOEdit, "BOEdit", small, "Edit", editToolTip, editBrainstormOpportunity},
    {Button::BOpen, "BOpen", large, "Open Brainstorm File...", openBrainstormToolTip,
     openBrainstormFile},
    {Button::BORemove, "BORemove", small, "Remove", removeToolTip, removeBrainstormOpportunity},
    {Button::BQuit, "BQuit", small, "Quit", "End this session.", brainstormQuit},
    {Button::Brainstorm, "Brainstorm", large, "Brainstorm",
     "Begin brainstorming and capturing your ideas.", openBrainstormModule},
    {Button::BSAdd, "BSAdd", small, "Add", addToolTip, addBrainstormStrength},
    {Button::BSEdit, "BSEdit", small, "Edit", editToolTip, editBrainstormStrength},
    {Button::BSRemove, "BSRemove", small, "Remove", removeToolTip, removeBrainstormStrength},
    {Button::BTAdd, "BTAdd", small, "Add", addToolTip, addBrainstormThreat},
    {Button::BTEdit, "BTEdit", small, "Edit", editToolTip, editBrainstormThreat},
    {Button::BTRemove, "BTRemove", small, "Remove", removeToolTip, removeBrainstormThreat},
    {Button::BWAdd, "BWAdd", small, "Add", addToolTip, addBrainstormWeakness},
    {Button::BWEdit, "BWEdit", small, "Edit", editToolTip, editBrainstormWeakness},
    {Button::BWRemove, "BWRemove", small, "Remove", removeToolTip, removeBrainstormWeakness},
    {Button::OAFile, "OAFile", large, "Open Analyze File...",
     "Open a file saved from a previous Analyze session.", openAnalyzeFile},
    {Button::Overview, "Overview", large, "Overview",
     "Click here to see an overview presentation that will instruct you on the SWOT analysis "
     "process.",
     openOverviewPage},
    // The tool tip is that of the button above it on the screen, word for word.
    {Button::Print, "Print", large, "Print Questions...", openBrainstormToolTip, printQuestions},
    {Button::Quit, "Quit", large, "Quit", "End this session.", quitProgram},
    {Button::Report, "Report", large, "Reports", "Generate a SWOT analysis report.",
     openReportDialog},
}};

static_assert(std::ranges::is_sorted(designs, {}, &ButtonDesign::button));
static_assert(designs.back().button == Button::Report);

const Image& normalArt(const FrmMain& form, bool isLarge) {
    return isLarge ? form.imgBtnLNormal : form.imgBtnSNormal;
}
const Image& downArt(const FrmMain& form, bool isLarge) {
    return isLarge ? form.imgBtnLDown : form.imgBtnSDown;
}

}  // namespace

SkinnedButton::SkinnedButton(ControlSet& owner, std::string_view baseName)
    : image(owner, "imgBtn" + std::string(baseName)),
      label(owner, "lblBtn" + std::string(baseName)),
      baseName(baseName) {}

void SkinnedButton::setToolTip(const std::string& toolTip) {
    label.setToolTip(toolTip);
    image.setToolTip(toolTip);
}

SkinnedButtons::SkinnedButtons(ControlSet& owner) {
    for (const ButtonDesign& design : designs) {
        auto button = std::make_unique<SkinnedButton>(owner, design.baseName);
        button->label.setCaption(std::string(design.caption));
        button->setToolTip(std::string(design.toolTip));
        button->image.setArt(design.large ? Art::LargeNormal : Art::SmallNormal);
        m_buttons[static_cast<std::size_t>(design.button)] = std::move(button);
    }
}

const ButtonDesign& designOf(Button button) { return designs[static_cast<std::size_t>(button)]; }

const ButtonDesign* buttonNamed(std::string_view baseName) {
    const auto found = std::ranges::find(designs, baseName, &ButtonDesign::baseName);
    return found == designs.end() ? nullptr : &*found;
}

void pressButton(Program& program, Button button) {
    FrmMain& form = program.frmMain;
    form.buttons[button].image.setArt(downArt(form, designOf(button).large).art());
}

void releaseButton(Program& program, Button button) {
    FrmMain& form = program.frmMain;
    const ButtonDesign& design = designOf(button);
    form.buttons[button].image.setArt(normalArt(form, design.large).art());
    design.action(program);
}

void openOverviewPage(Program& program) { program.platform.shell.open(webAddress(overviewPage)); }

}  // namespace orvanta
