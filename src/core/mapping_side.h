#pragma once

#include <optional>
#include <string_view>

#include "core/frm_main.h"
#include "core/per_enum.h"
#include "core/section_tags.h"
#include "core/statement_kind.h"

namespace orvanta {

/// What strengths and weaknesses are mapped onto.
enum class MappingSide { Opportunities, Threats, Count };

template <class T>
using PerSide = PerEnum<MappingSide, T>;

inline constexpr auto mappingSides = allOf<MappingSide>;

/// A list of a mapping screen and its heading.
struct HeadedList {
    Label FrmMain::*heading;
    ListMember list;
};

/// What differs between the two mapping screens.
struct SideControls {
    StatementKind parentKind;
    std::string_view parentWord;    // in messages
    std::string_view recordEnding;  // of journal tags
    Section section;                // of analyze files
    HeadedList mapping, strengths, weaknesses;

    /// The list that statements of a kind are picked from: strengths, else weaknesses.
    constexpr ListMember picking(StatementKind kind) const {
        return kind == StatementKind::Strength ? strengths.list : weaknesses.list;
    }
};

inline constexpr PerSide<SideControls> sideControls{{
    {MappingSide::Opportunities,
     {.parentKind = StatementKind::Opportunity,
      .parentWord = "opportunity",
      .recordEnding = "OM",
      .section = Section::OpportunityMapping,
      .mapping = {&FrmMain::lblOpportunities, &FrmMain::lvOpportunity},
      .strengths = {&FrmMain::lblStrengthsOp, &FrmMain::lvStrengthOp},
      .weaknesses = {&FrmMain::lblWeaknessesOp, &FrmMain::lvWeaknessOp}}},
    {MappingSide::Threats,
     {.parentKind = StatementKind::Threat,
      .parentWord = "threat",
      .recordEnding = "TM",
      .section = Section::ThreatMapping,
      .mapping = {&FrmMain::lblThreats, &FrmMain::lvThreat},
      .strengths = {&FrmMain::lblStrengthsTh, &FrmMain::lvStrengthTh},
      .weaknesses = {&FrmMain::lblWeaknessesTh, &FrmMain::lvWeaknessTh}}},
}};

/// The kinds that are mapped; the other two are mapped onto.
constexpr bool isMappable(StatementKind kind) {
    return kind == StatementKind::Strength || kind == StatementKind::Weakness;
}

/// The side whose parents are of this kind; none for a kind that is mapped.
constexpr std::optional<MappingSide> sideOfParents(StatementKind kind) {
    for (const MappingSide side : mappingSides)
        if (sideControls[side].parentKind == kind) return side;
    return std::nullopt;
}

inline StatementList& mappingList(FrmMain& form, MappingSide side) {
    return form.*sideControls[side].mapping.list;
}
inline const StatementList& mappingList(const FrmMain& form, MappingSide side) {
    return form.*sideControls[side].mapping.list;
}

/// Runs `visit` on each of the companions of a kind's main Analyze list, the lists that a change
/// of it goes on to: both picking lists of a strength or weakness, the mapping list of a parent.
template <class Visit>
void forEachCompanion(FrmMain& form, StatementKind kind, Visit visit) {
    if (const auto side = sideOfParents(kind)) return visit(mappingList(form, *side));
    for (const SideControls& side : sideControls) visit(form.*side.picking(kind));
}

}  // namespace orvanta
