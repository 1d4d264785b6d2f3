// A bank of any bytes is read, or refused with one of two failures. Counts are those of the tags
// at most, nothing stands beyond a count, and a question is a line that begins with a blank. The
// line ends of another system make no difference. A bank that is written anew from what was read
// reads as the same questions.

#include <algorithm>

#include "core/kind_controls.h"
#include "core/text.h"
#include "fuzzed_program.h"
#include "questions/bank_reader.h"

namespace orvanta::fuzz {

namespace {

struct Bank {
    QuestionBanks questions;
    bool isComplete = false;
    int failure = 0;
};

Bank bankFrom(std::string bytes) {
    test::MemoryDisk disk;
    disk.files["bank.txt"] = std::move(bytes);
    Bank bank;
    bank.failure =
        failureOf([&] { bank.isComplete = loadQuestionBank(disk, "bank.txt", bank.questions); });
    return bank;
}

/// The questions of a kind up to their count.
std::vector<std::string> questionsOf(const Bank& bank, StatementKind kind) {
    const BankList list = bankListOf(kind);
    const auto& questions = bank.questions.*list.questions;
    return {questions.begin(), questions.begin() + bank.questions.*list.count};
}

std::ptrdiff_t tagsIn(std::string_view bytes) {
    std::ptrdiff_t tags = 0;
    LineSource lines(bytes);
    while (const auto line = lines.next()) tags += trimBlanks(*line) == "<QUESTION>";
    return tags;
}

void requireSound(const Bank& bank, std::string_view bytes) {
    std::ptrdiff_t all = 0;
    bool everyKind = true;
    for (const StatementKind kind : statementKinds) {
        const auto& questions = bank.questions.*bankListOf(kind).questions;
        const std::ptrdiff_t count = bank.questions.*bankListOf(kind).count;
        require(count >= 0, "no list has fewer questions than none");
        all += count;
        everyKind = everyKind && count > 0;
        for (const std::string& question : questions)
            require(question.find_first_of("\r\n") == question.npos &&
                        (question.empty() || question.front() == ' '),
                    "a question is one line that begins with a blank");
        for (auto beyond = std::min(count, std::ssize(questions)); beyond < std::ssize(questions);
             ++beyond)
            require(questions[static_cast<std::size_t>(beyond)].empty(),
                    "nothing stands beyond the count");
    }
    require(all <= tagsIn(bytes), "there is a tag for each question");
    if (bank.failure == 0)
        require(bank.isComplete == everyKind, "a bank is complete that has questions of each kind");
}

std::string written(const Bank& bank) {
    std::string bytes;
    for (const StatementKind kind : statementKinds) {
        const std::string word(wordOf(kindControls[kind].section));
        bytes += "<" + word + ">\n";
        for (const std::string& question : questionsOf(bank, kind))
            bytes +=
                "<QUESTION>\n" + question.substr(std::min<std::size_t>(1, question.size())) + "\n";
        bytes += "</" + word + ">\n";
    }
    return bytes;
}

void requireSame(const Bank& bank, const Bank& other, std::string_view claim) {
    require(bank.failure == other.failure, claim);
    if (bank.failure != 0) return;
    for (const StatementKind kind : statementKinds)
        require(questionsOf(bank, kind) == questionsOf(other, kind), claim);
}

}  // namespace

void tryInput(std::string_view bytes) {
    const Bank bank = bankFrom(std::string(bytes));
    require(isNoneOr({ErrorNumber::SubscriptOutOfRange, ErrorNumber::Overflow}, bank.failure),
            "a bank is read, or refused with one of two failures");
    requireSound(bank, bytes);
    requireSame(bank, bankFrom(withLineEnds(bytes, "\r\n")), "line ends make no difference");
    if (bank.failure == 0)
        requireSame(bank, bankFrom(written(bank)), "a bank written anew has the same questions");
}

}  // namespace orvanta::fuzz
