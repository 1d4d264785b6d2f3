#include "desktop/question_sheet_pages.h"

#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <algorithm>
#include <map>

#include "desktop/theme.h"
#include "printed_sheets.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

constexpr QSizeF a4{1654, 2339}, letter{1700, 2200};  // at 200 dots an inch

QImage paper(const QSizeF& size = a4) {
    constexpr int dotsPerMetre = 7874;
    QImage image(size.toSize(), QImage::Format_RGB32);
    image.setDotsPerMeterX(dotsPerMetre);
    image.setDotsPerMeterY(dotsPerMetre);
    image.fill(Qt::white);
    return image;
}

std::vector<SheetPage> pagesOf(const QuestionSheets& sheets, const QSizeF& size = a4) {
    return sheetPages(sheets, size, paper(size));
}

QImage painted(const QuestionSheets& sheets, const std::vector<SheetPage>& pages,
               std::size_t index) {
    QImage image = paper();
    QPainter painter(&image);
    paintSheetPage(painter, sheets, pages, index, a4);
    return image;
}

class Paper : public testing::TestWithParam<QSizeF> {};
INSTANTIATE_TEST_SUITE_P(Of, Paper, testing::Values(a4, letter));

}  // namespace

TEST_P(Paper, BeginsAPageForEachKindAndOneOnly) {
    std::string opened;
    for (const SheetPage& page : pagesOf(sheetsWith(11), GetParam()))
        if (page.opensKind) opened += letterOf(page.kind);
    EXPECT_EQ(opened, "SWOT");
}

TEST_P(Paper, KeepsEachQuestionTogetherWithThreeRulesOrMore) {
    for (const SheetPage& page : pagesOf(sheetsWith(12), GetParam())) {
        ASSERT_FALSE(page.lines.empty());
        EXPECT_FALSE(page.lines.front().number.isEmpty());
        int rules = 3;
        for (const SheetLine& line : page.lines) {
            if (!line.number.isEmpty()) {
                EXPECT_GE(rules, 3);
                rules = 0;
            }
            if (line.isRule()) ++rules;
        }
        EXPECT_GE(rules, 3);
    }
}

TEST_P(Paper, SharesTheQuestionsOutEvenlyAmongThePagesOfAKind) {
    for (int questions = 1; questions <= 24; ++questions) {
        PerKind<std::vector<int>> shares{};
        for (const SheetPage& page : pagesOf(sheetsWith(questions), GetParam()))
            shares[page.kind].push_back(static_cast<int>(std::ranges::count_if(
                page.lines, [](const SheetLine& line) { return !line.number.isEmpty(); })));
        for (const StatementKind kind : statementKinds) {
            const auto [fewest, most] = std::ranges::minmax(shares[kind]);
            EXPECT_LE(most - fewest, 1) << questions;
        }
    }
}

TEST_P(Paper, GivesAllQuestionsOfAKindEquallyManyRules) {
    std::map<StatementKind, long> first;
    for (const SheetPage& page : pagesOf(sheetsWith(11), GetParam())) {
        const auto rules = std::ranges::count_if(page.lines, &SheetLine::isRule);
        const auto questions = std::ranges::count_if(
            page.lines, [](const SheetLine& line) { return !line.number.isEmpty(); });
        EXPECT_EQ(rules / questions, first.try_emplace(page.kind, rules / questions).first->second);
        EXPECT_EQ(rules % questions, 0);
    }
}

TEST_P(Paper, HoldsEachLineAboveItsFoot) {
    const QSizeF size = GetParam();
    for (const SheetPage& page : pagesOf(sheetsWith(12), size))
        for (const SheetLine& line : page.lines) EXPECT_LT(line.bottom, size.height() - 50);
}

TEST_P(Paper, HoldsEachLineWhollyBelowTheOneBefore) {
    const double millimetre = 200 / 25.4;
    for (const SheetPage& page : pagesOf(sheetsWith(11, "a b c d e f g h "), GetParam())) {
        double before = 0;
        for (const SheetLine& line : page.lines) {
            EXPECT_GT(line.bottom, before + 3 * millimetre);
            before = line.bottom;
        }
    }
}

TEST(QuestionSheetPages, KeepTheNumberAndTheRulesOfAQuestionWithoutWords) {
    QuestionSheets sheets = sheetsWith(3);
    sheets.questions[StatementKind::Strength][1].clear();
    std::string numbers;
    int rules = 0;
    const std::vector<SheetPage> pages = pagesOf(sheets);
    for (const SheetLine& line : pages.front().lines) {
        numbers += line.number.toStdString();
        rules += line.isRule();
    }
    EXPECT_EQ(numbers, "1.2.3.");
    EXPECT_EQ(rules, 15);
}

TEST(QuestionSheetPages, BreakAWordWiderThanThePage) {
    const std::string word(400, 'x');
    const std::vector<SheetPage> pages = pagesOf(sheetsWith(1, word));
    std::string all;
    int texts = 0;
    for (const SheetLine& line : pages.front().lines)
        if (!line.text.isEmpty()) {
            all += line.text.toStdString();
            ++texts;
        }
    EXPECT_EQ(all, "S1:" + word);
    EXPECT_GT(texts, 3);
}

TEST(QuestionSheetPages, ShowEachQuestionOnceInTheOrderOfTheBank) {
    std::vector<QString> shown, expected;
    for (const SheetPage& page : pagesOf(sheetsWith(9)))
        for (const SheetLine& line : page.lines)
            if (!line.number.isEmpty()) shown.push_back(line.number + line.text.section(':', 0, 0));
    for (const char kind : {'S', 'W', 'O', 'T'})
        for (int i = 1; i <= 9; ++i)
            expected.push_back(QStringLiteral("%1.%2%3").arg(i).arg(QLatin1Char(kind)).arg(i));
    EXPECT_EQ(shown, expected);
}

TEST(QuestionSheetPages, GiveAKindWithoutQuestionsItsPageAllTheSame) {
    EXPECT_EQ(pagesOf(sheetsWith(0)).size(), 4U);
}

TEST(QuestionSheetPages, BreakAQuestionLongerThanAPageRatherThanCutIt) {
    std::string words;
    for (int i = 0; i < 2500; ++i) words += "word" + std::to_string(i) + " ";
    std::string all;
    for (const SheetPage& page : pagesOf(sheetsWith(1, words)))
        for (const SheetLine& line : page.lines) {
            EXPECT_LT(line.bottom, a4.height());
            if (page.kind == StatementKind::Threat && !line.text.isEmpty())
                all += line.text.toStdString() + " ";
        }
    EXPECT_EQ(all, "T1: " + words);
}

TEST(QuestionSheetPages, HaveRulesAsWideOnPaperAsAPencilLineInQuietInk) {
    const QuestionSheets sheets = sheetsWith(1);
    const auto pages = pagesOf(sheets);
    const QImage page = painted(sheets, pages, 0);
    const int ofTheName = static_cast<int>(24 * 200 / 25.4),
              ofAnAnswer = static_cast<int>(pages[0].lines.back().bottom);
    for (const int rule : {ofTheName, ofAnAnswer}) {
        int height = 0;
        for (int y = rule - 5; y <= rule + 5; ++y)
            if (page.pixelColor(page.width() / 2, y) == theme::quietInk) ++height;
        EXPECT_EQ(height, 2) << "0.2 mm";
    }
}

TEST(QuestionSheetPages, PaintTheWordsOfAQuestionAboveTheEndOfItsLine) {
    const QuestionSheets sheets = sheetsWith(3);
    const auto pages = pagesOf(sheets);
    const QImage page = painted(sheets, pages, 0);
    const auto isInked = [&](int y) {
        for (int x = 0; x < page.width(); ++x)
            if (page.pixel(x, y) != 0xffffffff) return true;
        return false;
    };
    for (const SheetLine& line : pages[0].lines) {
        if (line.isRule()) continue;
        const int end = static_cast<int>(line.bottom);
        EXPECT_TRUE(isInked(end - 12)) << "1.5 mm higher";
        for (int y = end; y < end + 8; ++y) EXPECT_FALSE(isInked(y)) << y - end;
    }
}

TEST(QuestionSheetPages, PaintInsideThePaperAndLeaveNoPageBlank) {
    const QuestionSheets sheets = sheetsWith(12);
    const auto pages = pagesOf(sheets);
    for (std::size_t i = 0; i < pages.size(); ++i) {
        const QImage image = painted(sheets, pages, i);
        int inked = 0;
        for (int y = 0; y < image.height(); ++y)
            for (int x = 0; x < image.width(); ++x)
                if (image.pixel(x, y) != 0xffffffff) ++inked;
        EXPECT_GT(inked, 20'000) << "page " << i;
    }
}

}  // namespace orvanta::test
