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
        for (const Node* word : page->all("word")) {
            const auto place = [&](const char* name) { return std::stod(word->attribute(name)); };
            words.push_back({number, place("xMin"), place("yMin"), place("xMax"), place("yMax"),
                             word->allText()});
            words.back().text = withoutBlanks(words.back().text);
        }
    }
    return words;
}

bool onOneLine(const Word& a, const Word& b) {
    return a.page == b.page && std::abs(a.top - b.top) < 1;
}

bool comesFirst(const Word& a, const Word& b) {
    if (a.page != b.page) return a.page < b.page;
    return onOneLine(a, b) ? a.left < b.left : a.top < b.top;
}

/// A line of the running text goes right across the place of the second column.
bool isAcross(const Word& word) {
    return word.right > secondColumn && word.left < thirdColumn && !word.isNumber() &&
           !word.isUpward();
}

struct Columns {
    std::string running;  // and the first column
    std::vector<Word> second;
    std::string third;
    int upward = 0;
};

void sortIn(const Word& word, const std::vector<Word>& words, Columns& columns) {
    if (word.isUpward()) {
        compare("the upward text", word.text, "Priority");
        ++columns.upward;
    } else if (std::ranges::any_of(words, [&](const Word& other) {
                   return onOneLine(other, word) && isAcross(other);
               })) {
        columns.running += word.text;
    } else if (word.right <= secondColumn) {
        columns.running += word.text;
    } else if (word.left < thirdColumn) {
        columns.second.push_back(word);
    } else {
        columns.third += word.text;
    }
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
    std::vector<Word> words = wordsOf(document);
    std::ranges::sort(words, comesFirst);
    Columns columns;
    for (const Word& word : words) sortIn(word, words, columns);
    std::string running, numbers, third;
    int tables = 0;
    for (const ExpectedPart& part : expected) {
        for (const std::string& text : part.paragraphs) running += text;
        for (const ExpectedTable& table : part.tables) {
            ++tables;
            third += table.lastHeading;
            for (const std::string& text : table.heading) running += text;
            for (const ExpectedRow& row : table.rows) {
                running += row.text;
                numbers += row.number + ",";
                for (const MappedRow& mapped : row.mapped) running += mapped.sign + mapped.text;
            }
        }
    }
    compare("the first column", columns.running, running);
    compare("the third column", columns.third, third);
    std::string read;
    for (const Word& word : columns.second) {
        read += word.text + ",";
        if (std::abs(word.centre() - centreOfNumbers) > tolerance)
            throw Mismatch{"number " + word.text + " is not in the middle of its column"};
    }
    compare("the second column", read, numbers);
    if (columns.upward != tables) throw Mismatch{"not every table has its upward heading once"};
    checkSigns(words);
}

}  // namespace orvanta::readers
