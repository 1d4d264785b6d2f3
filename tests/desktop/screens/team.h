#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "bench.h"

namespace orvanta::test {

/// Who brainstorms in the pictures: three people as usual, people of many words, one without
/// any, or so many that each list gets 500 statements.
enum class Team { Usual, Wordy, Silent, Crowd };

/// The team that a word on the command line names.
std::optional<Team> teamNamed(std::string_view word);

struct Member {
    std::string name;
    Texts strengths, weaknesses, opportunities, threats;
};

std::vector<Member> membersOf(Team team);

/// A statement as people of the team make it; empty of the silent.
std::string statementOf(Team team);

}  // namespace orvanta::test
