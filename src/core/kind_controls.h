#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/frm_main.h"
#include "core/section_tags.h"
#include "core/statement_kind.h"

namespace orvanta {

using ListMember = StatementList FrmMain::*;

/// The buttons beside a list.
struct ListButtons {
    Button add, edit, remove;
};

/// What the main window holds for one statement kind, in both modules.
struct KindControls {
    StatementKind kind;
    Section section;  // of the session files
    std::string_view blankMessage;

    Panel FrmMain::*questionPanel;
    Label FrmMain::*question;
    TextBox FrmMain::*answerBox;
    ListMember brainstormList;
    ListButtons brainstormButtons;
    std::int16_t FrmMain::*narrated;

    Panel FrmMain::*reviewPanel;
    Label FrmMain::*instruction;
    TextBox FrmMain::*reviewBox;
    ListMember analyzeList;
    ListButtons analyzeButtons;
    std::array<ListMember, 2> pickingLists;  // copies in step; strengths and weaknesses alone
    ListMember mappingList;                  // row of equal key; opportunities and threats alone
};

inline constexpr ListMember noList = nullptr;

// clang-format off: a row of the table is one kind
inline constexpr std::array<KindControls, 4> kindControls{{
    {StatementKind::Strength,
     Section::Strength,
     "Please enter strength.",
     &FrmMain::fraStrength,
     &FrmMain::lblSQuestion,
     &FrmMain::txtStrength,
     &FrmMain::lvBStrength,
     {Button::BSAdd, Button::BSEdit, Button::BSRemove},
     &FrmMain::narratedStrength,
     &FrmMain::fraASSummary,
     &FrmMain::lblAStrength,
     &FrmMain::txtAStrength,
     &FrmMain::lvAStrength,
     {Button::ASAdd, Button::ASEdit, Button::ASRemove},
     {&FrmMain::lvStrengthOp, &FrmMain::lvStrengthTh},
     noList},
    {StatementKind::Weakness,
     Section::Weakness,
     "Please enter weakness.",
     &FrmMain::fraWeakness,
     &FrmMain::lblWQuestion,
     &FrmMain::txtWeakness,
     &FrmMain::lvBWeakness,
     {Button::BWAdd, Button::BWEdit, Button::BWRemove},
     &FrmMain::narratedWeakness,
     &FrmMain::fraAWeakness,
     &FrmMain::lblAWeakness,
     &FrmMain::txtAWeakness,
     &FrmMain::lvAWeakness,
     {Button::AWAdd, Button::AWEdit, Button::AWRemove},
     {&FrmMain::lvWeaknessOp, &FrmMain::lvWeaknessTh},
     noList},
    {StatementKind::Opportunity,
     Section::Opportunity,
     "Please enter opportunity.",
     &FrmMain::fraOpportunity,
     &FrmMain::lblOQuestion,
     &FrmMain::txtOpportunity,
     &FrmMain::lvBOpportunity,
     {Button::BOAdd, Button::BOEdit, Button::BORemove},
     &FrmMain::narratedOpportunity,
     &FrmMain::fraAOpportunity,
     &FrmMain::lblAOpportunity,
     &FrmMain::txtAOpportunity,
     &FrmMain::lvAOpportunity,
     {Button::AOAdd, Button::AOEdit, Button::AORemove},
     {noList, noList},
     &FrmMain::lvOpportunity},
    {StatementKind::Threat,
     Section::Threats,
     "Please enter threat.",
     &FrmMain::fraThreats,
     &FrmMain::lblTQuestion,
     &FrmMain::txtThreat,
     &FrmMain::lvBThreat,
     {Button::BTAdd, Button::BTEdit, Button::BTRemove},
     &FrmMain::narratedThreat,
     &FrmMain::fraAThreats,
     &FrmMain::lblAThreats,
     &FrmMain::txtAThreat,
     &FrmMain::lvAThreat,
     {Button::ATAdd, Button::ATEdit, Button::ATRemove},
     {noList, noList},
     &FrmMain::lvThreat},
}};
// clang-format on
static_assert(kindControls[indexOf(StatementKind::Threat)].kind == StatementKind::Threat);

constexpr const KindControls& controlsOf(StatementKind kind) { return kindControls[indexOf(kind)]; }

/// Runs `visit` on each of the lists that a change of the main Analyze list of a kind goes on
/// to, in their order.
template <class Visit>
void forEachCompanion(FrmMain& form, const KindControls& controls, Visit visit) {
    for (const ListMember list :
         {controls.pickingLists[0], controls.pickingLists[1], controls.mappingList})
        if (list) visit(form.*list);
}

/// The kind of the statements of a section; none for any other section.
constexpr const KindControls* kindOfSection(Section section) {
    for (const KindControls& controls : kindControls)
        if (controls.section == section) return &controls;
    return nullptr;
}

}  // namespace orvanta
