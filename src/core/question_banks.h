#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

namespace orvanta {

/// The question texts in memory, from the last bank that was read. Each text begins with one
/// blank. An array may hold more elements than its count; those beyond it are empty.
struct QuestionBanks {
    std::vector<std::string> strengthQuestions, weaknessQuestions, opportunityQuestions,
        threatQuestions;
    std::int16_t strengthCount = 0, weaknessCount = 0, opportunityCount = 0, threatCount = 0;
    std::array<std::string, 7> analyzeQuestions;
};

/// A question text by its number, from 1. Fails with SubscriptOutOfRange.
const std::string& questionAt(const std::vector<std::string>& questions, int number);

}  // namespace orvanta
