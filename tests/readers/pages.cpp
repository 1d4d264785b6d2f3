#include <algorithm>
#include <cmath>

#include "checks.h"

namespace orvanta::readers {

namespace {

// In points, from the left edge of the page. The tables begin 5.4 points left of the margin of
// 100; Writer draws them by another 5.4, the padding of a cell, further out.
constexpr double tableStart = 100 - 5.4 - 5.4;
constexpr double secondColumn = tableStart + 330, thirdColumn = secondColumn + 30;
constexpr double centreOfNumbers = secondColumn + 15;
constexpr double centreOfSigns = tableStart + 5.4 + 10;
constexpr double tolerance = 2;
constexpr double lineTolerance = 1;

struct Word {
    int page;
    double left, top, right, bottom;
    std::string text;

    double centre() const { return (left + right) / 2; }
    bool isUpward() const { return bottom - top > 30; }
    bool isNumber() const {
        return std::ranges::all_of(text, [](char c) { return c >= '0' && c <= '9'; });
    }
};

std::vector<Word> wordsOf(const Node& document) {
    std::vector<Word> words;
    int number = 0;
    for (const Node* page : document.within("page")) {
        ++number;
        if (std::lround(std::stod(page->attribute("width"))) != 800 ||
            std::lround(std::stod(page->attribute("height"))) != 612)
            throw Mismatch{"page " + std::to_string(number) + " has another size"};
        if (page->all("word").empty())
            throw Mismatch{"page " + std::to_string(number) + " is blank"};
        for (const Node* word : page->all("word")) {
            const auto place = [&](const char* name) { return std::stod(word->attribute(name)); };
            words.push_back({number, place("xMin"), place("yMin"), place("xMax"), place("yMax"),
                             word->allText()});
            words.back().text = withoutBlanks(words.back().text);
        }
    }
    return words;
}

using Line = std::vector<Word>;  // from left to right, of all columns

std::vector<Line> linesOf(std::vector<Word> words) {
    std::ranges::sort(words, {}, [](const Word& word) { return std::pair(word.page, word.top); });
    std::vector<Line> lines;
    for (Word& word : words) {
        if (lines.empty() || lines.back().back().page != word.page ||
            word.top - lines.back().back().top >= lineTolerance)
            lines.emplace_back();
        lines.back().push_back(std::move(word));
    }
    for (Line& line : lines) std::ranges::sort(line, {}, &Word::left);
    return lines;
}

/// A line of the running text goes right across the place of the second column.
bool isAcross(const Word& word) {
    return word.right > secondColumn && word.left < thirdColumn && !word.isNumber() &&
           !word.isUpward();
}

/// Text with the page of each of its bytes.
struct Running {
    std::string text;
    std::vector<int> pages;

    void add(const Word& word) {
        text += word.text;
        pages.resize(text.size(), word.page);
    }
};

struct Columns {
    Running running;  // and the first column
    std::vector<Word> second;
    std::string third;
    int upward = 0;
};

void sortIn(const Line& line, Columns& columns) {
    const bool goesAcross = std::ranges::any_of(line, isAcross);
    for (const Word& word : line) {
        if (word.isUpward()) {
            compare("the upward text", word.text, "Priority");
            ++columns.upward;
        } else if (goesAcross || word.right <= secondColumn) {
            columns.running.add(word);
        } else if (word.left < thirdColumn) {
            columns.second.push_back(word);
        } else {
            columns.third += word.text;
        }
    }
}

Columns columnsOf(const std::vector<Word>& words) {
    Columns columns;
    for (const Line& line : linesOf(words)) sortIn(line, columns);
    return columns;
}

/// A text of the first column. What leads to the next one must not end a page.
struct Piece {
    std::string text;
    bool leads;
};

struct ExpectedColumns {
    std::vector<Piece> first;
    std::string second, third;
    int tables = 0;

    void add(const ExpectedRow& row) {
        first.push_back({row.text, !row.mapped.empty()});
        second += row.number + ",";
        for (const MappedRow& mapped : row.mapped)
            first.push_back({mapped.sign + mapped.text, false});
    }
    void add(const ExpectedTable& table) {
        ++tables;
        third += table.lastHeading;
        for (const std::string& text : table.heading) first.push_back({text, !table.rows.empty()});
        for (const ExpectedRow& row : table.rows) add(row);
    }
    void add(const ExpectedPart& part) {
        for (const std::string& text : part.paragraphs) first.push_back({text, true});
        for (const ExpectedTable& table : part.tables) add(table);
    }
};

void checkRunning(const Running& running, const std::vector<Piece>& pieces) {
    std::string whole;
    for (const Piece& piece : pieces) whole += piece.text;
    compare("the first column", running.text, whole);
    std::size_t end = 0;
    for (const Piece& piece : pieces) {
        end += withoutBlanks(piece.text).size();
        if (piece.leads && running.pages.at(end - 1) != running.pages.at(end))
            throw Mismatch{"page " + std::to_string(running.pages[end - 1]) + " ends in " +
                           piece.text};
    }
}

void checkNumbers(const std::vector<Word>& words, const std::string& expected) {
    std::string read;
    for (const Word& word : words) {
        read += word.text + ",";
        if (std::abs(word.centre() - centreOfNumbers) > tolerance)
            throw Mismatch{"number " + word.text + " is not in the middle of its column"};
    }
    compare("the second column", read, expected);
}

void checkSigns(const std::vector<Word>& words) {
    for (const Word& word : words) {
        const bool alone = word.text == "+" || (word.text == "-" && word.left < 120);
        if (alone && std::abs(word.centre() - centreOfSigns) > tolerance)
            throw Mismatch{"a sign is not in the middle of its column"};
    }
}

}  // namespace

void checkPages(const Node& document, const std::vector<ExpectedPart>& expected) {
    const std::vector<Word> words = wordsOf(document);
    ExpectedColumns columns;
    for (const ExpectedPart& part : expected) columns.add(part);
    const Columns read = columnsOf(words);
    checkRunning(read.running, columns.first);
    checkNumbers(read.second, columns.second);
    compare("the third column", read.third, columns.third);
    if (read.upward != columns.tables)
        throw Mismatch{"not every table has its upward heading once"};
    checkSigns(words);
}

}  // namespace orvanta::readers
