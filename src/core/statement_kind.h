#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace orvanta {

enum class StatementKind { Strength, Weakness, Opportunity, Threat };

inline constexpr std::array<StatementKind, 4> statementKinds{
    StatementKind::Strength, StatementKind::Weakness, StatementKind::Opportunity,
    StatementKind::Threat};

constexpr std::size_t indexOf(StatementKind kind) { return static_cast<std::size_t>(kind); }

/// The letter of keys and journal tags.
constexpr char letterOf(StatementKind kind) { return "SWOT"[indexOf(kind)]; }

constexpr std::string_view nameOf(StatementKind kind) {
    return std::array<std::string_view, 4>{"Strength", "Weakness", "Opportunity",
                                           "Threat"}[indexOf(kind)];
}
constexpr std::string_view nameOfSeveral(StatementKind kind) {
    return std::array<std::string_view, 4>{"Strengths", "Weaknesses", "Opportunities",
                                           "Threats"}[indexOf(kind)];
}

/// The number of the row pictures, 1 to 4.
constexpr int imageOf(StatementKind kind) { return static_cast<int>(kind) + 1; }

static_assert(letterOf(StatementKind::Threat) == 'T' && imageOf(StatementKind::Threat) == 4);

}  // namespace orvanta
