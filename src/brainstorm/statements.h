#pragma once

#include <string_view>

#include "core/session_state.h"

namespace orvanta {

/// What differs between the four lists of the Brainstorm module.
struct BrainstormKind {
    StatementKind kind;
    Panel FrmMain::*panel;
    Label FrmMain::*questionLabel;
    TextBox FrmMain::*answerBox;
    StatementList FrmMain::*list;
    std::int16_t FrmMain::*narrated;
    std::string_view blankMessage;
};

inline constexpr std::array<BrainstormKind, 4> brainstormKinds{{
    {StatementKind::Strength, &FrmMain::fraStrength, &FrmMain::lblSQuestion, &FrmMain::txtStrength,
     &FrmMain::lvBStrength, &FrmMain::narratedStrength, "Please enter strength."},
    {StatementKind::Weakness, &FrmMain::fraWeakness, &FrmMain::lblWQuestion, &FrmMain::txtWeakness,
     &FrmMain::lvBWeakness, &FrmMain::narratedWeakness, "Please enter weakness."},
    {StatementKind::Opportunity, &FrmMain::fraOpportunity, &FrmMain::lblOQuestion,
     &FrmMain::txtOpportunity, &FrmMain::lvBOpportunity, &FrmMain::narratedOpportunity,
     "Please enter opportunity."},
    {StatementKind::Threat, &FrmMain::fraThreats, &FrmMain::lblTQuestion, &FrmMain::txtThreat,
     &FrmMain::lvBThreat, &FrmMain::narratedThreat, "Please enter threat."},
}};

void addBrainstormStatement(Program& program, const BrainstormKind& kind);
void editBrainstormStatement(Program& program, const BrainstormKind& kind);
void removeBrainstormStatement(Program& program, const BrainstormKind& kind);

void addBrainstormStrength(Program& program);
void addBrainstormWeakness(Program& program);
void addBrainstormOpportunity(Program& program);
void addBrainstormThreat(Program& program);
void editBrainstormStrength(Program& program);
void editBrainstormWeakness(Program& program);
void editBrainstormOpportunity(Program& program);
void editBrainstormThreat(Program& program);
void removeBrainstormStrength(Program& program);
void removeBrainstormWeakness(Program& program);
void removeBrainstormOpportunity(Program& program);
void removeBrainstormThreat(Program& program);

/// False for the characters that can't be part of a file name; a name does not take them.
bool isAllowedInName(char character);

}  // namespace orvanta
