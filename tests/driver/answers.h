#pragma once

#include <deque>
#include <optional>
#include <string>
#include <vector>

#include "stage.h"

namespace orvanta::driver {

/// What will be said when the program asks. Each kind of question has a queue of its own; the
/// oldest answer goes first, whatever is asked.
struct Answers {
    std::deque<MessageAnswer> messages;
    std::deque<std::optional<std::string>> files;
    std::deque<std::vector<EditStep>> edits;
    std::deque<std::vector<ReportStep>> reports;
};

/// Takes the oldest answer off a queue; none if there is none.
template <class Answer>
std::optional<Answer> take(std::deque<Answer>& queue) {
    if (queue.empty()) return std::nullopt;
    Answer answer = std::move(queue.front());
    queue.pop_front();
    return answer;
}

}  // namespace orvanta::driver
