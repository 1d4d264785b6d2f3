#include "core/frm_main.h"

#include <array>
#include <initializer_list>
#include <utility>

#include "core/analyze_steps.h"
#include "core/design_grid.h"
#include "core/display_scaling.h"
#include "core/kind_controls.h"
#include "core/modules.h"

namespace orvanta {

namespace {

constexpr Stretch fixed{};
constexpr Stretch wide{0, 0, 1, 0};   // takes the width
constexpr Stretch whole{0, 0, 1, 1};  // takes width and height
constexpr Stretch atRight{1, 0, 1, 0};
constexpr Stretch atBottom{0, 1, 0, 1};
constexpr Stretch atBottomRight{1, 1, 1, 1};

void place(Control& control, Panel* container, Bounds bounds, Stretch stretch = fixed) {
    control.setContainer(container);
    control.setBounds(bounds);
    control.setStretch(stretch);
}

constexpr double largeWidth = 168, largeHeight = 40, smallWidth = 88, smallHeight = 32;

void placeButton(SkinnedButton& button, Panel* container, Bounds bounds, Stretch stretch = fixed) {
    place(button.image, container, bounds, stretch);
    place(button.label, container, bounds, stretch);
    button.label.setFontSize({9.75});
    button.label.setBold(true);
}

void placeSmall(SkinnedButton& button, Panel& container, double left, double top, Stretch stretch) {
    placeButton(button, &container, grid(left, top, smallWidth, smallHeight), stretch);
}

/// A button with a picture box of its own around it.
void placeHeld(SkinnedButton& button, Panel& holder, Panel& container, Bounds bounds,
               Stretch stretch) {
    place(holder, &container, bounds, stretch);
    Bounds inside = bounds;
    inside.left = inside.top = {};
    placeButton(button, &holder, inside);
}

void placeTopLevel(FrmMain& form) {
    constexpr Button column[] = {Button::Overview, Button::Brainstorm, Button::Analyze,
                                 Button::Report,   Button::About,      Button::Quit};
    double top = 80;
    for (const Button button : column) {
        placeButton(form.buttons[button], nullptr, grid(16, top, largeWidth, largeHeight));
        top += 48;
    }
    // Each module has a Quit of its own beside this one.
    form.buttons[Button::Quit].image.setAccessibleName("Quit Orvanta");
    place(form.chkMute, nullptr, grid(20, top + 8, 160, 24));
    place(form.cmdUndo, nullptr, grid(16, top + 48, 80, 36));
    place(form.cmdRedo, nullptr, grid(104, top + 48, 80, 36));
    form.cmdUndo.setToolTip("Click here to undo last change.");
    form.cmdRedo.setToolTip("Click here to redo last change.");
    form.cmdUndo.setAccessibleName("Undo");
    form.cmdRedo.setAccessibleName("Redo");
    form.cmdUndo.setVisible(false);
    form.cmdRedo.setVisible(false);
    for (Image* source :
         {&form.imgBtnSNormal, &form.imgBtnSDown, &form.imgBtnLNormal, &form.imgBtnLDown})
        source->setVisible(false);
    form.imgBtnSNormal.setArt(Art::SmallNormal);
    form.imgBtnSDown.setArt(Art::SmallDown);
    form.imgBtnLNormal.setArt(Art::LargeNormal);
    form.imgBtnLDown.setArt(Art::LargeDown);
}

// Above it the window tells the step of the wizard.
constexpr Bounds moduleArea = grid(200, 100, 760, 540);
constexpr Bounds stepArea = grid(0, 0, 760, 484);
constexpr double buttonRow = 492;

void placeModulePanels(FrmMain& form) {
    for (const SessionControls& session : sessionControls) {
        Panel& module = form.*session.panel;
        place(module, nullptr, moduleArea, whole);
        module.hide();
    }
}

void placeStepPanel(Panel& step, Panel& module) {
    place(step, &module, stepArea, whole);
    step.hide();
}

void placeWizardButtons(FrmMain& form) {
    const Stretch left = atBottom, right = atBottomRight;
    placeHeld(form.buttons[Button::BQuit], form.picBQuit, form.fraBrainstorm,
              grid(24, buttonRow, smallWidth, smallHeight), left);
    placeHeld(form.buttons[Button::BBack], form.picBBack, form.fraBrainstorm,
              grid(552, buttonRow, smallWidth, smallHeight), right);
    placeHeld(form.buttons[Button::BNext], form.picBNext, form.fraBrainstorm,
              grid(648, buttonRow, smallWidth, smallHeight), right);
    placeHeld(form.buttons[Button::AQuit], form.picAQuit, form.fraAnalyze,
              grid(24, buttonRow, smallWidth, smallHeight), left);
    placeHeld(form.buttons[Button::OAFile], form.picAOAFile, form.fraAnalyze,
              grid(128, buttonRow, largeWidth + 8, smallHeight), left);
    placeHeld(form.buttons[Button::ABack], form.picABack, form.fraAnalyze,
              grid(552, buttonRow, smallWidth, smallHeight), right);
    placeHeld(form.buttons[Button::ANext], form.picANext, form.fraAnalyze,
              grid(648, buttonRow, smallWidth, smallHeight), right);
}

void placeModuleChoice(FrmMain& form) {
    Panel& panel = form.fraBrainstorm;
    place(form.lblName, &panel, grid(24, 20, 400, 20));
    form.lblName.setBold(true);
    place(form.txtName, &panel, grid(24, 44, 480, 32), wide);
    form.txtName.setAccessibleName(form.lblName.caption());
    place(form.lblModules, &panel, grid(24, 92, 480, 32), wide);
    form.lblModules.setBold(true);
    place(form.lblSelectModule, &panel, grid(24, 126, 480, 46), wide);
    double top = 176;
    for (const ModuleId module : offeredModules) {
        Option& option = form.*modules[module].option;
        place(option, &panel, grid(32, top, 460, 24), wide);
        option.setVisible(false);
        option.setCoveredBy(&form.brainstormSteps);
        top += 24;
    }
    const Bounds large = grid(544, 44, largeWidth + 24, largeHeight);
    placeHeld(form.buttons[Button::BOpen], form.picBOpen, panel, large, atRight);
    placeHeld(form.buttons[Button::Print], form.picBtnPrint, panel, large + grid(0, 52, 0, 0),
              atRight);
    place(form.lblDistribute, &panel, large + grid(0, 108, 0, -8), atRight);
    form.lblDistribute.setToolTip("Use this link to email the Brainstorm module to your team.");
    for (Control* covered : std::initializer_list<Control*>{
             &form.lblName, &form.txtName, &form.lblModules, &form.lblSelectModule, &form.picBOpen,
             &form.picBtnPrint, &form.lblDistribute})
        covered->setCoveredBy(&form.brainstormSteps);
}

constexpr double listWidth = 608, sideButtons = 648;
constexpr double listTop = 120, listHeight = 356;  // on each step of both wizards
constexpr double boxTop = 76, boxHeight = 32, headingTop = 12, listLabelHeight = 24;

void placeHeading(Label& heading, Panel& panel) {
    place(heading, &panel, grid(24, headingTop, 712, 56), wide);
    heading.setFontSize({11.25});
    heading.setBold(true);
}

void placeListScreen(FrmMain& form, Panel& panel, Label& heading, StatementKind kind,
                     const StatementControls& controls) {
    TextBox& box = form.*controls.box;
    StatementList& list = form.*controls.list;
    placeHeading(heading, panel);
    place(box, &panel, grid(24, boxTop, listWidth, boxHeight), wide);
    placeSmall(form.buttons[controls.buttons.add], panel, sideButtons, boxTop, atRight);
    place(list, &panel, grid(24, listTop, listWidth, listHeight), whole);
    placeSmall(form.buttons[controls.buttons.edit], panel, sideButtons, listTop, atRight);
    placeSmall(form.buttons[controls.buttons.remove], panel, sideButtons, listTop + 40, atRight);
    box.setAccessibleName("New " + std::string(nameOf(kind)));
    list.setAccessibleName(std::string(nameOf(kind)) + " list");
}

void placeBrainstormStep(FrmMain& form, StatementKind kind) {
    const KindControls& controls = kindControls[kind];
    Panel& panel = form.*controls.questionPanel;
    placeStepPanel(panel, form.fraBrainstorm);
    placeListScreen(form, panel, form.*controls.question, kind, controls.in[Session::Brainstorm]);
}

void placeHeadedList(Label& heading, StatementList& list, Panel& panel, Bounds area,
                     Stretch stretch) {
    Bounds top = area;
    top.height = gridLength(20);
    place(heading, &panel, top, {stretch.left, stretch.top, stretch.right, stretch.top});
    heading.setBold(true);
    place(list, &panel, area + grid(0, listLabelHeight, 0, -listLabelHeight), stretch);
    list.setAccessibleName(heading.caption());
}

void placeMappingScreen(FrmMain& form, Panel& panel, Label& heading, const SideControls& side) {
    placeHeading(heading, panel);
    const auto placeList = [&](const HeadedList& headed, double left, double width,
                               Stretch stretch) {
        const Bounds area =
            grid(left, listTop - listLabelHeight, width, listHeight + listLabelHeight);
        placeHeadedList(form.*headed.heading, form.*headed.list, panel, area, stretch);
    };
    // Each over the whole height and the mapping list in the middle: no straight way from one
    // list to it leads over another, whose statement would be mapped then.
    placeList(side.strengths, 24, 216, {0, 0, 0.31, 1});
    placeList(side.mapping, 252, 256, {0.31, 0, 0.69, 1});
    placeList(side.weaknesses, 520, 216, {0.69, 0, 1, 1});
}

/// What the Analyze screens say until their texts have been loaded.
constexpr std::string_view builtInInstruction =
    "Before we move on, take a look through your list and see if there are any that should drop "
    "off or perhaps be consolidated with others.";

void placeAnalyzeStep(FrmMain& form, const StepControls& step) {
    if (!step.panel) return;
    Panel& panel = form.*step.panel;
    Label& heading = form.*step.heading;
    placeStepPanel(panel, form.fraAnalyze);
    heading.setCaption(std::string(builtInInstruction));
    if (step.kind)
        placeListScreen(form, panel, heading, *step.kind, controlsOf(Session::Analyze, *step.kind));
    if (step.side) placeMappingScreen(form, panel, heading, sideControls[*step.side]);
}

void placeSourceFiles(FrmMain& form) {
    Panel& panel = form.fraAnalyze;
    placeHeading(form.Label16, panel);
    place(form.Label10, &panel, grid(24, listTop - listLabelHeight, listWidth, 20), wide);
    place(form.lstFiles, &panel, grid(24, listTop, listWidth, listHeight), whole);
    form.lstFiles.setAccessibleName(form.Label16.caption());
    placeSmall(form.buttons[Button::AFAdd], panel, sideButtons, listTop, atRight);
    placeSmall(form.buttons[Button::AFRemove], panel, sideButtons, listTop + 40, atRight);
    for (Control* covered : std::initializer_list<Control*>{
             &form.Label16, &form.Label10, &form.lstFiles, &form.buttons[Button::AFAdd].image,
             &form.buttons[Button::AFAdd].label, &form.buttons[Button::AFRemove].image,
             &form.buttons[Button::AFRemove].label})
        covered->setCoveredBy(&form.analyzeSteps);
}

constexpr std::array<std::pair<Panel FrmMain::*, Button>, 8> fittedHolders{{
    {&FrmMain::picAOAFile, Button::OAFile},
    {&FrmMain::picABack, Button::ABack},
    {&FrmMain::picANext, Button::ANext},
    {&FrmMain::picAQuit, Button::AQuit},
    {&FrmMain::picBOpen, Button::BOpen},
    {&FrmMain::picBBack, Button::BBack},
    {&FrmMain::picBNext, Button::BNext},
    {&FrmMain::picBQuit, Button::BQuit},
}};

void fitHolder(Panel& holder, const Image& picture) {
    Bounds bounds = holder.bounds();
    bounds.width = picture.bounds().width;
    bounds.height = picture.bounds().height;
    holder.setBounds(bounds);
}

void widen(Control& control, double share) {
    Bounds bounds = control.bounds();
    bounds.width = bounds.width + bounds.width * share;
    control.setBounds(bounds);
}

void shrinkControl(Control& control, double delta, bool commonLargeFonts) {
    if (control.is<Panel>()) return reducePlace(control, delta);
    reduceBounds(control, delta);
    lowerFont<Label, Option>(control, commonLargeFonts ? 2 : 3);
    if (control.is<Option>() && commonLargeFonts) widen(control, 0.01);
}

}  // namespace

FrmMain::FrmMain(FileDialogs& dialogs)
    : width(gridLength(960)), height(gridLength(640)), cd(dialogs) {
    placeTopLevel(*this);
    placeModulePanels(*this);
    placeWizardButtons(*this);
    placeModuleChoice(*this);
    placeSourceFiles(*this);
    for (const StatementKind kind : statementKinds) placeBrainstormStep(*this, kind);
    for (const StepControls& step : stepControls) placeAnalyzeStep(*this, step);
}

void showUndoRedo(FrmMain& form, bool visible) {
    form.cmdUndo.setVisible(visible);
    form.cmdRedo.setVisible(visible);
}

void shrinkForLargeFonts(FrmMain& form, double twipsPerPixel) {
    const double delta = layoutDelta(twipsPerPixel);
    if (delta == 0) return;
    const bool commonLargeFonts = delta == 3;
    form.width = reduced(form.width, delta);
    // The vertical factor was tuned by eye and is not the delta.
    form.height = reduced(form.height, commonLargeFonts ? 1.3 : 1.2);
    for (Control* control : form.controls.all()) shrinkControl(*control, delta, commonLargeFonts);
    for (const auto& [holder, button] : fittedHolders)
        fitHolder(form.*holder, form.buttons[button].image);
    form.sizeChanged();
}

}  // namespace orvanta
