#include "questions/bank_reader.h"

#include <array>

#include "core/failures.h"
#include "core/kind_controls.h"
#include "core/section_tags.h"
#include "core/text.h"
#include "view/within_memory.h"

namespace orvanta {

namespace {

constexpr std::string_view questionTag = "<QUESTION>";

constexpr PerKind<BankList> bankLists{{
    {StatementKind::Strength,
     {.questions = &QuestionBanks::strengthQuestions, .count = &QuestionBanks::strengthCount}},
    {StatementKind::Weakness,
     {.questions = &QuestionBanks::weaknessQuestions, .count = &QuestionBanks::weaknessCount}},
    {StatementKind::Opportunity,
     {.questions = &QuestionBanks::opportunityQuestions,
      .count = &QuestionBanks::opportunityCount}},
    {StatementKind::Threat,
     {.questions = &QuestionBanks::threatQuestions, .count = &QuestionBanks::threatCount}},
}};

constexpr std::array bankSections{Section::Strength, Section::Weakness, Section::Opportunity,
                                  Section::Threats};

constexpr int boundStep = 10;

/// Adds a raw line to the question with this index, behind one blank.
void joinLine(std::vector<std::string>& questions, int index, std::string_view line) {
    if (index < 0 || index >= static_cast<int>(questions.size()))
        throw Failure(ErrorNumber::SubscriptOutOfRange);
    questions[static_cast<std::size_t>(index)].append(1, ' ').append(line);
}

class BankReading {
public:
    explicit BankReading(QuestionBanks& banks) : m_banks(banks) {}

    void take(std::string_view line) {
        const std::string_view trimmed = trimBlanks(line);
        if (trimmed.empty()) return;
        if (const auto tag = tagOf(trimmed, bankSections))
            takeTag(*tag);
        else if (m_open)
            takeText(*m_open, trimmed, line);
    }

private:
    // Unlike in session files, a closing tag must name the section that is open.
    void takeTag(SectionTag tag) {
        const BankList* named = &bankLists[*kindOfSection(tag.section)];
        if (tag.opens && !m_open) {
            m_open = named;
            m_growthBound = boundStep;
        } else if (!tag.opens && m_open == named) {
            m_open = nullptr;
        }
    }

    void takeText(const BankList& list, std::string_view trimmed, std::string_view line) {
        std::int16_t& count = m_banks.*list.count;
        if (trimmed == questionTag)
            count = narrowed<std::int16_t>(count + 1);
        else
            joinLine(m_banks.*list.questions, count - 1, line);
        if (count != m_growthBound) return;
        m_growthBound += boundStep;
        (m_banks.*list.questions).resize(static_cast<std::size_t>(m_growthBound) + 1);
    }

    QuestionBanks& m_banks;
    const BankList* m_open = nullptr;
    int m_growthBound = boundStep;  // one for all sections
};

/// The index of the last heading that begins in a file, -1 for none.
int takeHeadings(std::string_view bytes, std::array<std::string, 7>& headings) {
    int index = -1;
    LineSource lines(bytes);
    while (index != 6) {
        const auto line = lines.next();
        if (!line) break;
        const std::string_view trimmed = trimBlanks(*line);
        if (trimmed == questionTag)
            ++index;
        else if (!trimmed.empty() && index != -1)
            headings[static_cast<std::size_t>(index)].append(1, ' ').append(*line);
    }
    return index;
}

}  // namespace

BankList bankListOf(StatementKind kind) { return bankLists[kind]; }

std::string bankPath(const std::string& appPath, std::string_view code) {
    return appPath + pathSeparator + std::string(code) + "questions.txt";
}

bool loadQuestionBank(const Disk& disk, const std::string& path, QuestionBanks& into) {
    for (const BankList& list : bankLists) into.*list.count = 0;
    if (disk.kindOf(path) != PathKind::File) return false;
    withinMemory([&] {
        for (const BankList& list : bankLists) (into.*list.questions).assign(boundStep + 1, {});
        const std::string bytes = disk.read(path);
        BankReading reading(into);
        LineSource lines(bytes);
        while (const auto line = lines.next()) reading.take(*line);
    });
    bool everyList = true;
    for (const BankList& list : bankLists) everyList = everyList && into.*list.count > 0;
    return everyList;
}

void readAnalyzeHeadings(const Disk& disk, const std::string& appPath,
                         std::array<std::string, 7>& headings) {
    headings.fill({});
    int index = 0;
    const std::string path = bankPath(appPath, "analyze");
    if (disk.kindOf(path) == PathKind::File)
        index = withinMemory([&] { return takeHeadings(disk.read(path), headings); });
    // The heading at the index goes too: without a seventh tag the last one read is not kept.
    for (; index <= 5; ++index) {
        if (index < 0) throw Failure(ErrorNumber::SubscriptOutOfRange);
        headings[static_cast<std::size_t>(index)].clear();
    }
}

}  // namespace orvanta
