#include "desktop/statement_list_view.h"

#include <gtest/gtest.h>

#include <QScrollBar>
#include <QtTest>

#include "window_bench.h"

namespace orvanta::test {

namespace {

using namespace orvanta::desktop;

Texts shownTexts(const QListView& view) {
    Texts texts;
    for (int row = 0; row < view.model()->rowCount(); ++row)
        texts.push_back(toCp1252(view.model()->index(row, 0).data().toString()));
    return texts;
}

/// Position of the row that is shown as selected; 0 for none.
int shownSelection(const QListView& view) {
    const QModelIndexList chosen = view.selectionModel()->selectedIndexes();
    return chosen.isEmpty() ? 0 : chosen.front().row() + 1;
}

class StatementListViewTest : public testing::Test {
protected:
    StatementListViewTest() {
        bench.start();
        bench.openBrainstorm();
        bench.enter("txtStrength", {"A", "B", "C", "D"});
        bench.window().show();
        QCoreApplication::processEvents();
    }

    StatementList& list() { return bench.form().lvBStrength; }
    StatementListView& view() { return bench.widget<StatementListView>("lvBStrength"); }

    WindowBench<> bench;
};

}  // namespace

TEST_F(StatementListViewTest, ShowsRowsThatComeGoAndChange) {
    list().insert(2, {.key = "S9", .text = "New", .image = 1});
    list().remove(4);
    list().setText(1, "First");
    EXPECT_EQ(shownTexts(view()), (Texts{"First", "New", "B", "D"}));
}

TEST_F(StatementListViewTest, ShowsAMovedRowInItsNewPlace) {
    for (int press = 0; press < 6; ++press)
        bench.click("BNext");  // three strengths, three weaknesses
    bench.enter("txtOpportunity", {"A", "B", "C", "D"});
    bench.drag("lvBOpportunity", 1, "lvBOpportunity", 3);
    auto& opportunities = bench.widget<StatementListView>("lvBOpportunity");
    EXPECT_EQ(shownTexts(opportunities), (Texts{"B", "C", "A", "D"}));
    EXPECT_EQ(shownSelection(opportunities), 3);
}

TEST_F(StatementListViewTest, FollowsTheSelectionOfTheList) {
    list().select(3);
    EXPECT_EQ(shownSelection(view()), 3);
    list().remove(3);
    EXPECT_EQ(shownSelection(view()), 3);
    list().select(0);
    EXPECT_EQ(shownSelection(view()), 0);
}

TEST_F(StatementListViewTest, TellsTheListOfAClickOnARow) {
    QTest::mouseClick(view().viewport(), Qt::LeftButton, {},
                      view().visualRect(view().indexAtPosition(2)).center());
    EXPECT_EQ(list().selected(), 2);
}

class ListUnderTheRealMouse : public testing::TestWithParam<SystemEvents> {};
INSTANTIATE_TEST_SUITE_P(OfAPersonAndOfAScript, ListUnderTheRealMouse,
                         testing::Values(SystemEvents::LetIn, SystemEvents::KeptOut));

TEST_P(ListUnderTheRealMouse, TellsItsRowToAPersonAlone) {
    WindowBench<> bench(GetParam());
    bench.start();
    bench.openBrainstorm();
    bench.enter("txtStrength", {"A"});
    bench.window().show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&bench.window()));
    auto& view = bench.widget<StatementListView>("lvBStrength");
    const QPoint row = view.visualRect(view.indexAtPosition(1)).center();
    QTest::mouseMove(bench.window().windowHandle(), view.viewport()->mapTo(&bench.window(), row));
    QCoreApplication::processEvents();
    EXPECT_EQ(bench.list("lvBStrength").toolTip(), GetParam() == SystemEvents::LetIn ? "A" : "");
}

TEST_F(StatementListViewTest, KeepsTheListsChoiceWhenQtWouldSelectAnotherRow) {
    WindowBench<AnalysisBench> analysis;
    analysis.goTo(mappingSides()[0]);
    analysis.select("lvOpportunity", 1);
    analysis.form().lvOpportunity.remove(1);
    EXPECT_EQ(analysis.form().lvOpportunity.selected(), 0);
    EXPECT_EQ(shownSelection(analysis.widget<StatementListView>("lvOpportunity")), 0);
}

TEST_F(StatementListViewTest, MakesNoObjectForARow) {
    const auto objectCount = [this] { return view().findChildren<QObject*>().size(); };
    const auto before = objectCount();
    for (int i = 0; i < 100'000; ++i) list().add({.key = {}, .text = "Row", .image = 1});
    QCoreApplication::processEvents();
    view().scrollToBottom();
    view().grab();
    EXPECT_EQ(objectCount(), before);
    EXPECT_EQ(view().model()->rowCount(), 100'004);
}

TEST_F(StatementListViewTest, BringsAnAddedRowIntoView) {
    for (int i = 0; i < 100; ++i) list().add({.key = {}, .text = "Row", .image = 1});
    QCoreApplication::processEvents();
    EXPECT_EQ(view().verticalScrollBar()->value(), 0);  // a list that is filled stays at its top
    bench.enter("txtStrength", {"Last"});
    QCoreApplication::processEvents();
    EXPECT_TRUE(view().viewport()->rect().contains(
        view().visualRect(view().indexAtPosition(105)).center()));
}

TEST_F(StatementListViewTest, ShowsWholeRowsAboveTheChosenStatement) {
    for (int row = 0; row < 40; ++row)
        list().add({.key = {}, .text = std::string(600, 'W'), .image = 1});
    for (int height : {420, 431, 437}) {
        bench.window().resize(800, height + 60);
        QCoreApplication::processEvents();
        ASSERT_FALSE(view().findChild<QLabel*>({}, Qt::FindDirectChildrenOnly)->isHidden());
        const int row = view().visualRect(view().indexAtPosition(1)).height();
        EXPECT_EQ(view().viewport()->height() % row, 0) << height;
    }
}

TEST_F(StatementListViewTest, ShowsTheChosenStatementWholeWhereRowsCutOne) {
    auto& whole = *view().findChild<QLabel*>({}, Qt::FindDirectChildrenOnly);
    EXPECT_TRUE(whole.isHidden());
    std::string words;
    for (int i = 0; i < 60; ++i) words += "word ";
    bench.enter("txtStrength", {words});
    QCoreApplication::processEvents();
    ASSERT_TRUE(whole.isVisible());
    view().setFocus();
    list().select(list().count());
    EXPECT_EQ(toCp1252(whole.text()), list().selectedRow()->text);
    EXPECT_LE(whole.heightForWidth(whole.width()), whole.height());
    EXPECT_TRUE(view().viewport()->geometry().intersected(whole.geometry()).isEmpty());
    list().remove(list().count());
    QCoreApplication::processEvents();
    EXPECT_TRUE(whole.isHidden()) << "once no row is cut any longer";
}

TEST_F(StatementListViewTest, ChoosesItsFirstRowWithTheFirstKey) {
    list().select(0);
    view().setFocus();
    QTest::keyClick(&view(), Qt::Key_Down);
    EXPECT_EQ(list().selected(), 1);
    QTest::keyClick(&view(), Qt::Key_Down);
    EXPECT_EQ(list().selected(), 2);
}

TEST(MappingScreenLists, OpenAtTheirFirstRowWhateverCameBefore) {
    WindowBench<AnalysisBench> bench;
    bench.window().show();
    bench.next(5);
    for (int i = 0; i < 100; ++i)
        bench.list("lvStrengthOp").add({.key = {}, .text = "Row", .image = 1});
    QCoreApplication::processEvents();
    QScrollBar& bar = *bench.widget<StatementListView>("lvStrengthOp").verticalScrollBar();
    bar.setValue(500);
    bench.click("ABack");
    QCoreApplication::processEvents();
    bench.click("ANext");
    QCoreApplication::processEvents();
    EXPECT_EQ(bar.value(), 0);
}

}  // namespace orvanta::test
