#pragma once

#include <cstddef>
#include <optional>
#include <string_view>

#include "core/mapping_side.h"

namespace orvanta {

/// The steps of the Analyze wizard, in its order.
enum class AnalyzeStep {
    SourceFiles,
    Strengths,
    Weaknesses,
    Opportunities,
    Threats,
    OpportunityMapping,
    ThreatMapping,
    Count
};

template <class T>
using PerStep = PerEnum<AnalyzeStep, T>;

struct StepControls {
    std::string_view name;                // as a person reads it
    std::string_view code{};              // in the temporary file
    Panel FrmMain::*panel = nullptr;      // covers the source files, which have none of their own
    Label FrmMain::*heading = nullptr;    // says one of the Analyze texts
    std::string_view clip{};              // speaks it
    std::string_view clipOnReturn{};      // played in its place on the way back, if that is there
    std::optional<StatementKind> kind{};  // whose statements are weeded here
    std::optional<MappingSide> side{};    // whose parents are mapped onto here
};

inline constexpr PerStep<StepControls> stepControls{{
    {AnalyzeStep::SourceFiles, {.name = "Source files"}},
    {AnalyzeStep::Strengths,
     {.name = nameOfSeveral(StatementKind::Strength),
      .code = kindWords[StatementKind::Strength].stepCode,
      .panel = &FrmMain::fraASSummary,
      .heading = &FrmMain::lblAStrength,
      .clip = "analyze_S",
      .clipOnReturn = "analyze_S",
      .kind = StatementKind::Strength}},
    {AnalyzeStep::Weaknesses,
     {.name = nameOfSeveral(StatementKind::Weakness),
      .code = kindWords[StatementKind::Weakness].stepCode,
      .panel = &FrmMain::fraAWeakness,
      .heading = &FrmMain::lblAWeakness,
      .clip = "analyze_W",
      .clipOnReturn = "analyze_W",
      .kind = StatementKind::Weakness}},
    {AnalyzeStep::Opportunities,
     {.name = nameOfSeveral(StatementKind::Opportunity),
      .code = kindWords[StatementKind::Opportunity].stepCode,
      .panel = &FrmMain::fraAOpportunity,
      .heading = &FrmMain::lblAOpportunity,
      .clip = "analyze_O",
      .clipOnReturn = "analyze_O",
      .kind = StatementKind::Opportunity}},
    {AnalyzeStep::Threats,
     {.name = nameOfSeveral(StatementKind::Threat),
      .code = kindWords[StatementKind::Threat].stepCode,
      .panel = &FrmMain::fraAThreats,
      .heading = &FrmMain::lblAThreats,
      .clip = "analyze_T",
      // Uneven on purpose: whether its own clip is there decides if another one is played.
      .clipOnReturn = "analyze_TM",
      .kind = StatementKind::Threat}},
    {AnalyzeStep::OpportunityMapping,
     {.name = "Mapping onto opportunities",
      .code = "AO",
      .panel = &FrmMain::fraAnalyzeOpportunity,
      .heading = &FrmMain::lblAOMapping,
      .clip = "analyze_OM",
      .clipOnReturn = "analyze_OM",
      .side = MappingSide::Opportunities}},
    {AnalyzeStep::ThreatMapping,
     {.name = "Mapping onto threats",
      .code = "AT",
      .panel = &FrmMain::fraAnalyzeThreat,
      .heading = &FrmMain::lblATMapping,
      .clip = "analyze_TM",
      .side = MappingSide::Threats}},
}};

constexpr AnalyzeStep following(AnalyzeStep step) {
    return static_cast<AnalyzeStep>(static_cast<int>(step) + 1);
}
constexpr AnalyzeStep preceding(AnalyzeStep step) {
    return static_cast<AnalyzeStep>(static_cast<int>(step) - 1);
}

/// The heading's place among the Analyze texts, from 0. The source files have none.
constexpr std::size_t headingIndexOf(AnalyzeStep step) {
    return static_cast<std::size_t>(step) - 1;
}

}  // namespace orvanta
