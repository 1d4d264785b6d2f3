#include "team.h"

#include <array>
#include <utility>

namespace orvanta::test {

namespace {

constexpr std::string_view manyWords =
    "Riders know every street of the city, its short cuts through yards and arcades, the hours at "
    "which the old town closes to cars, and by name the porters of most of the offices, so that "
    "a letter is seldom longer than twenty minutes on its way";

std::vector<Member> usualMembers() {
    return {{.name = "Dana Reyes",
             .strengths = {"Loyal customers", "Riders know every street of the city",
                           "Our own repair shop"},
             .weaknesses = {"No service at night", "Prices above the market"},
             .opportunities = {"Shops deliver on the same day", "The old town closes to cars"},
             .threats = {"A chain opens nearby", "Rain keeps customers away"}},
            {.name = "Lee Park",
             .strengths = {"Low running costs", "A name that people trust"},
             .weaknesses = {"Bookkeeping on paper"},
             .opportunities = {"The city pays for cargo bikes"},
             .threats = {"Rents rise"}},
            {.name = "Kim Alder",
             .strengths = {"Riders stay for years"},
             .weaknesses = {"Too few trainees", "Shifts are known late"},
             .opportunities = {"A school for riders next door"},
             .threats = {"Riders leave for larger firms"}}};
}

/// A member who says the same of each kind, so many times, each with a number of its own.
Member repeating(std::string name, std::string_view text, int count) {
    Texts texts;
    for (int number = 1; number <= count; ++number)
        texts.push_back(std::to_string(number) + ". " + std::string(text));
    return {std::move(name), texts, texts, texts, texts};
}

std::vector<Member> wordyMembers() {
    Member wordy =
        repeating("Dana Wilhelmina Constance Reyes-Montgomery, Head of Dispatch", manyWords, 5);
    for (Texts* texts : {&wordy.strengths, &wordy.opportunities})
        texts->push_back(std::string(200, 'W'));  // without a place to break it
    return {wordy, repeating("Lee Park", "Low running costs", 2)};
}

std::vector<Member> crowd() {
    constexpr int people = 25, each = 20;
    std::vector<Member> members;
    for (int number = 1; number <= people; ++number)
        members.push_back(
            repeating("Rider " + std::to_string(number), "A statement among many", each));
    return members;
}

}  // namespace

std::optional<Team> teamNamed(std::string_view word) {
    constexpr std::array<std::pair<std::string_view, Team>, 4> names{{{"usual", Team::Usual},
                                                                      {"wordy", Team::Wordy},
                                                                      {"silent", Team::Silent},
                                                                      {"crowd", Team::Crowd}}};
    for (const auto& [name, team] : names)
        if (name == word) return team;
    return std::nullopt;
}

std::vector<Member> membersOf(Team team) {
    switch (team) {
        case Team::Usual:
            return usualMembers();
        case Team::Wordy:
            return wordyMembers();
        case Team::Crowd:
            return crowd();
        case Team::Silent:
            break;
    }
    return {repeating("Dana Reyes", {}, 0)};
}

std::string statementOf(Team team) {
    const Texts strengths = membersOf(team).front().strengths;
    return strengths.empty() ? std::string() : strengths.front();
}

}  // namespace orvanta::test
