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

/// The one on the same screen.
ReadingStrip& stripOf(const QWidget& list) {
    return dynamic_cast<ReadingStrip&>(*list.parentWidget()->findChild<QWidget*>("readingStrip"));
}

/// What it shows, on one line.
std::string pageOf(const ReadingStrip& strip) { return toCp1252(strip.page().join(u' ')); }

void expectRowsAbove(const StatementListView& list, const ReadingStrip& strip) {
    EXPECT_LE(placeOf(*list.viewport()).bottom(), placeOf(strip).top());
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

TEST_F(StatementListViewTest, StandsAtItsTopOnceItWasClearedAndFilledAnew) {
    const auto fill = [this] {
        for (int i = 0; i < 100; ++i) list().add({.key = {}, .text = "Row", .image = 1});
    };
    fill();
    QCoreApplication::processEvents();
    view().verticalScrollBar()->setValue(500);
    list().clear();
    fill();
    QCoreApplication::processEvents();
    EXPECT_EQ(view().verticalScrollBar()->value(), 0);
}

TEST_F(StatementListViewTest, ShowsWholeRowsAboveTheChosenStatement) {
    for (int row = 0; row < 40; ++row)
        list().add({.key = {}, .text = std::string(600, 'W'), .image = 1});
    for (int height : {420, 431, 437}) {
        bench.window().resize(800, height + 60);
        QCoreApplication::processEvents();
        ASSERT_FALSE(stripOf(view()).isHidden());
        const int row = view().visualRect(view().indexAtPosition(1)).height();
        EXPECT_EQ(view().viewport()->height() % row, 0) << height;
    }
}

TEST_F(StatementListViewTest, ShowsTheChosenStatementWholeWhereRowsCutOne) {
    ReadingStrip& whole = stripOf(view());
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
    expectRowsAbove(view(), whole);
    list().remove(list().count());
    QCoreApplication::processEvents();
    EXPECT_TRUE(whole.isHidden()) << "once no row is cut any longer";
}

TEST_F(StatementListViewTest, SaysWhereToReadAStatementWholeAsLongAsNoneIsChosen) {
    bench.enter("txtStrength", {std::string(255, 'W')});
    list().select(0);
    QCoreApplication::processEvents();
    EXPECT_EQ(stripOf(view()).text(), "Choose a row to read it whole.");
}

TEST_F(StatementListViewTest, ChoosesItsFirstRowWithTheFirstKey) {
    list().select(0);
    view().setFocus();
    QTest::keyClick(&view(), Qt::Key_Down);
    EXPECT_EQ(list().selected(), 1);
    QTest::keyClick(&view(), Qt::Key_Down);
    EXPECT_EQ(list().selected(), 2);
}

TEST_F(StatementListViewTest, BringsTheRowIntoViewThatAKeyChoosesBehindARemovedOne) {
    WindowBench<AnalysisBench> analysis;
    analysis.goTo(mappingSides()[0]);
    analysis.window().show();
    StatementList& opportunities = analysis.form().lvOpportunity;
    auto& shown = analysis.widget<StatementListView>("lvOpportunity");
    for (int i = 0; i < 100; ++i) opportunities.add({.key = {}, .text = "Row", .image = 1});
    opportunities.select(60);
    QCoreApplication::processEvents();
    opportunities.remove(60);
    shown.verticalScrollBar()->setValue(0);
    QTest::keyClick(&shown, Qt::Key_Down);
    EXPECT_EQ(opportunities.selected(), 60);
    EXPECT_TRUE(
        shown.viewport()->rect().contains(shown.visualRect(shown.indexAtPosition(60)).center()));
}

/// The lists of a mapping screen, side by side, with a long statement in one of them.
class ListsSideBySide : public testing::Test {
protected:
    ListsSideBySide() {
        bench.next(5);
        bench.window().resize(1, 1);
        bench.window().show();
        QApplication::setActiveWindow(&bench.window());
        longest.resize(255, 'n');
        for (std::size_t i = 5; i < longest.size(); i += 6) longest[i] = ' ';
        bench.list("lvStrengthOp").add({.key = "S9", .text = longest, .image = 1});
        bench.list("lvWeaknessOp").select(1);
        bench.list("lvStrengthOp").select(bench.list("lvStrengthOp").count());
        QCoreApplication::processEvents();
    }

    StatementListView& view(const char* name) { return bench.widget<StatementListView>(name); }

    /// All that the strip shows while a key turns its pages, on one line.
    std::string readByTurning(StatementListView& list, Qt::Key key) {
        std::string page = pageOf(stripOf(list)), read = page;
        for (;; read += ' ' + page) {
            QTest::keyClick(&list, key);
            if (pageOf(stripOf(list)) == page) return read;
            page = pageOf(stripOf(list));
        }
    }

    WindowBench<AnalysisBench> bench;
    std::string longest;
};

TEST_F(ListsSideBySide, ShowTheLongestStatementWholeInTheSmallestWindow) {
    const ReadingStrip& strip = stripOf(view("lvStrengthOp"));
    ASSERT_TRUE(strip.isVisible());
    EXPECT_EQ(toCp1252(strip.text()), longest);
    EXPECT_LE(strip.heightForWidth(strip.width()), strip.height());
    for (const char* name : {"lvStrengthOp", "lvOpportunity", "lvWeaknessOp"})
        expectRowsAbove(view(name), strip);
}

TEST_F(ListsSideBySide, TurnThePagesOfAStatementThatIsTooLongForTheStrip) {
    const ReadingStrip& strip = stripOf(view("lvStrengthOp"));
    StatementListView& list = view("lvStrengthOp");
    list.setFocus();
    for (int i = 0; i < 200; ++i) longest += " word" + std::to_string(i);
    bench.list("lvStrengthOp").setText(bench.list("lvStrengthOp").count(), longest);
    QCoreApplication::processEvents();
    const std::string first = pageOf(strip);
    EXPECT_EQ(readByTurning(list, Qt::Key_Right), longest);
    readByTurning(list, Qt::Key_Left);
    EXPECT_EQ(pageOf(strip), first);
    QTest::keyClick(&list, Qt::Key_Right);
    ASSERT_NE(pageOf(strip), first);
    QTest::keyClick(&list, Qt::Key_Up);
    QTest::keyClick(&list, Qt::Key_Down);
    EXPECT_EQ(pageOf(strip), first) << "of a row that is chosen anew";
}

TEST_F(ListsSideBySide, PaintNothingOfAPageBeyondTheStrip) {
    const ReadingStrip& strip = stripOf(view("lvStrengthOp"));
    for (const std::size_t length : {100, 1'000, 20'000}) {
        longest.resize(length, 'W');
        bench.list("lvStrengthOp").setText(bench.list("lvStrengthOp").count(), longest);
        QCoreApplication::processEvents();
        const auto lines = static_cast<int>(strip.page().size()) + (strip.pages() > 1 ? 1 : 0);
        EXPECT_LE(lines * strip.fontMetrics().lineSpacing(), strip.height()) << length;
        EXPECT_EQ(strip.pages() > 1, length > 100) << length;
    }
}

TEST_F(ListsSideBySide, ShowWhatIsChosenInTheOneThatHasTheKeyboard) {
    const ReadingStrip& strip = stripOf(view("lvStrengthOp"));
    view("lvWeaknessOp").setFocus();
    EXPECT_EQ(toCp1252(strip.text()), bench.list("lvWeaknessOp").selectedRow()->text);
    bench.list("lvStrengthOp").select(1);
    EXPECT_EQ(toCp1252(strip.text()), bench.list("lvWeaknessOp").selectedRow()->text);
}

TEST_F(ListsSideBySide, HaveTheStripAtTheirFootWhereverTheyAreMoved) {
    const ReadingStrip& strip = stripOf(view("lvStrengthOp"));
    for (const char* name : {"lvStrengthOp", "lvOpportunity", "lvWeaknessOp"})
        view(name).move(view(name).x(), view(name).y() - 10);
    EXPECT_EQ(placeOf(strip).bottom(), placeOf(view("lvOpportunity")).bottom());
}

TEST_F(ListsSideBySide, ShowWhatIsChosenInOneThatOutlivesAnother) {
    const ReadingStrip& strip = stripOf(view("lvStrengthOp"));
    delete &view("lvStrengthOp");
    bench.list("lvWeaknessOp").select(2);
    EXPECT_EQ(toCp1252(strip.text()), bench.list("lvWeaknessOp").selectedRow()->text);
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
