#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "core/frm_main.h"
#include "core/section_tags.h"
#include "core/statement_kind.h"

namespace orvanta {

using ListMember = StatementList FrmMain::*;

/// What the main window holds for one statement kind, in both modules.
struct KindControls {
    StatementKind kind;
    Section section;  // of the session files
    std::string_view blankMessage;

    Panel FrmMain::*questionPanel;
    Label FrmMain::*question;
    TextBox FrmMain::*answerBox;
    ListMember brainstormList;
    std::int16_t FrmMain::*narrated;

    Panel FrmMain::*reviewPanel;
    Label FrmMain::*instruction;
    TextBox FrmMain::*reviewBox;
    ListMember analyzeList;
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
     &FrmMain::narratedStrength,
     &FrmMain::fraASSummary,
     &FrmMain::lblAStrength,
     &FrmMain::txtAStrength,
     &FrmMain::lvAStrength,
     {&FrmMain::lvStrengthOp, &FrmMain::lvStrengthTh},
     noList},
    {StatementKind::Weakness,
     Section::Weakness,
     "Please enter weakness.",
     &FrmMain::fraWeakness,
     &FrmMain::lblWQuestion,
     &FrmMain::txtWeakness,
     &FrmMain::lvBWeakness,
     &FrmMain::narratedWeakness,
     &FrmMain::fraAWeakness,
     &FrmMain::lblAWeakness,
     &FrmMain::txtAWeakness,
     &FrmMain::lvAWeakness,
     {&FrmMain::lvWeaknessOp, &FrmMain::lvWeaknessTh},
     noList},
    {StatementKind::Opportunity,
     Section::Opportunity,
     "Please enter opportunity.",
     &FrmMain::fraOpportunity,
     &FrmMain::lblOQuestion,
     &FrmMain::txtOpportunity,
     &FrmMain::lvBOpportunity,
     &FrmMain::narratedOpportunity,
     &FrmMain::fraAOpportunity,
     &FrmMain::lblAOpportunity,
     &FrmMain::txtAOpportunity,
     &FrmMain::lvAOpportunity,
     {noList, noList},
     &FrmMain::lvOpportunity},
    {StatementKind::Threat,
     Section::Threats,
     "Please enter threat.",
     &FrmMain::fraThreats,
     &FrmMain::lblTQuestion,
     &FrmMain::txtThreat,
     &FrmMain::lvBThreat,
     &FrmMain::narratedThreat,
     &FrmMain::fraAThreats,
     &FrmMain::lblAThreats,
     &FrmMain::txtAThreat,
     &FrmMain::lvAThreat,
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
