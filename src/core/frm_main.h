#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "core/buttons.h"
#include "view/control.h"
#include "view/file_dialog.h"
#include "view/statement_list.h"

namespace orvanta {

/// The change journal's two stacks hold this many records each; an empty text is a free entry.
using JournalRecords = std::array<std::string, 11>;

/// The main window and all the state of a running session. The rows of its lists are the
/// session's data; the panels that are visible are the steps of the two wizards.
struct FrmMain {
    explicit FrmMain(FileDialogs& dialogs);

    ControlSet controls;
    std::string caption;
    Twips width, height;  // of the inside of the window
    Notice captionChanged;
    Notice sizeChanged;
    bool shown = false;
    Notice shownChanged;

    PanelStack moduleScreens, brainstormSteps, analyzeSteps;
    OptionGroup moduleOptions;

    Panel fraBrainstorm{controls, "fraBrainstorm", &moduleScreens};
    Panel fraStrength{controls, "fraStrength", &brainstormSteps};
    Panel fraWeakness{controls, "fraWeakness", &brainstormSteps};
    Panel fraOpportunity{controls, "fraOpportunity", &brainstormSteps};
    Panel fraThreats{controls, "fraThreats", &brainstormSteps};
    Panel fraAnalyze{controls, "fraAnalyze", &moduleScreens};
    Panel fraASSummary{controls, "fraASSummary", &analyzeSteps};
    Panel fraAWeakness{controls, "fraAWeakness", &analyzeSteps};
    Panel fraAOpportunity{controls, "fraAOpportunity", &analyzeSteps};
    Panel fraAThreats{controls, "fraAThreats", &analyzeSteps};
    Panel fraAnalyzeOpportunity{controls, "fraAnalyzeOpportunity", &analyzeSteps};
    Panel fraAnalyzeThreat{controls, "fraAnalyzeThreat", &analyzeSteps};

    Panel picBOpen{controls, "picBOpen"};
    Panel picBtnPrint{controls, "picBtnPrint"};
    Panel picBQuit{controls, "picBQuit"};
    Panel picBBack{controls, "picBBack"};
    Panel picBNext{controls, "picBNext"};
    Panel picAOAFile{controls, "picAOAFile"};
    Panel picAQuit{controls, "picAQuit"};
    Panel picABack{controls, "picABack"};
    Panel picANext{controls, "picANext"};

    /// Nothing but these hold the art of the buttons; they are never seen.
    Image imgBtnSNormal{controls, "imgBtnSNormal"};
    Image imgBtnSDown{controls, "imgBtnSDown"};
    Image imgBtnLNormal{controls, "imgBtnLNormal"};
    Image imgBtnLDown{controls, "imgBtnLDown"};

    SkinnedButtons buttons{controls};
    CheckBox chkMute{controls, "chkMute", "Sound Off"};
    PushButton cmdUndo{controls, "cmdUndo", {}};
    PushButton cmdRedo{controls, "cmdRedo", {}};

    Label lblName{controls, "lblName", "Please enter your name"};
    TextBox txtName{controls, "txtName"};
    Label lblModules{controls, "lblModules",
                     "The following SWOT Brainstorming modules are available for use."};
    Label lblSelectModule{controls, "lblSelectModule",
                          "Please select the appropriate module or the one your team leader has "
                          "asked you to complete."};
    Option optGBS{controls, "optGBS", moduleOptions, "General Business Strategy"};
    Option optMP{controls, "optMP", moduleOptions, "Marketing Planning"};
    Option optSBD{controls, "optSBD", moduleOptions, "Sales && Business Development"};
    Option optPSD{controls, "optPSD", moduleOptions, "Product / Service Development"};
    Option optHRP{controls, "optHRP", moduleOptions, "Human Resources Planning"};
    Label lblDistribute{controls, "lblDistribute", "Distribute To Team Members"};

    Label lblSQuestion{controls, "lblSQuestion"};
    TextBox txtStrength{controls, "txtStrength"};
    StatementList lvBStrength{controls, "lvBStrength"};
    Label lblWQuestion{controls, "lblWQuestion"};
    TextBox txtWeakness{controls, "txtWeakness"};
    StatementList lvBWeakness{controls, "lvBWeakness"};
    Label lblOQuestion{controls, "lblOQuestion"};
    TextBox txtOpportunity{controls, "txtOpportunity"};
    StatementList lvBOpportunity{controls, "lvBOpportunity"};
    Label lblTQuestion{controls, "lblTQuestion"};
    TextBox txtThreat{controls, "txtThreat"};
    StatementList lvBThreat{controls, "lvBThreat"};

    Label Label16{controls, "Label16", "Open Brainstorm Files"};
    Label Label10{controls, "Label10", "Add Brainstorm files to the list below."};
    ListBox lstFiles{controls, "lstFiles"};

    Label lblAStrength{controls, "lblAStrength"};
    TextBox txtAStrength{controls, "txtAStrength"};
    StatementList lvAStrength{controls, "lvAStrength"};
    Label lblAWeakness{controls, "lblAWeakness"};
    TextBox txtAWeakness{controls, "txtAWeakness"};
    StatementList lvAWeakness{controls, "lvAWeakness"};
    Label lblAOpportunity{controls, "lblAOpportunity"};
    TextBox txtAOpportunity{controls, "txtAOpportunity"};
    StatementList lvAOpportunity{controls, "lvAOpportunity"};
    Label lblAThreats{controls, "lblAThreats"};
    TextBox txtAThreat{controls, "txtAThreat"};
    StatementList lvAThreat{controls, "lvAThreat"};

    Label lblAOMapping{controls, "lblAOMapping"};
    Label lblOpportunities{controls, "lblOpportunities", "Opportunities"};
    StatementList lvOpportunity{controls, "lvOpportunity", AfterRemoval::SelectNone};
    Label lblStrengthsOp{controls, "lblStrengthsOp", "Strengths"};
    StatementList lvStrengthOp{controls, "lvStrengthOp"};
    Label lblWeaknessesOp{controls, "lblWeaknessesOp", "Weaknesses"};
    StatementList lvWeaknessOp{controls, "lvWeaknessOp"};

    Label lblATMapping{controls, "lblATMapping"};
    Label lblThreats{controls, "lblThreats", "Threats"};
    StatementList lvThreat{controls, "lvThreat", AfterRemoval::SelectNone};
    Label lblStrengthsTh{controls, "lblStrengthsTh", "Strengths"};
    StatementList lvStrengthTh{controls, "lvStrengthTh"};
    Label lblWeaknessesTh{controls, "lblWeaknessesTh", "Weaknesses"};
    StatementList lvWeaknessTh{controls, "lvWeaknessTh"};

    FileDialog cd;

    bool editFlag = false;   // the brainstorm session has changes that are in no file yet
    bool editAFlag = false;  // the same for the analyze session
    std::string lastPathBSM, lastPathAZE, lastPathRTF;
    std::string dragSection;        // "S" or "W": the kind that a drag carries; or empty
    std::int16_t questionStep = 0;  // from 1; 0: no list step is active
    bool onLastQuestion = false;
    std::int16_t narratedStrength = 0, narratedWeakness = 0, narratedOpportunity = 0,
                 narratedThreat = 0;  // highest question already spoken
    JournalRecords undoRecords, redoRecords;
    bool autoSaveFailed = false;  // the warning has been shown in this run
    std::int32_t keyCountS = 0, keyCountW = 0, keyCountO = 0, keyCountT = 0;
};

/// Fits the layout to a display with large fonts; any other leaves it as designed.
void shrinkForLargeFonts(FrmMain& form, double twipsPerPixel);

using ListMember = StatementList FrmMain::*;

/// Undo and Redo, shown and hidden together.
void showUndoRedo(FrmMain& form, bool visible);

}  // namespace orvanta
