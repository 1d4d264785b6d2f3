#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "core/question_banks.h"
#include "core/statement_kind.h"
#include "view/platform.h"

namespace orvanta {

/// Where the questions of one kind are kept.
struct BankList {
    std::vector<std::string> QuestionBanks::*questions;
    std::int16_t QuestionBanks::*count;
};

BankList bankListOf(StatementKind kind);

/// The file of a module's bank in the program's folder; it offers the module by being there.
std::string bankPath(const std::string& appPath, std::string_view code);

/// Reads a bank. True if each of the four lists has a question. A missing file leaves the texts
/// as they were, with all counts at 0. Fails where the file can't be read, or with
/// SubscriptOutOfRange where text stands ahead of a section's first question.
bool loadQuestionBank(const Disk& disk, const std::string& path, QuestionBanks& into);

/// Reads the headings of the six Analyze screens, all empty where the program's folder has no
/// file of them. Fails as loadQuestionBank does.
void readAnalyzeHeadings(const Disk& disk, const std::string& appPath,
                         std::array<std::string, 7>& headings);

}  // namespace orvanta
