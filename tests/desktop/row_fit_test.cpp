#include "desktop/row_fit.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "desktop/statement_row_painter.h"

namespace orvanta::test {
namespace {

using namespace orvanta::desktop;

class RowsOfAList : public testing::Test {
protected:
    void add(const std::string& text, int image = 1) {
        list.add({.key = "S" + std::to_string(list.count() + 1), .text = text, .image = image});
    }

    void measure(int width) { fit.measure(metrics, width); }

    const QFontMetrics metrics{QApplication::font()};
    ControlSet controls;
    StatementList list{controls, "list"};
    RowFit fit{list, nullptr};
};

TEST_F(RowsOfAList, HaveOneLineWhileEveryStatementFitsOnIt) {
    add("Loyal customers");
    measure(400);
    EXPECT_EQ(fit.linesPerRow(), 1);
    EXPECT_EQ(fit.linesToRead(400), 0);
}

TEST_F(RowsOfAList, HaveTwoLinesOnceOneStatementNeedsThem) {
    add("Loyal customers");
    measure(200);
    add("Riders know every street of the city");
    EXPECT_TRUE(fit.include(2));
    EXPECT_EQ(fit.linesPerRow(), 2);
    measure(600);
    EXPECT_EQ(fit.linesPerRow(), 1) << "in a wider list";
}

TEST_F(RowsOfAList, LeaveRoomToReadAStatementOfManyLinesWhole) {
    add(std::string(20, 'M'));
    measure(200);
    EXPECT_EQ(fit.linesToRead(200), 0) << "two lines show it";
    std::string sentence;
    for (int i = 0; i < 40; ++i) sentence += "words ";
    add(sentence);
    fit.include(2);
    const int lines = fit.linesToRead(200);
    const QRect needed = metrics.boundingRect(QRect(0, 0, 200, 10'000), Qt::TextWordWrap,
                                              QString::fromStdString(sentence));
    EXPECT_GE(lines * metrics.lineSpacing(), needed.height());
}

TEST_F(RowsOfAList, MeasureAnUnbrokenTextByItsLetters) {
    add(std::string(255, 'W'));
    measure(200);
    EXPECT_EQ(fit.linesPerRow(), 2);
    EXPECT_GT(fit.linesToRead(200), 10);
}

TEST_F(RowsOfAList, TakeTheRoomOfTheCountsIntoAccount) {
    add("Shops deliver on the same day", 3);
    const MappingCounts counts(list);
    RowFit counted(list, &counts);
    const LetterWidths letters(metrics);
    const int width = textRoom(list.row(1), 0, 1, nullptr, letters);
    const int fitting = static_cast<int>(letters.of(list.row(1).text)) + 2 - width;
    measure(fitting);
    counted.measure(metrics, fitting);
    EXPECT_EQ(fit.linesPerRow(), 1);
    EXPECT_EQ(counted.linesPerRow(), 2);
}

TEST_F(RowsOfAList, OfTwoLinesHaveMoreRoomBesideCountsThatStandBelowEachOther) {
    add("Shops deliver on the same day", 3);
    const MappingCounts counts(list);
    const LetterWidths letters(metrics);
    const auto roomOf = [&](int lines) {
        return textRoom(list.row(1), 300, lines, &counts, letters);
    };
    EXPECT_GT(roomOf(2), roomOf(1) + 16);
}

}  // namespace
}  // namespace orvanta::test
