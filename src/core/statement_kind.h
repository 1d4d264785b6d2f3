#pragma once

#include <optional>
#include <string_view>

#include "core/per_enum.h"

namespace orvanta {

enum class StatementKind { Strength, Weakness, Opportunity, Threat, Count };

template <class T>
using PerKind = PerEnum<StatementKind, T>;

inline constexpr auto statementKinds = allOf<StatementKind>;

/// How texts and files name a kind.
struct KindWords {
    char letter;  // of keys, clips and journal tags
    std::string_view name, several;
    std::string_view stepCode;  // of its list screen, in the temporary files of both sessions
};

inline constexpr PerKind<KindWords> kindWords{{
    {StatementKind::Strength,
     {.letter = 'S', .name = "Strength", .several = "Strengths", .stepCode = "ST"}},
    {StatementKind::Weakness,
     {.letter = 'W', .name = "Weakness", .several = "Weaknesses", .stepCode = "WE"}},
    {StatementKind::Opportunity,
     {.letter = 'O', .name = "Opportunity", .several = "Opportunities", .stepCode = "OP"}},
    {StatementKind::Threat,
     {.letter = 'T', .name = "Threat", .several = "Threats", .stepCode = "TH"}},
}};

constexpr char letterOf(StatementKind kind) { return kindWords[kind].letter; }
constexpr std::string_view nameOf(StatementKind kind) { return kindWords[kind].name; }
constexpr std::string_view nameOfSeveral(StatementKind kind) { return kindWords[kind].several; }

/// The number of the row pictures, 1 to 4.
constexpr int imageOf(StatementKind kind) { return static_cast<int>(kind) + 1; }

/// The kind of the rows with this picture; none for a number beyond 1 to 4.
constexpr std::optional<StatementKind> kindOfImage(int image) {
    for (const StatementKind kind : statementKinds)
        if (imageOf(kind) == image) return kind;
    return std::nullopt;
}

}  // namespace orvanta
